#include "shell/printing/page_printer.h"

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "tests/shell/printing/sample_page.h"

namespace velmar::printing {
namespace {

/// An answer that prints into `file` on a sheet of `size`.
AskToPrint IntoFile(const QString& file, QPageSize::PageSizeId size = QPageSize::A4,
                    QPageLayout::Orientation orientation = QPageLayout::Portrait) {
  return [=](QWidget*, QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(size));
    printer.setPageOrientation(orientation);
    return true;
  };
}

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(PagePrinter, PrintsAsManySheetsAsThePageTakes) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("page.pdf");
  PagePrinter printer(IntoFile(file));
  EXPECT_EQ(printer.Print(SamplePage(), "Parete", nullptr), PrintOutcome::kPrinted);
  const QByteArray bytes = BytesOf(file);
  EXPECT_TRUE(bytes.startsWith("%PDF"));
  EXPECT_TRUE(bytes.contains("/Count 2\n")) << bytes.size();
  EXPECT_GT(bytes.size(), 5000);
}

TEST(PagePrinter, ACancelledDialogLeavesNoTrace) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("page.pdf");
  PrinterSettings before;
  before.printer = QStringLiteral("Ufficio");
  before.layout.setPageSize(QPageSize(QPageSize::A3));
  PagePrinter printer(
      [&](QWidget* parent, QPrinter& asked) {
        EXPECT_EQ(asked.pageLayout().pageSize().id(), QPageSize::A3);
        IntoFile(file, QPageSize::A5, QPageLayout::Landscape)(parent, asked);
        return false;
      },
      before);
  EXPECT_EQ(printer.Print(SamplePage(), "Parete", nullptr), PrintOutcome::kCancelled);
  EXPECT_EQ(printer.Print(SamplePage(), "Parete", nullptr), PrintOutcome::kCancelled);
  EXPECT_FALSE(QFile::exists(file));
  EXPECT_EQ(printer.Settings().printer, before.printer);
  EXPECT_TRUE(printer.Settings().layout == before.layout);
}

TEST(PagePrinter, KeepsThePaperForTheNextPageAndThePreview) {
  const QTemporaryDir folder;
  PagePrinter printer(IntoFile(folder.filePath("page.pdf"), QPageSize::A5, QPageLayout::Landscape));
  ASSERT_EQ(printer.Print(SamplePage(), "Parete", nullptr), PrintOutcome::kPrinted);
  EXPECT_EQ(printer.Settings().layout.pageSize().id(), QPageSize::A5);
  const QSizeF twips = printer.Paper().paper_twips;
  EXPECT_NEAR(twips.width(), 11906, 20);
  EXPECT_NEAR(twips.height(), 8391, 20);
}

TEST(PagePrinter, TellsOfATargetThatCannotBeWritten) {
  PagePrinter printer(IntoFile("/no/such/folder/page.pdf"));
  EXPECT_EQ(printer.Print(SamplePage(), "Parete", nullptr), PrintOutcome::kFailed);
  EXPECT_EQ(printer.Settings().printer, QString());
}

TEST(PaperOf, GivesPaperAndPrintableAreaInTwips) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                    {10.0, 10.0, 10.0, 10.0}, QPageLayout::Millimeter, {5.0, 5.0, 5.0, 5.0}));
  const presentation::PrinterPaper paper = PaperOf(printer);
  EXPECT_NEAR(paper.paper_twips.width(), 297.0 / 25.4 * 1440.0, 20.0);
  EXPECT_NEAR(paper.paper_twips.height(), 210.0 / 25.4 * 1440.0, 20.0);
  EXPECT_LE(paper.printable_twips.width(), paper.paper_twips.width());
}

}  // namespace
}  // namespace velmar::printing
