#include "shell/printing/printing_dialogs.h"

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/shell/printing/sample_page.h"

namespace velmar::printing {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct Answers {
  std::optional<std::filesystem::path> pdf{};
  bool prints = false;
  QString print_file{};
  QStringList done{};
  QStringList failures{};

  PrintingBoxes Boxes() {
    return {.ask_to_print =
                [this](QWidget*, QPrinter& printer) {
                  printer.setOutputFormat(QPrinter::PdfFormat);
                  printer.setOutputFileName(print_file);
                  return prints;
                },
            .choose_pdf = [this](QWidget*, const QString&) { return pdf; },
            .tell_written =
                [this](QWidget*, const QString& text, const std::filesystem::path& file) {
                  done << text + ' ' + QString::fromStdString(file.filename().string());
                },
            .tell_failure = [this](QWidget*, const QString& text) { failures << text; }};
  }
};

PrintedDocument Document() { return {.page = SamplePage(), .title = "Parete", .pdf_start = {}}; }

QByteArray BytesOf(const std::filesystem::path& path) {
  QFile file(QString::fromStdString(path.string()));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SaveDocument, WritesThePdfAndSaysSo) {
  const QTemporaryDir folder;
  Answers answers{.pdf = folder.filePath("parete è.pdf").toStdString()};
  SaveDocument(Document(), answers.Boxes(), presentation::CatalogueWords(), nullptr);
  EXPECT_TRUE(BytesOf(*answers.pdf).startsWith("%PDF"));
  EXPECT_THAT(answers.done, testing::ElementsAre("Il documento è stato salvato. parete è.pdf"));
  EXPECT_THAT(answers.failures, IsEmpty());
}

TEST(SaveDocument, ACancelledDialogIsSilent) {
  Answers answers;
  SaveDocument(Document(), answers.Boxes(), presentation::CatalogueWords(), nullptr);
  EXPECT_THAT(answers.done, IsEmpty());
  EXPECT_THAT(answers.failures, IsEmpty());
}

TEST(SaveDocument, AReadOnlyFileIsToldAndStays) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("old.pdf");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("old");
  file.close();
  file.setPermissions(QFile::ReadOwner);
  Answers answers{.pdf = path.toStdString()};
  SaveDocument(Document(), answers.Boxes(), presentation::CatalogueWords(), nullptr);
  EXPECT_EQ(BytesOf(*answers.pdf), "old");
  EXPECT_THAT(answers.failures, SizeIs(1));
  EXPECT_THAT(answers.done, IsEmpty());
}

TEST(PrintDocument, IsSilentWhenCancelledAndWhenDone) {
  const QTemporaryDir folder;
  for (const bool prints : {false, true}) {
    Answers answers{.prints = prints, .print_file = folder.filePath("page.pdf")};
    PagePrinter printer(answers.Boxes().ask_to_print);
    PrintDocument(Document(), printer, answers.Boxes(), presentation::CatalogueWords(), nullptr);
    EXPECT_THAT(answers.failures, IsEmpty());
    EXPECT_EQ(QFile::exists(answers.print_file), prints);
  }
}

TEST(PrintDocument, TellsOfAPrinterThatFails) {
  Answers answers{.prints = true, .print_file = "/no/such/folder/page.pdf"};
  PagePrinter printer(answers.Boxes().ask_to_print);
  PrintDocument(Document(), printer, answers.Boxes(), presentation::CatalogueWords(), nullptr);
  EXPECT_THAT(answers.failures, testing::ElementsAre("Impossibile stampare con la stampante selezionata."));
}

TEST(InstalledPrinters, RefusesAPrinterThatIsNotThere) {
  Answers answers;
  PagePrinter printer(answers.Boxes().ask_to_print);
  const PrinterChoice choice = InstalledPrinters(printer, answers.Boxes(), nullptr);
  EXPECT_FALSE(choice.select("no such printer"));
  EXPECT_EQ(printer.Settings().printer, QString());
}

}  // namespace
}  // namespace velmar::printing
