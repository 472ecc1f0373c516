#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kResultCommands[] = {"Salva", "mnuFileEsportaWord", "esp_excel", "tab_risultati",
                                           "confronta_risultati"};
constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";

/// Pixels of the chart in the colour of the calculated curve.
int CurvePixels(const WindowFixture& fixture) {
  constexpr QRgb kCurve = qRgb(0xA9, 0x03, 0x84);
  const QImage picture = fixture.Find<QWidget>("Picture1")->grab().toImage();
  int pixels = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) pixels += picture.pixel(x, y) == kCurve ? 1 : 0;
  }
  return pixels;
}

}  // namespace

/// When a result goes, and what shows it.
class ResultLifeTest : public QObject {
  Q_OBJECT

 private slots:
  void aNewThicknessTakesTheResultAway() {
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.Run();
    for (const char* name : kResultCommands) QVERIFY(fixture.Find<QAction>(name)->isEnabled());
    QVERIFY(!fixture.Find<QLabel>("Label4")->text().isEmpty());
    QVERIFY(CurvePixels(fixture) > 100);
    fixture.Find<QAction>("tab_risultati")->trigger();
    QVERIFY(!fixture.Find<QAction>("tab_risultati")->isEnabled());
    fixture.Type("Text5_0", "8");
    QCOMPARE(fixture.Find<QLabel>("Label4")->text(), QString());
    for (const char* name : kResultCommands) QVERIFY(!fixture.Find<QAction>(name)->isEnabled());
    QTRY_VERIFY(fixture.window->findChild<QWidget*>("Form4") == nullptr);
    QVERIFY(!fixture.Find<QWidget>("Check3")->isEnabled());
    QCOMPARE(CurvePixels(fixture), 0);
  }

  void aDeclinedRangeLeavesNoResult() {
    WindowFixture fixture;
    fixture.go_on = false;
    fixture.Choose("TIPO_PARETE_SINGOLA_2");
    fixture.Type("Text5_0", "1");
    fixture.Run();
    QCOMPARE(fixture.asked.size(), 1);
    QVERIFY(fixture.asked.first().contains('\n'));
    QVERIFY(fixture.told.isEmpty());
    QVERIFY(!fixture.open.Result());
  }

  void aClickOnATabChangesNothing() {
    WindowFixture fixture;
    fixture.Choose(kDoubleGeneric);
    fixture.Run();
    const elements::Setup before = fixture.open.Setup();
    const bool saved = fixture.open.IsSaved();
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    QTest::mouseClick(strip->tabBar(), Qt::LeftButton, {}, strip->tabBar()->tabRect(2).center());
    QVERIFY(fixture.open.Setup() == before);
    QCOMPARE(fixture.open.IsSaved(), saved);
    QVERIFY(fixture.open.Result());
  }

  // A result belongs to what is entered, ratings, bands and areas included.
  void everyInputOfAFacadeTakesTheResultAway() {
    WindowFixture fixture;
    fixture.file = QString(EXAMPLES) + "/facciata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    const auto type_after_a_run = [&fixture](const char* field) {
      fixture.Run();
      QVERIFY2(fixture.open.Result(), qPrintable(fixture.told.join('\n')));
      fixture.Type(field, field == QString("Text7") ? "60,5" : "1,5");
      QVERIFY2(!fixture.open.Result(), field);
    };
    for (const char* field : {"Text13_5", "Text7", "Text23_0", "Text12_4"}) type_after_a_run(field);
    fixture.save = false;
    fixture.file = QString(EXAMPLES) + "/facciata-semplificata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    for (const char* field : {"Text25", "Text27", "Text24_0", "Text29_0"}) type_after_a_run(field);
  }

  void aLevelThatIsNoNumberIsClearedWithoutABox() {
    WindowFixture fixture;
    fixture.file = QString(EXAMPLES) + "/facciata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    fixture.Type("Text13_5", "1E");
    QCOMPARE(fixture.Find<QLineEdit>("Text13_5")->text(), QString());
    QVERIFY(fixture.told.isEmpty());
  }

  void aTightnessClassTakesTheResultAway() {
    WindowFixture fixture;
    fixture.file = QString(EXAMPLES) + "/facciata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    fixture.Run();
    auto* list = fixture.Find<QComboBox>("ComboTenutaAria_0");
    QCOMPARE(list->count(), 5);
    QTest::keyClick(list, list->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
    QVERIFY(!fixture.open.Result());
  }

  void theTableIsCopiedWithTabsAndLineFeeds() {
    WindowFixture fixture;
    fixture.Choose("cal_solaio_new_0");
    fixture.Run();
    QVERIFY2(fixture.open.Result(), qPrintable(fixture.told.join('\n')));
    fixture.Find<QAction>("tab_risultati")->trigger();
    auto* copy = fixture.Find<QWidget>("Form4")->findChild<QAbstractButton*>("Command1_1");
    copy->click();
    QVERIFY(!copy->isEnabled());
    const QStringList rows = QGuiApplication::clipboard()->text().split('\n');
    QCOMPARE(rows.size(), 26);
    QVERIFY(rows.at(0).startsWith("Frequenza [Hz]\tLi [dB]\tRif [dB]"));
    QVERIFY(rows.at(22).startsWith("Lnw [dB]\t"));
    QCOMPARE(rows.at(24).count('\t'), 1);
    fixture.Find<QWidget>("Form4")->findChild<QAbstractButton*>("Command1_0")->click();
    QTRY_VERIFY(fixture.Find<QAction>("tab_risultati")->isEnabled());
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ResultLifeTest)
#include "result_life_test.moc"
