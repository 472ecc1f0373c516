#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

using elements::CavityConnection;
using elements::StratumKind;

/// The free list of layers, by keys and clicks.
class MultilayerPageTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowExposed(fixture_->window.get()));
    fixture_->Choose("MULTISTRATO");
  }
  void cleanup() { fixture_.reset(); }

  void beginsWithTwoPlatesAndAirAndRuns() {
    QCOMPARE(Kinds(), QStringList({"Lastra", "Aria", "Lastra"}));
    fixture_->Run();
    QVERIFY(fixture_->open.Result().has_value());
  }

  void aTripleGlazingIsEnteredByHand() {
    fixture_->Find<QPushButton>("CommandAggiungiStrato")->click();
    fixture_->Find<QPushButton>("CommandAggiungiStrato")->click();
    QCOMPARE(Kinds(), QStringList({"Lastra", "Aria", "Lastra", "Aria", "Lastra"}));
    for (const int row : {0, 2, 4}) {
      ChooseMaterial(row, "Vetro float");
      fixture_->Type("TextSpessoreMatStrato_" + QString::number(row), "4");
    }
    fixture_->Type("TextSpessoreStrato_1", "12");
    fixture_->Type("TextSpessoreStrato_3", "12");
    QCOMPARE(fixture_->Find<QLabel>("Text3")->text(), QString("36"));
    fixture_->Run();
    QVERIFY(fixture_->open.Result().has_value());
    // Declared for such units: 31 to 33 dB.
    QVERIFY2(std::abs(*fixture_->open.Result()->rw - 32.0) <= 3.0,
             qPrintable(QString::number(*fixture_->open.Result()->rw)));
  }

  void rowsMoveAndEachPressIsUndoneByItself() {
    const elements::Setup before = fixture_->open.Setup();
    Menu("StratoSu", 1);
    QCOMPARE(Kinds(), QStringList({"Aria", "Lastra", "Lastra"}));
    Menu("StratoGiu", 1);
    QCOMPARE(Kinds(), QStringList({"Aria", "Lastra", "Lastra"}));
    QVERIFY(!Action("StratoSu", 0)->isEnabled());
    QVERIFY(!Action("StratoGiu", 2)->isEnabled());
    Menu("StratoInserisciSotto", 2);
    Menu("StratoInserisciSotto", 2);
    QCOMPARE(Kinds().size(), 5);
    fixture_->Find<QAction>("annulla")->trigger();
    QCOMPARE(Kinds().size(), 4);
    while (fixture_->open.Steps().ToUndo()) fixture_->Find<QAction>("annulla")->trigger();
    // The choice of the calculation is a step too.
    while (fixture_->open.Setup() != before && fixture_->open.Steps().ToRedo())
      fixture_->Find<QAction>("ripeti")->trigger();
    QVERIFY(fixture_->open.Setup() == before);
  }

  void theKeyboardMovesTheRowItIsIn() {
    auto* kind = fixture_->Find<QComboBox>("ComboTipoStrato_1");
    kind->setFocus();
    QTest::keyClick(kind, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Kinds(), QStringList({"Lastra", "Lastra", "Aria"}));
    auto* there = fixture_->Find<QComboBox>("ComboTipoStrato_2");
    QVERIFY(there->hasFocus());
    QTest::keyClick(there, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Kinds(), QStringList({"Lastra", "Lastra", "Aria"}));
    QTest::keyClick(there, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Kinds(), QStringList({"Lastra", "Aria", "Lastra"}));
  }

  void theKeyboardMovesTheRowFromItsMaterialToo() {
    ChooseMaterial(0, "Vetro float");
    auto* material = fixture_->Find<QComboBox>("ComboMatStrato_0");
    material->setFocus();
    QTest::keyClick(material, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Kinds(), QStringList({"Aria", "Lastra", "Lastra"}));
    QCOMPARE(fixture_->Find<QComboBox>("ComboMatStrato_1")->currentText(), QString("Vetro float"));
  }

  void aRowHasOneMenuWithWhatItsMaterialOffers() {
    for (int row = 0; row < 3; ++row) {
      auto* button = fixture_->Find<QToolButton>("CommandAzioniStrato_" + QString::number(row));
      const QRect place(button->mapTo(fixture_->window.get(), QPoint()), button->size());
      for (const QAbstractButton* other : fixture_->window->findChildren<QAbstractButton*>()) {
        if (other == button || !other->isVisible()) continue;
        const QRect there(other->mapTo(fixture_->window.get(), QPoint()), other->size());
        QVERIFY2(!there.intersects(place), qPrintable(other->objectName()));
      }
    }
    ChooseMaterial(0, "Vetro float");
    const auto offers = [this](int row) {
      QMenu* menu = fixture_->Find<QToolButton>("CommandAzioniStrato_" + QString::number(row))->menu();
      menu->popup({});
      QStringList names;
      for (const QAction* action : menu->actions()) names += action->objectName();
      menu->close();
      return names;
    };
    // A second time it is not longer than the first.
    for (int time = 0; time < 2; ++time) QCOMPARE(offers(0).count("preferito"), 1);
    QVERIFY(offers(0).contains("StratoDuplica_0"));
    QVERIFY(!offers(1).contains("preferito"));
    ChooseKind(1, StratumKind::kFibre);
    ChooseFibre(1, "Lana di roccia 40");
    QCOMPARE(offers(1).count("preferito"), 1);
  }

  void everyKindAndConnectionFitsIntoALaptop() {
    fixture_->window->resize(1366, 768);
    auto* strip = fixture_->Find<QTabWidget>("SSTab1");
    const auto* area = qobject_cast<QScrollArea*>(strip->currentWidget());
    QVERIFY(area != nullptr);
    for (int row = 0; row < 9; ++row) fixture_->Find<QPushButton>("CommandAggiungiStrato")->click();
    const int kinds = fixture_->Find<QComboBox>("ComboTipoStrato_1")->count();
    for (int kind = 0; kind < kinds; ++kind) {
      Pick("ComboTipoStrato_1", kind);
      auto* connection = fixture_->Find<QComboBox>("ComboCollegamento_1");
      for (int item = 0; item < connection->count(); ++item) {
        if (connection->isVisible()) Pick("ComboCollegamento_1", item);
        QTest::qWait(0);
        QVERIFY2(area->horizontalScrollBar()->maximum() == 0,
                 qPrintable(QString("kind %1, connection %2").arg(kind).arg(item)));
      }
    }
  }

  void duplicateAndDelete() {
    Menu("StratoDuplica", 1);
    QCOMPARE(Kinds(), QStringList({"Lastra", "Aria", "Aria", "Lastra"}));
    Menu("StratoElimina", 0);
    Menu("StratoElimina", 0);
    Menu("StratoElimina", 0);
    QCOMPARE(Kinds(), QStringList({"Lastra"}));
    QVERIFY(!Action("StratoElimina", 0)->isEnabled());
  }

  void aRowShowsWhatItsKindReads() {
    QVERIFY(Shown("ComboMatStrato_0") && Shown("TextSpessoreMatStrato_0") && Shown("ComboLastre_0"));
    QVERIFY(Shown("TextSpessoreStrato_1") && Shown("ComboCollegamento_1"));
    QVERIFY(!Shown("ComboMatStrato_1") && !Shown("TextCollegamento_1") && !Shown("TextAltezzaGreca_1"));
    ChooseKind(1, StratumKind::kFibre);
    QVERIFY(Shown("ComboFibraStrato_1") && !Shown("TextSpessoreStrato_1"));
    Pick("ComboCollegamento_1", static_cast<int>(CavityConnection::kSteelStuds));
    QVERIFY(Shown("TextCollegamento_1"));
    fixture_->Type("TextCollegamento_1", "40");
    QCOMPARE(QString::fromStdString(fixture_->open.Setup().multilayer.strata[1].connection_text), "40");
    ChooseKind(0, StratumKind::kProfiledSheet);
    QVERIFY(Shown("TextAltezzaGreca_0") && Shown("TextPassoGreca_0") && !Shown("ComboCollegamento_0"));
    ChooseKind(1, StratumKind::kInterlayer);
    QCOMPARE(fixture_->Find<QLineEdit>("TextSpessoreStrato_1")->text(), QString("0,76"));
  }

  void numbersAreThoseOfTheSection() {
    ChooseKind(1, StratumKind::kFibre);
    QCOMPARE(fixture_->Find<QLabel>("NumeroComboMatStrato_0")->text(), QString("1"));
    QCOMPARE(fixture_->Find<QLabel>("NumeroComboFibraStrato_1")->text(), QString("2"));
    QCOMPARE(fixture_->Find<QLabel>("NumeroComboMatStrato_2")->text(), QString("3"));
    ChooseKind(1, StratumKind::kAir);
    QCOMPARE(fixture_->Find<QLabel>("NumeroComboMatStrato_2")->text(), QString("2"));
  }

  void aRefusalLeadsToItsField() {
    fixture_->Type("TextSpessoreStrato_1", "6000");
    fixture_->Run();
    QVERIFY(!fixture_->open.Result());
    QVERIFY(fixture_->told.join(' ').contains("Aria"));
    QVERIFY(fixture_->Find<QLineEdit>("TextSpessoreStrato_1")->hasFocus());
  }

  void tracksAreAnInput() {
    fixture_->Run();
    fixture_->Find<QCheckBox>("CheckGuide")->click();
    QVERIFY(fixture_->open.Setup().multilayer.framed);
    QVERIFY(!fixture_->open.Result());
  }

 private:
  QStringList Kinds() const {
    QStringList kinds;
    for (int row = 0; row < fixture_->open.Setup().multilayer.Count(); ++row)
      kinds += fixture_->Find<QComboBox>("ComboTipoStrato_" + QString::number(row))->currentText();
    return kinds;
  }
  QAction* Action(const char* name, int row) const {
    return fixture_->Find<QAction>(name + QString("_%1").arg(row));
  }
  void Menu(const char* name, int row) const { Action(name, row)->trigger(); }
  bool Shown(const char* name) const { return fixture_->Find<QWidget>(name)->isVisible(); }
  void Pick(const char* name, int item) const {
    auto* box = fixture_->Find<QComboBox>(name);
    box->setCurrentIndex(item);
    emit box->activated(item);
  }
  void ChooseKind(int row, StratumKind kind) const {
    Pick(qPrintable("ComboTipoStrato_" + QString::number(row)), static_cast<int>(kind));
  }
  void ChooseMaterial(int row, const QString& name) const { ChooseIn("ComboMatStrato_", row, name); }
  void ChooseFibre(int row, const QString& name) const { ChooseIn("ComboFibraStrato_", row, name); }
  void ChooseIn(const char* list, int row, const QString& name) const {
    auto* box = fixture_->Find<QComboBox>(list + QString::number(row));
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), name);
    // The list of matches takes the keys while it is open.
    QWidget* matches = box->completer()->popup();
    QTest::keyClick(matches->isVisible() ? matches : box, Qt::Key_Tab);
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::MultilayerPageTest)
#include "multilayer_page_test.moc"
