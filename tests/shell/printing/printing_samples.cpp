// printing_samples FOLDER [dark]: the windows of printing as pictures, and a page as PDF.
#include <QApplication>
#include <QPalette>
#include <filesystem>
#include <iostream>

#include "shell/printing/print_preview.h"
#include "shell/printing/printer_chooser.h"
#include "shell/printing/printing_dialogs.h"
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
  PrintPreview preview(
      {.page = SamplePage(), .paper = paper, .print = {}, .save_pdf = {}, .choose_printer = {}}, words);
  preview.resize(std::max(760, preview.width()), 900);
  SaveWindow(preview, folder / "preview.png");
  PrintPreview small(
      {.page = SamplePage(), .paper = paper, .print = {}, .save_pdf = {}, .choose_printer = {}}, words);
  small.resize(500, 420);
  SaveWindow(small, folder / "preview_small.png");
  PrinterChooser chooser(
      {.printers = {"Ufficio", "Laser_HP_2"}, .current = "Laser_HP_2", .select = {}, .tell_failure = {}},
      words);
  SaveWindow(chooser, folder / "chooser.png");
  PrinterChooser none({}, words);
  SaveWindow(none, folder / "chooser_empty.png");
  SavePdf(SamplePage(), "Parete", folder / "page.pdf");
  presentation::PaginaDiStampa compared = SamplePage();
  compared.chart->laboratory.emplace();
  compared.chart->in_situ.emplace();
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    (*compared.chart->laboratory)[band] = 30.0 + 2.0 * static_cast<double>(band);
    (*compared.chart->in_situ)[band] = 28.0 + 1.6 * static_cast<double>(band);
  }
  SavePdf(compared, "Parete", folder / "page_compared.pdf");
}

}  // namespace
}  // namespace velmar::printing

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "printing_samples FOLDER [dark]\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  if (argc > 2) {
    QPalette dark(QColor(0x2b, 0x2d, 0x31), QColor(0x24, 0x26, 0x2a));
    dark.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xd6));
    QApplication::setPalette(dark);
  }
  velmar::printing::SaveAll(argv[1]);
}
