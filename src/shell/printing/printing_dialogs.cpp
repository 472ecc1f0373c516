#include "shell/printing/printing_dialogs.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/export/page_pdf.h"
#include "shell/printing/print_preview.h"
#include "storage/files/whole_file.h"

namespace velmar::printing {
namespace {

QString Text(const presentation::Words& words, MessageRow row) { return QString::fromStdString(words(row)); }

QString Text(const presentation::Words& words, const Message& message) {
  QStringList lines;
  for (const MessageLine& line : message) lines << QString::fromStdString(presentation::InWords(line, words));
  return lines.join('\n');
}

bool AskWithSystemDialog(QWidget* parent, QPrinter& printer, const QString& title) {
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(title);
  // There is one page, and nothing in it to select.
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
  return dialog.exec() == QDialog::Accepted;
}

std::optional<std::filesystem::path> ChooseWithFileDialog(QWidget* parent, const QString& start,
                                                          const presentation::Words& words) {
  QFileDialog dialog(parent, Text(words, kSaveAsRow), start, Text(words, kPdfFilesRow) + " (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return std::filesystem::path(dialog.selectedFiles().front().toStdU16String());
}

}  // namespace

PrintingBoxes ScreenBoxes(const presentation::Words& words, const TellWritten& tell_written,
                          const TellUser& tell_failure) {
  return {.ask_to_print =
              [words](QWidget* parent, QPrinter& printer) {
                return AskWithSystemDialog(parent, printer, Text(words, kPrintRow));
              },
          .choose_pdf = [words](QWidget* parent,
                                const QString& start) { return ChooseWithFileDialog(parent, start, words); },
          .choose_printer =
              [words](QWidget* parent, const PrinterChoice& choice) {
                PrinterChooser(choice, words, parent).exec();
              },
          .tell_written = tell_written,
          .tell_failure = tell_failure};
}

void ChoosePrinter(PagePrinter& printer, const PrintingBoxes& boxes, QWidget* parent) {
  boxes.choose_printer(parent, InstalledPrinters(printer, boxes, parent));
}

void PrintDocument(const PrintedDocument& document, PagePrinter& printer, const PrintingBoxes& boxes,
                   const presentation::Words& words, QWidget* parent) {
  const PrintOutcome outcome = printer.Print(document.page, QString::fromStdString(document.title), parent);
  if (outcome == PrintOutcome::kFailed) boxes.tell_failure(parent, Text(words, kCannotPrintRow));
}

void SaveDocument(const PrintedDocument& document, const PrintingBoxes& boxes,
                  const presentation::Words& words, QWidget* parent) {
  const std::optional<std::filesystem::path> path = boxes.choose_pdf(parent, document.pdf_start);
  if (!path) return;
  try {
    SavePdf(document.page, document.title, *path);
  } catch (const Failure& failure) {
    boxes.tell_failure(parent, Text(words, failure.UserMessage()));
    return;
  }
  boxes.tell_written(parent, Text(words, kDocumentSavedRow), *path);
}

void ShowPreview(const PrintedDocument& document, PagePrinter& printer, const PrintingBoxes& boxes,
                 const presentation::Words& words, QWidget* parent) {
  PrintPreview preview(
      {.page = document.page,
       .paper = [&printer] { return printer.Paper(); },
       .print = [&](QWidget* above) { PrintDocument(document, printer, boxes, words, above); },
       .save_pdf = [&](QWidget* above) { SaveDocument(document, boxes, words, above); },
       .choose_printer = [&](QWidget* above) { ChoosePrinter(printer, boxes, above); }},
      words, parent);
  preview.exec();
}

PrinterChoice InstalledPrinters(PagePrinter& printer, const PrintingBoxes& boxes, QWidget* parent) {
  const QString chosen = printer.Settings().printer;
  return {.printers = QPrinterInfo::availablePrinterNames(),
          .current = chosen.isEmpty() ? QPrinterInfo::defaultPrinterName() : chosen,
          .select =
              [&printer](const QString& name) {
                if (QPrinterInfo::printerInfo(name).isNull()) return false;
                printer.SelectPrinter(name);
                return true;
              },
          .tell_failure = [tell = boxes.tell_failure, parent](const QString& text) { tell(parent, text); }};
}

void SavePdf(const presentation::PaginaDiStampa& page, const std::string& title,
             const std::filesystem::path& path) {
  storage::WriteWhole(path, presentation::PagePdf(page, title));
}

}  // namespace velmar::printing
