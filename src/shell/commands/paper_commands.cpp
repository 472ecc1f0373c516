#include "shell/commands/paper_commands.h"

#include <memory>

#include "presentation/drawing/printed_page.h"
#include "presentation/export/report_chart.h"
#include "shell/commands/beside_project.h"
#include "shell/commands/command_table.h"
#include "shell/printing/page_printer.h"
#include "shell/results/results_panel.h"

namespace velmar::shell {
namespace {

struct Paper {
  explicit Paper(const printing::PrintingBoxes& asked) : boxes(asked), printer(asked.ask_to_print) {}

  printing::PrintingBoxes boxes;
  printing::PagePrinter printer;
};

}  // namespace

printing::PrintedDocument DocumentOf(const WindowServices& services, const QWidget* window) {
  const elements::Setup& setup = services.open.Setup();
  const calculation::Totals& totals = services.open.CurrentTotals();
  const auto& result = services.open.Result();
  printing::PrintedDocument document;
  document.page = presentation::PaginaDi(
      setup, {totals.thickness_mm, totals.surface_mass_kg_m2}, result ? &*result : nullptr, services.words,
      result ? presentation::WholeChartOf(setup, *result, services.words, ShownChart(window)) : std::nullopt);
  document.title = document.page.title;
  document.pdf_start = BesideProject(window, QStringLiteral(".pdf"));
  return document;
}

printing::PrintingBoxes PaperBoxes(const WindowServices& services) {
  const auto tell = [&services](Tone tone) {
    return [&services, tone](QWidget*, const QString& text) { services.boxes.tell(tone, text); };
  };
  return printing::ScreenBoxes(services.words, tell(Tone::kInformation), tell(Tone::kCritical));
}

void AddPaperCommands(WindowServices& services, const printing::PrintingBoxes& boxes) {
  const auto paper = std::make_shared<Paper>(boxes);
  services.command_windows[CommandId::kPrintPreview] = [paper, &services](QWidget* parent) {
    printing::ShowPreview(DocumentOf(services, parent), paper->printer, paper->boxes, services.words, parent);
  };
  services.command_windows[CommandId::kPrint] = [paper, &services](QWidget* parent) {
    printing::PrintDocument(DocumentOf(services, parent), paper->printer, paper->boxes, services.words,
                            parent);
  };
  services.command_windows[CommandId::kChoosePrinter] = [paper, &services](QWidget* parent) {
    printing::ChoosePrinter(paper->printer, paper->boxes, parent);
  };
}

}  // namespace velmar::shell
