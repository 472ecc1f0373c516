#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "foundation/message.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/texts/words.h"
#include "shell/printing/page_printer.h"
#include "shell/printing/printer_chooser.h"

class QWidget;

namespace velmar::printing {

/// The modal boxes, passed in so that a test answers them without one opening.
struct PrintingBoxes {
  AskToPrint ask_to_print{};
  /// The file of a PDF page; nothing when the user cancels. @param start file or folder to begin at
  std::function<std::optional<std::filesystem::path>(QWidget* parent, const QString& start)> choose_pdf{};
  std::function<void(QWidget* parent, const QString& text)> tell_done{};
  std::function<void(QWidget* parent, const QString& text)> tell_failure{};
};

/// The boxes of the screen: the system's print dialog and file dialog, and message boxes.
PrintingBoxes ScreenBoxes(const presentation::Words& words);

/// The page to work on, and the names it goes by.
struct PrintedDocument {
  presentation::PaginaDiStampa page{};
  std::string title{};  ///< of the print job and of the PDF file, UTF-8
  QString pdf_start{};  ///< where the file dialog begins
};

/// Prints `document`: a cancelled dialog leaves no trace, a printer that fails is told.
void PrintDocument(const PrintedDocument& document, PagePrinter& printer, const PrintingBoxes& boxes,
                   const presentation::Words& words, QWidget* parent);

/// Asks for a file and writes `document` there as PDF; failures are told and leave the old file.
void SaveDocument(const PrintedDocument& document, const PrintingBoxes& boxes,
                  const presentation::Words& words, QWidget* parent);

/// Shows the preview of `document` until the user closes it.
/// @param printer,boxes outlive the call
void ShowPreview(const PrintedDocument& document, PagePrinter& printer, const PrintingBoxes& boxes,
                 const presentation::Words& words, QWidget* parent);

/// The printers of this machine, choosing one for `printer`, which must outlive the choice. The system's own
/// default stays: it belongs to all programs.
PrinterChoice InstalledPrinters(PagePrinter& printer, const PrintingBoxes& boxes, QWidget* parent);

}  // namespace velmar::printing
