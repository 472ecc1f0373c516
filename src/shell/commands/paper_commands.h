#pragma once

#include <QObject>
#include <optional>

#include "calculation/open/open_calculation.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/commands/desk.h"
#include "shell/documents/document_services.h"
#include "shell/printing/page_printer.h"
#include "shell/printing/printing_dialogs.h"

namespace velmar::shell {

/// How pages are written, and what they say of where their numbers come from.
struct PaperOrigin {
  application::DocumentStyle style{};
  std::string project_file{};  ///< its name without a folder; empty for one that was never saved
  presentation::MaterialSources sources{};
};

/// The page of the open calculation, with its result where there is one.
/// @param chart as the screen shows it, with scale and overlays: a curve that leaves the scale is printed
///              whole; none: the chart is made of the result
/// @param pdf_start the file or folder that a PDF is offered
/// @param confidence what is known of the error of the result
printing::PrintedDocument DocumentOf(const calculation::OpenCalculation& open, const PaperOrigin& origin,
                                     const std::optional<presentation::CurveChart>& chart,
                                     const QString& pdf_start, const Message& confidence);

/// Print preview, print and the choice of a printer, which is kept while the program runs.
class PaperCommands : public QObject {
  Q_OBJECT
 public:
  /// @param boxes how the user is asked and told
  /// @param documents outlives the commands
  PaperCommands(const printing::PrintingBoxes& boxes, const DocumentServices& documents)
      : boxes_(boxes), documents_(documents), printer_(boxes.ask_to_print) {}

 public slots:
  void Preview(const velmar::shell::Desk& desk);
  void Print(const velmar::shell::Desk& desk);
  void ChoosePrinter(QWidget* parent);

 private:
  printing::PrintingBoxes BoxesOn(const Desk& desk) const;

  printing::PrintedDocument DocumentOn(const Desk& desk) const;

  printing::PrintingBoxes boxes_;
  const DocumentServices& documents_;
  printing::PagePrinter printer_;
};

/// The boxes of the screen, in the words and with the message boxes of `speech`, which outlives them.
printing::PrintingBoxes PaperBoxes(const Speech& speech);

}  // namespace velmar::shell
