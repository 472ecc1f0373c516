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

/// Shows `text` until the user has read it.
using TellUser = std::function<void(QWidget* parent, const QString& text)>;

/// Says `text` and where `file`, which was written, is.
using TellWritten =
    std::function<void(QWidget* parent, const QString& text, const std::filesystem::path& file)>;

/// The modal boxes, passed in so that a test answers them without one opening.
struct PrintingBoxes {
  AskToPrint ask_to_print{};
  /// The file of a PDF page; nothing when the user cancels. @param start file or folder to begin at
  std::function<std::optional<std::filesystem::path>(QWidget* parent, const QString& start)> choose_pdf{};
  /// Lets the user choose one of the installed printers.
  std::function<void(QWidget* parent, const PrinterChoice& choice)> choose_printer{};
  TellWritten tell_written{};
  TellUser tell_failure{};
};

/// The boxes of the screen: the system's print dialog and file dialog and the printer chooser.
PrintingBoxes ScreenBoxes(const presentation::Words& words, const TellWritten& tell_written,
                          const TellUser& tell_failure);

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

/// Lets the user choose the printer of later pages. One that is not there any more is told.
void ChoosePrinter(PagePrinter& printer, const PrintingBoxes& boxes, QWidget* parent);

/// The printers of this machine, choosing one for `printer`, which must outlive the choice. The system's own
/// default stays: it belongs to all programs.
PrinterChoice InstalledPrinters(PagePrinter& printer, const PrintingBoxes& boxes, QWidget* parent);

/// Writes `page` as a PDF file, whole or not at all. @param title the document's, UTF-8
/// @throws storage::StoreFailure when the file cannot be written; the old one is untouched then
void SavePdf(const presentation::PaginaDiStampa& page, const std::string& title,
             const std::filesystem::path& path);

}  // namespace velmar::printing
