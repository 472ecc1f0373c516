#include "shell/printing/print_preview.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QToolButton>
#include <QtTest/QTest>
#include <set>

#include <gtest/gtest.h>

#include "shell/printing/page_picture.h"
#include "tests/shell/printing/sample_page.h"

namespace velmar::printing {
namespace {

struct Asked {
  int prints = 0;
  int pdfs = 0;
  int choices = 0;
  presentation::PrinterPaper paper{.paper_twips = {11906, 16838}, .printable_twips = {11306, 16238}};
};

class ThePreview : public testing::Test {
 protected:
  ThePreview()
      : preview_({.page = SamplePage(),
                  .paper = [this] { return asked_.paper; },
                  .print = [this](QWidget*) { ++asked_.prints; },
                  .save_pdf = [this](QWidget*) { ++asked_.pdfs; },
                  .choose_printer = [this](QWidget*) { ++asked_.choices; }},
                 presentation::CatalogueWords()) {
    preview_.resize(700, 900);
    preview_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&preview_));
  }

  QSize Shown() const {
    const QSizeF all =
        preview_.findChild<QLabel*>("Picture1")->pixmap(Qt::ReturnByValue).deviceIndependentSize();
    // Of one sheet; they stand below each other.
    return QSizeF(all.width(), all.height() / PageCountOn(asked_.paper, SamplePage())).toSize();
  }
  void Trigger(const char* name) {
    QAction* action = preview_.findChild<QAction*>(name);
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
  }

  Asked asked_;
  PrintPreview preview_;
};

TEST_F(ThePreview, ShowsTheWholePageFittedToTheWindow) {
  const QSize page = Shown();
  EXPECT_LE(page.width(), preview_.width());
  EXPECT_LE(page.height(), preview_.height());
  EXPECT_GT(page.height(), 700);
  EXPECT_NEAR(static_cast<double>(page.width()) / page.height(), 210.0 / 297.0, 0.01);
  preview_.resize(500, 500);
  QTest::qWait(10);
  EXPECT_LT(Shown().height(), 500);
}

TEST_F(ThePreview, DrawsThePageItself) {
  const QImage image = preview_.findChild<QLabel*>("Picture1")
                           ->pixmap(Qt::ReturnByValue)
                           .toImage()
                           .convertToFormat(QImage::Format_RGB32);
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) inked += image.pixel(x, y) != qRgb(255, 255, 255);
  }
  EXPECT_GT(inked, image.width() * image.height() / 50);
}

TEST_F(ThePreview, ZoomsByKeyAndStaysWithinLimits) {
  const double fitted = preview_.Zoom();
  QTest::keyClick(&preview_, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(preview_.Zoom(), fitted * 1.25, 1e-9);
  QTest::keyClick(&preview_, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(preview_.Zoom(), 1.0);
  EXPECT_NEAR(Shown().width(), 8.27 * preview_.logicalDpiX(), 2.0);
  for (int i = 0; i < 20; ++i) QTest::keyClick(&preview_, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(preview_.Zoom(), 4.0);
  for (int i = 0; i < 30; ++i) QTest::keyClick(&preview_, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(preview_.Zoom(), 0.1);
  QTest::keyClick(&preview_, Qt::Key_0, Qt::ControlModifier);
  EXPECT_NEAR(preview_.Zoom(), fitted, 1e-9);
}

TEST_F(ThePreview, PrintsSavesAndChoosesThePrinterByKeyAndButton) {
  QTest::keyClick(&preview_, Qt::Key_P, Qt::ControlModifier);
  Trigger("print");
  QTest::keyClick(&preview_, Qt::Key_S, Qt::ControlModifier);
  Trigger("save_pdf");
  EXPECT_EQ(asked_.prints, 2);
  QTest::keyClick(&preview_, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  Trigger("choose_printer");
  EXPECT_EQ(asked_.pdfs, 2);
  EXPECT_EQ(asked_.choices, 2);
  EXPECT_TRUE(preview_.isVisible());
}

TEST_F(ThePreview, EveryButtonIsReachedByTabAndNamed) {
  std::set<QString> reached;
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    if (const auto* button = qobject_cast<QToolButton*>(QApplication::focusWidget()))
      reached.insert(button->accessibleName());
  }
  EXPECT_EQ(reached,
            (std::set<QString>{"Stampa", "Salva come PDF", "Seleziona stampante", "Riduci", "Ingrandisci",
                               "Adatta alla finestra", "Dimensioni reali", "Chiudi"}));
}

TEST_F(ThePreview, FollowsThePaperChosenWhenPrinting) {
  asked_.paper = {.paper_twips = {16838, 11906}, .printable_twips = {16838, 11906}};
  Trigger("print");
  EXPECT_GT(Shown().width(), Shown().height());
}

TEST_F(ThePreview, ClosesByEscAndButton) {
  QTest::keyClick(&preview_, Qt::Key_Escape);
  EXPECT_FALSE(preview_.isVisible());
  preview_.show();
  Trigger("close");
  EXPECT_FALSE(preview_.isVisible());
}

}  // namespace
}  // namespace velmar::printing
