#include <QApplication>
#include <filesystem>
#include <iostream>

#include "shell/printing/print_preview.h"
#include "shell/printing/printer_chooser.h"
#include "shell/printing/save_pdf.h"
#include "tests/shell/printing/sample_page.h"

namespace velmar::printing {
namespace {

void SaveWindow(QWidget& window, const std::filesystem::path& path) {
  window.show();
  QApplication::processEvents();
  if (!window.grab().save(QString::fromStdString(path.string())))
    std::cerr << "cannot write " << path << '\n';
}

void SaveAll(const std::filesystem::path& folder) {
  const presentation::Words words = presentation::CatalogueWords();
  const auto paper = [] {
    return presentation::PrinterPaper{.paper_twips = {11906, 16838}, .printable_twips = {11306, 16238}};
  };
  PrintPreview preview({.page = SamplePage(), .paper = paper, .print = {}, .save_pdf = {}}, words);
  preview.resize(760, 900);
  SaveWindow(preview, folder / "preview.png");
  PrintPreview small({.page = SamplePage(), .paper = paper, .print = {}, .save_pdf = {}}, words);
  small.resize(500, 420);
  SaveWindow(small, folder / "preview_small.png");
  PrinterChooser chooser(
      {.printers = {"Ufficio", "Laser_HP_2"}, .current = "Laser_HP_2", .select = {}, .tell_failure = {}},
      words);
  SaveWindow(chooser, folder / "chooser.png");
  PrinterChooser none({}, words);
  SaveWindow(none, folder / "chooser_empty.png");
  SavePdf(SamplePage(), "Parete", folder / "page.pdf");
}

}  // namespace
}  // namespace velmar::printing

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "printing_samples FOLDER\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  velmar::printing::SaveAll(argv[1]);
}
