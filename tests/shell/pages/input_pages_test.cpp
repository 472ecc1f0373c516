#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "elements/layer_groups.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// Rules of the input fields, by keys and clicks.
class InputPagesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowExposed(fixture_->window.get()));
  }
  void cleanup() { fixture_.reset(); }

  // The number beside a row is the one that the section and the papers give its layer.
  void aRowShowsTheNumberOfItsLayerInTheElement() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->open.Edit([](elements::Setup& setup) {
      setup.leaf1.count = 2;
      setup.leaf2.count = 1;
    });
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    QCOMPARE(fixture_->Find<QLabel>("NumeroCombo3_1")->text(), QString("2"));
    QCOMPARE(fixture_->Find<QLabel>("NumeroCombo4_0")->text(), QString("3"));
    fixture_->Choose("mnuCalcoloControplaccaggiScelta_1");
    QCOMPARE(fixture_->Find<QLabel>("NumeroComboMatNormaleSEA2_0")->text(), QString("3"));
  }

  void aThicknessOfNoughtBecomesTen() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "0");
    Leave("Text5_0");
    QCOMPARE(TextOf("Text5_0"), "10");
    fixture_->Type("Text5_0", "12.5");
    QCOMPARE(TextOf("Text5_0"), "12,5");
    QCOMPARE(fixture_->open.Setup().leaf1.rows.at(0).slot.thickness_mm, 12.5);
    fixture_->Type("Text5_0", "1e3");
    QCOMPARE(fixture_->open.Setup().leaf1.rows.at(0).slot.thickness_mm, 1000.0);
  }

  void aCavityIsAsDeepAsItsFibre() {
    OpenCavity("TIPO_PARETE_DOPPIA_3");
    Click("Option2_1");
    QVERIFY(Field("Text31")->isVisible());
    fixture_->Type("Text9", "40");
    fixture_->Type("Text31", "60");
    QCOMPARE(TextOf("Text9"), "60");
    fixture_->Type("Text9", "5");
    Leave("Text9");
    QCOMPARE(TextOf("Text9"), "60");
    Click("Option2_0");
    QCOMPARE(TextOf("Text31"), "0");
    QVERIFY(!Field("Text31")->isEnabled());
  }

  void aCavityIsAsDeepAsItsLayers() {
    OpenCavity("TIPO_PARETE_DOPPIA_0");
    Click("Option2_2");
    fixture_->Type("Text26_0", "150");
    QCOMPARE(TextOf("Text9"), "150");
    fixture_->Type("Text9", "20");
    Leave("Text9");
    QCOMPARE(TextOf("Text9"), "150");
  }

  void aSeaCavityShowsTheRowsOfItsType() {
    fixture_->Choose("TIPO_PARETE_SEA_0");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(8);
    auto* type = fixture_->Find<QComboBox>("ComboTipoIntercSEA");
    QCOMPARE(type->count(), 7);
    constexpr std::array kFibres = {0, 1, 1, 1, 2, 2, 3};
    constexpr std::array kMasses = {0, 0, 1, 2, 1, 2, 2};
    for (std::size_t index = 0; index < kFibres.size(); ++index) {
      emit type->activated(static_cast<int>(index));
      QCOMPARE(VisibleRows(elements::LayerGroup::kSeaCavityFibre), kFibres.at(index));
      QCOMPARE(VisibleRows(elements::LayerGroup::kSeaCavityMass), kMasses.at(index));
    }
    fixture_->Type("TextSpessoreIntercSEA", "1");
    Leave("TextSpessoreIntercSEA");
    QVERIFY(TextOf("TextSpessoreIntercSEA").toInt() > 1);
  }

  void aLiningOffersTwoCavities() {
    fixture_->Choose("mnuCalcoloControplaccaggiScelta_2");
    QCOMPARE(fixture_->Find<QComboBox>("ComboTipoIntercSEA")->count(), 2);
    QCOMPARE(fixture_->Find<QComboBox>("ComboTipoIntercSEA")->currentIndex(), 1);
  }

  void aMaterialIsFoundByTypingAndAnUnknownOneChangesNothing() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    QVERIFY(box->count() > 10);
    const QString name = box->itemText(5);
    TypeMaterial(box, name.toLower());
    QCOMPARE(box->currentText(), name);
    QCOMPARE(QString::fromStdString(fixture_->open.Setup().leaf1.rows.at(0).listed), name);
    TypeMaterial(box, "non esiste");
    QCOMPARE(box->currentText(), name);
    QCOMPARE(QString::fromStdString(fixture_->open.Setup().leaf1.rows.at(0).listed), name);
  }

  void aMaterialThatIsNotThereLeavesTheResult() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Run();
    const elements::Setup before = fixture_->open.Setup();
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    TypeMaterial(box, "criptonite");
    QVERIFY(fixture_->open.Setup() == before);
    QVERIFY(fixture_->open.Result());
  }

  void aCavityDepthOfNoughtIsToldWhenItsFieldIsLeft() {
    OpenCavity("TIPO_PARETE_DOPPIA_0");
    fixture_->Type("Text9", "0");
    QCOMPARE(fixture_->told.size(), 0);
    Leave("Text9");
    QCOMPARE(fixture_->told.size(), 1);
    QCOMPARE(TextOf("Text9"), "10");
  }

  void aSmallElementHasADashForItsArea() {
    fixture_->Choose("cal_facciata");
    fixture_->Type("Text7", "10");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    fixture_->Type("Text23_0", "2.5");
    QCOMPARE(fixture_->Find<QLabel>("Label19_0")->text(), QString("25,0%"));
    fixture_->Type("Text23_0", "-");
    QCOMPARE(fixture_->open.Setup().facade.components.at(0).area_text, std::string("-"));
    QCOMPARE(TextOf("Text23_0"), "-");
    QCOMPARE(fixture_->Find<QLabel>("Label19_0")->text(), QString("0,0%"));
  }

  void aFacadeOfRatingsFitsIntoALaptop() {
    fixture_->window->resize(1366, 768);
    fixture_->window->OpenProject(EXAMPLES "/facciata-semplificata.drav");
    auto* strip = fixture_->Find<QTabWidget>("SSTab1");
    strip->setCurrentIndex(5);
    const auto* area = qobject_cast<QScrollArea*>(strip->currentWidget());
    QVERIFY(area != nullptr);
    QTRY_COMPARE(area->verticalScrollBar()->maximum(), 0);
  }

  void aFacadeWithoutAreaShowsNone() {
    fixture_->Choose("cal_facciata");
    fixture_->Type("Text7", "12,5");
    QVERIFY(fixture_->Find<QWidget>("LabelArea")->isVisible());
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    QVERIFY(!fixture_->Find<QWidget>("LabelArea")->isVisible());
  }

  // A light double wall divides by the loss factor of the run before, so a second run may differ.
  void anOpenTableShowsTheResultOfTheLastRun() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_LEGGERA_LLPI_0");
    fixture_->Run();
    QVERIFY2(fixture_->open.Result(), qPrintable(fixture_->told.join('\n')));
    fixture_->Choose("tab_risultati");
    auto* table = fixture_->Find<QTableWidget>("Tabella");
    for (int run = 0; run < 3; ++run) {
      fixture_->Run();
      QVERIFY(fixture_->open.Result().has_value());
      const auto expected = presentation::ResultsTableOf(fixture_->open.Setup(), *fixture_->open.Result(),
                                                         fixture_->services.words);
      for (int row = 0; row < table->rowCount(); ++row) {
        QCOMPARE(table->item(row, 1)->text(),
                 QString::fromStdString(expected.rows.at(static_cast<std::size_t>(row)).value));
      }
    }
  }

  void theResultsGetTheRoomThatTheInputsLeave() {
    fixture_->window->resize(1600, 800);
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    QTest::qWait(1);
    const int inputs = fixture_->Find<QWidget>("SSTab1")->width();
    QVERIFY2(inputs <= 640, qPrintable(QString::number(inputs)));
    QVERIFY(fixture_->Find<QWidget>("prnFrame1")->width() > inputs);
  }

 private:
  QLineEdit* Field(const QString& name) { return fixture_->Find<QLineEdit>(name); }
  QString TextOf(const QString& name) { return Field(name)->text(); }
  void Click(const QString& option) { fixture_->Find<QRadioButton>(option)->click(); }
  void OpenCavity(const char* control) {
    fixture_->Choose(control);
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
  }
  void Leave(const QString& name) {
    QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(Field(name), &left);
  }
  void TypeMaterial(QComboBox* box, const QString& name) {
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), name);
    // The list of matches takes the keys while it is open.
    QWidget* matches = box->completer()->popup();
    QTest::keyClick(matches->isVisible() ? matches : box, Qt::Key_Tab);
    Field("Text5_0")->setFocus();
  }
  int VisibleRows(elements::LayerGroup group) {
    const elements::LayerGroupRow& row = RowOf(group);
    int visible = 0;
    for (int i = 0; i < row.capacity; ++i) {
      const QString name = QString::fromStdString(std::string(row.list)) + '_' + QString::number(i);
      visible += fixture_->Find<QWidget>(name)->isVisible() ? 1 : 0;
    }
    return visible;
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::InputPagesTest)
#include "input_pages_test.moc"
