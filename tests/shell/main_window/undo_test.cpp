#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// Steps back and forth by keys, as a hand does them.
class UndoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
  }
  void cleanup() { fixture_.reset(); }

  void theMenuNamesTheStep() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    TypeCount("2");
    fixture_->Type("Text5_1", "75");
    QCOMPARE(fixture_->Find<QAction>("annulla")->text(), QString("Annulla spessore dello strato 2"));
    QVERIFY(!fixture_->Find<QAction>("ripeti")->isEnabled());
    Press(Qt::Key_Z);
    QCOMPARE(fixture_->Find<QAction>("ripeti")->text(), QString("Ripeti spessore dello strato 2"));
    QCOMPARE(fixture_->Find<QAction>("annulla")->text(), QString("Annulla numero di strati"));
  }

  void typingInAFieldIsOneStepAndTheFieldFollows() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    const QString before = Text("Text5_0");
    fixture_->Type("Text5_0", "123,5");
    Press(Qt::Key_Z);
    QCOMPARE(Text("Text5_0"), before);
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Text("Text5_0"), QString("123,5"));
    QCOMPARE(fixture_->open.Setup().leaf1.rows[0].slot.thickness_mm, 123.5);
  }

  void theWayBackGoesThroughAChoiceOfCalculation() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    const elements::Setup single = fixture_->open.Setup();
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    const elements::Setup wall = fixture_->open.Setup();
    fixture_->Find<QAction>("annulla")->trigger();
    QVERIFY(fixture_->open.Setup() == single);
    fixture_->Find<QAction>("ripeti")->trigger();
    QVERIFY(fixture_->open.Setup() == wall);
  }

  void savingKeepsTheStepsAndOpeningForgetsThem() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "80");
    fixture_->open.MarkSaved();
    QVERIFY(fixture_->Find<QAction>("annulla")->isEnabled());
    fixture_->file = QString(EXAMPLES) + "/parete-forato-intonacata.drav";
    fixture_->save = false;
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    QVERIFY(!fixture_->Find<QAction>("annulla")->isEnabled());
  }

  void aStepBackTakesTheResultAway() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "80");
    fixture_->Run();
    QVERIFY(fixture_->open.Result());
    Press(Qt::Key_Z);
    QVERIFY(!fixture_->open.Result());
    QVERIFY(!fixture_->open.IsSaved());
  }

 private:
  QString Text(const QString& name) const { return fixture_->Find<QLineEdit>(name)->text(); }
  void TypeCount(const QString& keys) {
    auto* count = fixture_->Find<QComboBox>("Combo1");
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, keys);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::UndoTest)
#include "undo_test.moc"
