#include "shell/paper_commands.h"

#include <memory>

#include "presentation/drawing/printed_page.h"
#include "shell/phrases.h"
#include "shell/printing/page_printer.h"
#include "shell/printing/printing_dialogs.h"

namespace velmar::shell {
namespace {

struct Paper {
  explicit Paper(const presentation::Words& words)
      : boxes(printing::ScreenBoxes(words)), printer(boxes.ask_to_print) {}

  printing::PrintingBoxes boxes;
  printing::PagePrinter printer;
};

printing::PrintedDocument DocumentOf(const WindowServices& services) {
  const calculation::Totals& totals = services.open.CurrentTotals();
  const auto& result = services.open.Result();
  printing::PrintedDocument document;
  document.page =
      presentation::PaginaDi(services.open.Setup(), {totals.thickness_mm, totals.surface_mass_kg_m2},
                             result ? &*result : nullptr, services.words);
  document.title = document.page.title;
  return document;
}

}  // namespace

void AddPaperCommands(WindowServices& services) {
  const auto paper = std::make_shared<Paper>(services.words);
  services.command_windows[CommandId::kPrintPreview] = [paper, &services](QWidget* parent) {
    printing::ShowPreview(DocumentOf(services), paper->printer, paper->boxes, services.words, parent);
  };
  services.command_windows[CommandId::kPrint] = [paper, &services](QWidget* parent) {
    printing::PrintDocument(DocumentOf(services), paper->printer, paper->boxes, services.words, parent);
  };
}

}  // namespace velmar::shell
