#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QToolButton>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// Whole layers by keys, menu and mouse, as a hand moves them.
class LayerToolsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    SetCount("Combo1", "3");
    fixture_->Type("Text5_0", "11");
    fixture_->Type("Text5_1", "22");
    fixture_->Type("Text5_2", "33");
  }
  void cleanup() { fixture_.reset(); }

  void keysMoveALayerAndTheFocusGoesAlong() {
    Press("Text5_0", Qt::Key_Down);
    QCOMPARE(Thicknesses(), QStringList({"22", "11", "33"}));
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Text5_1"));
    QCOMPARE(Undo()->text(), QString("Annulla spostamento dello strato 2"));
    Press("Text5_1", Qt::Key_Up);
    QCOMPARE(Thicknesses(), QStringList({"11", "22", "33"}));
    Press("Text5_0", Qt::Key_Up);
    QCOMPARE(Thicknesses(), QStringList({"11", "22", "33"}));
  }

  void keysPutInDoubleAndTakeOut() {
    Press("Text5_0", Qt::Key_D);
    QCOMPARE(Thicknesses(), QStringList({"11", "11", "22", "33"}));
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Text5_1"));
    Press("Text5_1", Qt::Key_Delete);
    QCOMPARE(Thicknesses(), QStringList({"11", "22", "33"}));
    Press("Text5_2", Qt::Key_I);
    QCOMPARE(Thicknesses().size(), 4);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Text5_3"));
    QVERIFY(!fixture_->open.Setup().leaf1.rows[3].slot.name.empty());
    Undo()->trigger();
    Undo()->trigger();
    Undo()->trigger();
    QCOMPARE(Thicknesses(), QStringList({"11", "22", "33"}));
  }

  void theLimitsOfTheCountHold() {
    for (int i = 0; i < 12; ++i) Press("Text5_0", Qt::Key_D);
    QCOMPARE(Thicknesses().size(), 10);
    for (int i = 0; i < 12; ++i) Press("Text5_0", Qt::Key_Delete);
    QCOMPARE(Thicknesses().size(), 1);
  }

  void anUnfinishedTextIsTakenBeforeTheLayerMoves() {
    auto* box = fixture_->Find<QLineEdit>("Text5_1");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "0");
    Press("Text5_1", Qt::Key_Up);
    QCOMPARE(Thicknesses(), QStringList({"10", "11", "33"}));
  }

  void theMenuOffersWhatCanBeDone() {
    QMenu* menu = OpenMenu("AzioniCombo3_0");
    QVERIFY(menu->findChild<QAction*>("inserisci_sopra")->isEnabled());
    QVERIFY(!menu->findChild<QAction*>("sposta_su")->isEnabled());
    menu->findChild<QAction*>("sposta_giu")->trigger();
    menu->close();
    QCOMPARE(Thicknesses(), QStringList({"22", "11", "33"}));
  }

  void aLayerIsDraggedByItsNumber() {
    QMimeData dragged;
    dragged.setData("application/x-velmar-layer-row", "0:2");
    WindowFixture::Drop(fixture_->Find<QLabel>("NumeroCombo3_0"), dragged);
    QCOMPARE(Thicknesses(), QStringList({"33", "11", "22"}));
    dragged.setData("application/x-velmar-layer-row", "1:0");
    WindowFixture::Drop(fixture_->Find<QLabel>("NumeroCombo3_2"), dragged);
    QCOMPARE(Thicknesses(), QStringList({"33", "11", "22"}));
  }

  void layersAreCopiedToAnotherTab() {
    QMenu* menu = OpenMenu("AzioniCombo3_1");
    menu->findChild<QAction*>("copia_strati")->trigger();
    menu->close();
    QCOMPARE(QApplication::clipboard()->text().count('\n'), 2);
    QTest::keyClick(fixture_->window.get(), Qt::Key_2, Qt::ControlModifier);
    menu = OpenMenu("AzioniCombo4_0");
    menu->findChild<QAction*>("incolla_tutti")->trigger();
    menu->close();
    const elements::Setup& setup = fixture_->open.Setup();
    QCOMPARE(setup.leaf2.count, 3);
    for (std::size_t i = 0; i < 3; ++i) QVERIFY(setup.leaf2.rows[i] == setup.leaf1.rows[i]);
    QCOMPARE(Undo()->text(), QString("Annulla inserimento di strati copiati"));
  }

  void layersOutliveTheProjectTheyWereCopiedFrom() {
    Press("Text5_2", Qt::Key_C);
    const auto row = fixture_->open.Setup().leaf1.rows[2];
    fixture_->save = false;
    fixture_->file = QString(EXAMPLES) + "/parete-forato-intonacata.drav";
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    const int count = fixture_->open.Setup().leaf1.count;
    Press("Text5_0", Qt::Key_V);
    QCOMPARE(fixture_->open.Setup().leaf1.count, count + 1);
    QVERIFY(fixture_->open.Setup().leaf1.rows[1] == row);
  }

  void layersThatDoNotFitAreTold() {
    SetCount("Combo1", "10");
    QMenu* menu = OpenMenu("AzioniCombo3_0");
    menu->findChild<QAction*>("copia_strati")->trigger();
    menu->close();
    const elements::Setup before = fixture_->open.Setup();
    Press("Text5_0", Qt::Key_V);
    QCOMPARE(fixture_->told.size(), 1);
    QVERIFY(fixture_->open.Setup() == before);
  }

  void theSecondLeafMirrorsTheFirst() {
    fixture_->Find<QToolButton>("SpecchiaCombo1")->click();
    const elements::Setup& setup = fixture_->open.Setup();
    QCOMPARE(setup.leaf2.count, 3);
    QVERIFY(setup.leaf2.rows[0] == setup.leaf1.rows[2]);
    QCOMPARE(Undo()->text(), QString("Annulla seconda parete speculare alla prima"));
  }

  void theElementIsTurnedByKeysAndTwiceStandsAsItStood() {
    const elements::Setup before = fixture_->open.Setup();
    auto* turn = fixture_->Find<QAction>("gira");
    QVERIFY(turn->isEnabled());
    turn->trigger();
    QVERIFY(fixture_->open.Setup() != before);
    turn->trigger();
    QVERIFY(fixture_->open.Setup() == before);
  }

  void aFloorIsNeitherMirroredNorTurned() {
    fixture_->Choose("cal_solaio");
    QVERIFY(!fixture_->Find<QAction>("gira")->isEnabled());
    QVERIFY(!fixture_->Find<QAction>("specchia")->isEnabled());
    QVERIFY(!fixture_->Find<QToolButton>("SpecchiaCombo1")->isVisible());
  }

 private:
  QAction* Undo() const { return fixture_->Find<QAction>("annulla"); }
  void SetCount(const char* name, const QString& keys) {
    auto* count = fixture_->Find<QComboBox>(name);
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, keys);
  }
  void Press(const QString& field, Qt::Key key) {
    auto* widget = fixture_->Find<QWidget>(field);
    widget->setFocus();
    QTest::keyClick(widget, key, Qt::ControlModifier | Qt::ShiftModifier);
  }
  QMenu* OpenMenu(const QString& button) {
    auto* tools = fixture_->Find<QToolButton>(button);
    QTest::mouseClick(tools, Qt::LeftButton);
    return tools->findChild<QMenu*>("AzioniStrato");
  }
  QStringList Thicknesses() const {
    QStringList texts;
    for (int i = 0; i < 10; ++i) {
      auto* box = fixture_->Find<QLineEdit>("Text5_" + QString::number(i));
      if (box->isVisible()) texts += box->text();
    }
    return texts;
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::LayerToolsTest)
#include "layer_tools_test.moc"
