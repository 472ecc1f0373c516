#include "shell/results/continuous_calculation.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <atomic>
#include <thread>

#include "foundation/decimal.h"
#include "shell/project/open_work.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";
constexpr const char* kBrick = "TIPO_PARETE_SINGOLA_2";
constexpr const char* kSeaDouble = "TIPO_PARETE_DOPPIA_4";

QString Said(const WindowFixture& fixture, const char* label) {
  const auto* shown = fixture.Find<QLabel>(label);
  return shown->isVisible() ? shown->text() : QString();
}

/// Pixels of the chart in the colour of the curve before the last change.
int GhostPixels(const WindowFixture& fixture) {
  constexpr QRgb kGhost = qRgb(0xD9, 0x8F, 0xC9);
  const QImage picture = fixture.Find<QWidget>("Picture1")->grab().toImage();
  int pixels = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) pixels += picture.pixel(x, y) == kGhost ? 1 : 0;
  }
  return pixels;
}

bool IsThatOfItsSetup(const calculation::OpenCalculation& open) {
  const auto again = calculation::RunCalculation(open.Setup(), 0.0, [](const Message&) { return false; });
  return open.Result() && open.Result() == again.result;
}

/// A run whose length the test decides; its rating is the width of the set-up.
struct SlowRuns {
  std::atomic<bool> held{false};
  std::atomic<int> begun{0};

  ContinuousCalculation::Runner Runner() {
    return [this](const elements::Setup& setup) {
      ++begun;
      while (held) std::this_thread::sleep_for(std::chrono::milliseconds(1));
      calculation::RunOutcome outcome;
      outcome.status = calculation::RunStatus::kDone;
      outcome.result.emplace().rw = ParseDecimal(setup.width_text).value_or(0.0);
      return outcome;
    };
  }
};

}  // namespace

/// The continuous calculation, by itself and at the window.
class ContinuousCalculationTest : public QObject {
  Q_OBJECT

 private slots:
  void isOffAsShipped() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(!fixture.Find<QAction>("calcolo_continuo")->isChecked());
    fixture.Choose(kSingleGeneric);
    fixture.Type("Text5_0", "200");
    QVERIFY(!fixture.open.Result());
    fixture.Run();
    fixture.Type("Text5_0", "100");
    QVERIFY(!fixture.open.Result());
    QCOMPARE(Said(fixture, "LabelPrima"), QString());
  }

  void typingOneNumberIsOneDifference() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    Switch(fixture);
    fixture.Choose(kSingleGeneric);
    fixture.Type("Text5_0", "100");
    QTRY_VERIFY(fixture.open.Result());
    const elements::ResultSet thin = *fixture.open.Result();
    fixture.Find<QWidget>("Combo1")->setFocus();
    fixture.Type("Text5_0", "250");
    QTRY_VERIFY(IsThatOfItsSetup(fixture.open));
    const elements::ResultSet thick = *fixture.open.Result();
    const auto whole = [](double value) { return QString::number(value).replace('-', "−"); };
    QCOMPARE(Said(fixture, "LabelPrima"),
             "prima " + whole(*thin.rw) + " (" + whole(*thin.c) + "; " + whole(*thin.ctr) + ')');
    QCOMPARE(Said(fixture, "LabelDifferenza"), "▲ +" + QString::number(*thick.rw - *thin.rw));
    QVERIFY(GhostPixels(fixture) > 100);
    QVERIFY(!fixture.Results().Chart()->marks.former);
    QVERIFY(fixture.told.isEmpty() && fixture.asked.isEmpty());
  }

  void arrowsAndWheelChangeTheThickness() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    Switch(fixture);
    fixture.Choose(kSingleGeneric);
    fixture.Type("Text5_0", "12,5");
    auto* field = fixture.Find<QLineEdit>("Text5_0");
    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(field->text(), QString("13,5"));
    QTest::keyClick(field, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(fixture.open.Setup().leaf1.rows[0].slot.thickness_mm, 23.5);
    QTRY_VERIFY(IsThatOfItsSetup(fixture.open));
    Turn(*field, -120);
    QCOMPARE(field->text(), QString("22,5"));
    fixture.Find<QWidget>("Combo1")->setFocus();
    Turn(*field, -120);
    QCOMPARE(field->text(), QString("22,5"));
    fixture.Type("Text5_0", "1");
    QTest::keyClick(field, Qt::Key_Down);
    QCOMPARE(field->text(), QString("1"));
  }

  void aQuestionIsSaidAndAskedByTheRunCommand() {
    WindowFixture fixture;
    fixture.window->show();
    Switch(fixture);
    fixture.Choose(kBrick);
    fixture.Type("Text5_0", "1");
    QVERIFY(!fixture.open.Result());
    QVERIFY(fixture.asked.isEmpty());
    QTRY_VERIFY2(Said(fixture, "LabelContinuo").endsWith("Premere F5 per rispondere."),
                 qPrintable(Said(fixture, "LabelContinuo")));
    fixture.Run();
    QCOMPARE(fixture.asked.size(), 1);
    QVERIFY(fixture.open.Result());
    QCOMPARE(Said(fixture, "LabelContinuo"), QString());
  }

  void aRefusalIsSaidWithoutABox() {
    WindowFixture fixture;
    fixture.window->show();
    Switch(fixture);
    fixture.Choose(kSeaDouble);
    fixture.open.Edit([](elements::Setup& setup) { setup.width_text = "0"; });
    QTRY_VERIFY(!Said(fixture, "LabelContinuo").isEmpty() &&
                !Said(fixture, "LabelContinuo").startsWith("Calcolo in corso"));
    QVERIFY(!fixture.open.Result());
    QVERIFY(fixture.told.isEmpty());
  }

  void anEmptiedFieldIsNotFilledUnderTheHand() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    Switch(fixture);
    fixture.Choose(kDoubleGeneric);
    QTRY_VERIFY(fixture.open.Result());
    auto* tabs = fixture.Find<QTabWidget>("SSTab1");
    for (int i = 0; i < tabs->count(); ++i) {
      if (tabs->widget(i)->findChild<QWidget*>("Text9") != nullptr) tabs->setCurrentIndex(i);
    }
    auto* depth = fixture.Find<QLineEdit>("Text9");
    depth->setFocus();
    depth->selectAll();
    QTest::keyClick(depth, Qt::Key_Backspace);
    QCOMPARE(depth->text(), QString());
    QCOMPARE(fixture.open.Setup().cavity.depth_text, std::string());
    QVERIFY(Said(fixture, "LabelContinuo").startsWith("Immissione in corso"));
    QTest::keyClicks(depth, "60");
    QCOMPARE(depth->text(), QString("60"));
    QTRY_VERIFY(IsThatOfItsSetup(fixture.open));
  }

  void aStepBackCalculatesToo() {
    WindowFixture fixture;
    fixture.window->show();
    Switch(fixture);
    fixture.Choose(kSingleGeneric);
    fixture.Type("Text5_0", "100");
    QTRY_VERIFY(fixture.open.Result());
    const auto thin = fixture.open.Result();
    fixture.open.EndStep();
    fixture.Type("Text5_0", "250");
    fixture.Find<QAction>("annulla")->trigger();
    QTRY_VERIFY(fixture.open.Result() == thin);
    QVERIFY(Said(fixture, "LabelDifferenza").startsWith("▼ −"));
  }

  void aRequiredRatingIsNoDifference() {
    WindowFixture fixture;
    fixture.window->show();
    Switch(fixture);
    fixture.Choose(kSingleGeneric);
    QTRY_VERIFY(fixture.open.Result());
    fixture.Type("Text5_0", "100");
    QTRY_VERIFY(fixture.open.Result());
    const QString before = Said(fixture, "LabelPrima");
    const QString difference = Said(fixture, "LabelDifferenza");
    fixture.Type("TextRequisito", "50");
    QCOMPARE(Said(fixture, "LabelPrima"), before);
    QCOMPARE(Said(fixture, "LabelDifferenza"), difference);
  }

  // Tables and comparisons close when a result goes; one that is replaced in time does not go.
  void aResultThatIsReplacedInTimeIsNotGone() {
    calculation::OpenCalculation open;
    SlowRuns runs;
    OpenWork work(open);
    ContinuousCalculation continuous(open, runs.Runner());
    connect(&work, &OpenWork::AboutToTell, &continuous, &ContinuousCalculation::Follow);
    continuous.Switch(true);
    Edit(open, "40");
    QTRY_VERIFY(open.Result());
    int gone = 0;
    connect(&work, &OpenWork::ResultGone, this, [&gone] { ++gone; });
    Edit(open, "41");
    // A busy machine may take longer than the window waits.
    QCOMPARE(gone, open.Result() ? 0 : 1);
    QTRY_COMPARE(open.Result().value_or(elements::ResultSet()).rw, std::optional(41.0));
  }

  void theSwitchIsRemembered() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.services.places.settings = folder.filePath("finestra.ini").toStdString();
    fixture.MakeWindow();
    fixture.window->show();
    Switch(fixture);
    fixture.MakeWindow();
    QVERIFY(fixture.Find<QAction>("calcolo_continuo")->isChecked());
    fixture.window->show();
    fixture.Choose(kSingleGeneric);
    QTRY_VERIFY(fixture.open.Result());
    Switch(fixture);
    QVERIFY(fixture.open.Result());
    fixture.Type("Text5_0", "250");
    QVERIFY(!fixture.open.Result());
  }

  void openingCalculatesAndLeavesTheProjectSaved() {
    WindowFixture fixture;
    fixture.window->show();
    Switch(fixture);
    fixture.file = QString(EXAMPLES) + "/parete-forato-intonacata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    QTRY_VERIFY(IsThatOfItsSetup(fixture.open));
    QVERIFY(fixture.open.IsSaved());
    QCOMPARE(Said(fixture, "LabelPrima"), QString());
  }

  void aLongRunGoesOnBesideTheWindow() {
    calculation::OpenCalculation open;
    SlowRuns runs;
    OpenWork work(open);
    ContinuousCalculation continuous(open, runs.Runner());
    connect(&work, &OpenWork::AboutToTell, &continuous, &ContinuousCalculation::Follow);
    continuous.Switch(true);
    runs.held = true;
    Edit(open, "40");
    QVERIFY(!open.Result());
    QCOMPARE(continuous.WaitsFor(), ContinuousCalculation::Wait::kRun);
    runs.held = false;
    QTRY_VERIFY(open.Result());
    QCOMPARE(*open.Result()->rw, 40.0);
  }

  void theNewestChangeWins() {
    calculation::OpenCalculation open;
    SlowRuns runs;
    OpenWork work(open);
    ContinuousCalculation continuous(open, runs.Runner());
    connect(&work, &OpenWork::AboutToTell, &continuous, &ContinuousCalculation::Follow);
    continuous.Switch(true);
    runs.held = true;
    for (const char* width : {"40", "41", "42", "43"}) Edit(open, width);
    QCOMPARE(runs.begun.load(), 1);
    runs.held = false;
    QTRY_VERIFY(open.Result());
    QCOMPARE(*open.Result()->rw, 43.0);
    QCOMPARE(runs.begun.load(), 2);
  }

  void aRunThatIsSwitchedOffGivesNothing() {
    calculation::OpenCalculation open;
    SlowRuns runs;
    ContinuousCalculation continuous(open, runs.Runner());
    OpenWork work(open);
    connect(&work, &OpenWork::AboutToTell, &continuous, &ContinuousCalculation::Follow);
    continuous.Switch(true);
    runs.held = true;
    Edit(open, "40");
    continuous.Switch(false);
    runs.held = false;
    QTest::qWait(60);
    QVERIFY(!open.Result());
  }

  void whatARunThrowsIsSaid() {
    calculation::OpenCalculation open;
    ContinuousCalculation continuous(
        open, [](const elements::Setup&) -> calculation::RunOutcome { throw std::runtime_error("broken"); });
    continuous.Switch(true);
    Edit(open, "40");
    continuous.Follow();
    QTRY_COMPARE(continuous.WaitsFor(), ContinuousCalculation::Wait::kCorrection);
    QVERIFY(!continuous.Reason().empty());
  }

 private:
  static void Switch(const WindowFixture& fixture) {
    QTest::mouseClick(fixture.Find<QAbstractButton>("Toolbar1_calcolo_continuo"), Qt::LeftButton);
  }
  static void Edit(calculation::OpenCalculation& open, const char* width) {
    open.Edit([&](elements::Setup& setup) {
      setup.calculation = elements::Calculation::kSingleWallGeneric;
      setup.width_text = width;
    });
  }
  static void Turn(QWidget& field, int angle) {
    QWheelEvent turn(QPointF(5, 5), field.mapToGlobal(QPointF(5, 5)), {}, {0, angle}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &turn);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ContinuousCalculationTest)
#include "continuous_calculation_test.moc"
