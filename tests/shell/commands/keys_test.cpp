#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";

}  // namespace

/// What keys and the wheel do.
class KeysTest : public QObject {
  Q_OBJECT

 private slots:
  void keysOfNumbersPass_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("exponent") << "1E-3"
                              << "1E-3";
    QTest::newRow("small e") << "1e-3"
                             << "1E-3";
    QTest::newRow("no leading exponent") << "E5"
                                         << "5";
    QTest::newRow("one exponent") << "1E2E3"
                                  << "1E23";
    QTest::newRow("comma") << "12,5"
                           << "12,5";
    QTest::newRow("point types the comma") << "12.5"
                                           << "12,5";
    QTest::newRow("one separator") << "1,2.3"
                                   << "1,23";
    QTest::newRow("no separator in the exponent") << "1E2,5"
                                                  << "1E25";
    QTest::newRow("no letters") << "1a2"
                                << "12";
    QTest::newRow("no minus") << "-5"
                              << "5";
    QTest::newRow("nought may begin a number") << "0,5"
                                               << "0,5";
  }

  void keysOfNumbersPass() {
    QFETCH(const QString, keys);
    QFETCH(const QString, text);
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.Type("Text5_0", keys);
    QCOMPARE(fixture.Find<QLineEdit>("Text5_0")->text(), text);
  }

  void enterGoesToTheNextField() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kSingleGeneric);
    fixture.Find<QLineEdit>("Text5_0")->setFocus();
    QTest::keyClick(fixture.Find<QLineEdit>("Text5_0"), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Combo2_0"));
  }

  void keysReachTabsAndRun() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kDoubleGeneric);
    QTest::keyClick(fixture.window.get(), Qt::Key_3, Qt::ControlModifier);
    QCOMPARE(fixture.Find<QTabWidget>("SSTab1")->currentIndex(), 2);
    QTest::keyClick(fixture.window.get(), Qt::Key_F5);
    QVERIFY(fixture.open.Result());
  }

  void theWheelMovesAListOnlyWithTheFocus() {
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    auto* list = fixture.Find<QComboBox>("Combo2_0");
    const elements::Setup before = fixture.open.Setup();
    QWheelEvent event({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &event);
    QVERIFY(fixture.open.Setup() == before);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::KeysTest)
#include "keys_test.moc"
