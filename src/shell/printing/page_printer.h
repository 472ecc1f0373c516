#pragma once

#include <QPageLayout>
#include <QString>
#include <functional>

#include "presentation/drawing/page_scale.h"
#include "presentation/drawing/printed_page.h"

class QPrinter;
class QWidget;

namespace velmar::printing {

/// What the user has chosen for paper and printer.
struct PrinterSettings {
  QString printer{};  ///< device name; empty: the system's default
  QPageLayout layout{QPageSize(QPageSize::A4), QPageLayout::Portrait, {}};
};

enum class PrintOutcome { kPrinted, kCancelled, kFailed };

/// `CommonDialogPrinter`: lets the user set `printer` up. @return false when the user cancels
using AskToPrint = std::function<bool(QWidget* parent, QPrinter& printer)>;

/// What `printer` says of its paper, for PreparaPagina.
presentation::PrinterPaper PaperOf(const QPrinter& printer);

/// Prints pages and keeps the user's choice of printer and paper while the program runs.
class PagePrinter {
 public:
  explicit PagePrinter(AskToPrint ask, PrinterSettings settings = {});

  const PrinterSettings& Settings() const { return settings_; }

  /// The paper on which the next page would be printed.
  presentation::PrinterPaper Paper() const;

  /// Later pages go to `printer`. @param printer device name of an installed printer
  void SelectPrinter(const QString& printer);

  /// Asks for the printer, then prints `page` on as many sheets as it takes. A cancelled dialog changes
  /// nothing.
  /// @param title name of the print job
  PrintOutcome Print(const presentation::PaginaDiStampa& page, const QString& title, QWidget* parent);

 private:
  AskToPrint ask_;
  PrinterSettings settings_;
};

}  // namespace velmar::printing
