#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";

/// A layer list whose rows can be told by the visible boxes.
int VisibleRows(const WindowFixture& fixture, const QString& name, int capacity) {
  int rows = 0;
  for (int i = 0; i < capacity; ++i)
    rows += fixture.Find<QWidget>(name + '_' + QString::number(i))->isHidden() ? 0 : 1;
  return rows;
}

}  // namespace

/// Counts of rows, with their caps.
class CountListsTest : public QObject {
  Q_OBJECT

 private slots:
  void anEmptiedCountBecomesOne() {
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    auto* count = fixture.Find<QComboBox>("Combo1");
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "3");
    QCOMPARE(VisibleRows(fixture, "Combo3", 10), 3);
    count->lineEdit()->selectAll();
    QTest::keyClick(count, Qt::Key_Backspace);
    QCOMPARE(count->currentText(), QString("1"));
    QCOMPARE(VisibleRows(fixture, "Combo3", 10), 1);
  }

  void aCavityCountAboveSevenCapsTheSecondLeaf() {
    WindowFixture fixture;
    fixture.Choose(kDoubleGeneric);
    fixture.Find<QRadioButton>("Option2_2")->click();
    auto* count = fixture.Find<QComboBox>("Combo18");
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "8");
    QCOMPARE(count->currentText(), QString("8"));
    QCOMPARE(fixture.Find<QComboBox>("Combo5")->currentText(), QString("7"));
    QCOMPARE(fixture.open.Setup().leaf2.count, 7);
    QCOMPARE(VisibleRows(fixture, "Combo9", 7), 7);
    fixture.Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    QCOMPARE(VisibleRows(fixture, "Combo4", 10), 7);
  }

  void aComponentCountAboveNineKeepsItsBlank() {
    WindowFixture fixture;
    fixture.Choose("cal_facciata");
    auto* count = fixture.Find<QComboBox>("Combo15");
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "12");
    QCOMPARE(count->currentText(), QString("9 "));
    for (int i = 0; i < 9; ++i) QVERIFY(fixture.Find<QTabWidget>("SSTab2")->isTabVisible(i));
  }

  void theSeaCavityShowsItsContents_data() {
    QTest::addColumn<int>("type");
    for (int type = 0; type < elements::kSeaCavityTypeCount; ++type)
      QTest::newRow(std::to_string(type).c_str()) << type;
  }

  void theSeaCavityShowsItsContents() {
    QFETCH(const int, type);
    WindowFixture fixture;
    fixture.Choose("TIPO_PARETE_DOPPIA_4");
    auto* list = fixture.Find<QComboBox>("ComboTipoIntercSEA");
    QCOMPARE(list->count(), 7);
    for (int i = 0; i < type; ++i) QTest::keyClick(list, Qt::Key_Down);
    const auto shown = static_cast<elements::SeaCavityType>(type);
    QCOMPARE(VisibleRows(fixture, "ComboMatFibraIntercSEA", 3), FibreCount(shown));
    QCOMPARE(VisibleRows(fixture, "ComboMatMassaIntercSEA", 2), MassCount(shown));
    QCOMPARE(VisibleRows(fixture, "ComboMatSmorzIntercSEA", 2), MassCount(shown));
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::CountListsTest)
#include "count_lists_test.moc"
