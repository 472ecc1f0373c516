#include "shell/printing/page_printer.h"

#include <QPainter>
#include <QPrinter>

namespace velmar::printing {
namespace {

constexpr double kTwipsPerPoint = 20.0;

void SetUp(QPrinter& printer, const PrinterSettings& settings) {
  if (!settings.printer.isEmpty()) printer.setPrinterName(settings.printer);
  printer.setPageLayout(settings.layout);
  // The page brings its own margins; its corner is the paper's.
  printer.setFullPage(true);
}

}  // namespace

presentation::PrinterPaper PaperOf(const QPrinter& printer) {
  const QPageLayout layout = printer.pageLayout();
  const QMarginsF unprintable = layout.minimumMargins();
  const QSizeF paper = layout.fullRect(QPageLayout::Point).size();
  const QSizeF lost(unprintable.left() + unprintable.right(), unprintable.top() + unprintable.bottom());
  // minimumMargins() speaks the layout's own unit.
  const double points_per_unit =
      layout.fullRect().width() > 0.0 ? paper.width() / layout.fullRect().width() : 1.0;
  return {.paper_twips = paper * kTwipsPerPoint,
          .printable_twips = (paper - lost * points_per_unit) * kTwipsPerPoint};
}

PagePrinter::PagePrinter(AskToPrint ask, PrinterSettings settings)
    : ask_(std::move(ask)), settings_(std::move(settings)) {}

presentation::PrinterPaper PagePrinter::Paper() const {
  QPrinter printer(QPrinter::ScreenResolution);
  SetUp(printer, settings_);
  return PaperOf(printer);
}

void PagePrinter::SelectPrinter(const QString& printer) { settings_.printer = printer; }

PrintOutcome PagePrinter::Print(const presentation::PaginaDiStampa& page, const QString& title,
                                QWidget* parent) {
  // A printer of its own for every question: what a cancelled dialog has set goes with it.
  QPrinter printer(QPrinter::HighResolution);
  SetUp(printer, settings_);
  printer.setDocName(title);
  printer.setCreator(QStringLiteral("VELMARpro"));
  if (!ask_(parent, printer)) return PrintOutcome::kCancelled;
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) return PrintOutcome::kFailed;
  const QSizeF paper_inches = printer.pageLayout().fullRect(QPageLayout::Inch).size();
  const presentation::PageScale scale = presentation::PreparaPagina(PaperOf(printer), paper_inches);
  for (int index = 0; index < presentation::PageCountOf(scale.paper_inches, page); ++index) {
    if (index > 0 && !printer.newPage()) return PrintOutcome::kFailed;
    presentation::ComponiPagina(painter, printer.resolution() * scale.factor, scale.paper_inches, page,
                                index);
  }
  if (!painter.end() || printer.printerState() == QPrinter::Error) return PrintOutcome::kFailed;
  // A file is a single errand; the printer's name stays as it was.
  if (printer.outputFileName().isEmpty()) settings_.printer = printer.printerName();
  settings_.layout = printer.pageLayout();
  return PrintOutcome::kPrinted;
}

}  // namespace velmar::printing
