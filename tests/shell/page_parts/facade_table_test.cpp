#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "shell/page_parts/share_bar.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// The parts of a facade in their table, typed in place.
class FacadeTableTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
  }
  void cleanup() { fixture_.reset(); }

  void whatIsTypedInTheTableStandsOnThePage() {
    TypeFacade();
    QCOMPARE(fixture_->Find<QLineEdit>("Text23_0")->text(), QString("2"));
    QCOMPARE(fixture_->Find<QLineEdit>("Text24_0")->text(), QString("36"));
    fixture_->Type("Text24_0", "40");
    QCOMPARE(fixture_->Find<QLineEdit>("TuttiRw_1")->text(), QString("40"));
    QCOMPARE(fixture_->Find<QLabel>("TuttiArea_0")->text(), QString("18,00"));
  }

  void theTableTellsTheSharesOfTheEnergy() {
    TypeFacade();
    // 18 m² at 50 dB beside 2 m² at 36 dB.
    QCOMPARE(fixture_->Find<ShareBar>("TuttiQuota_0")->Text(), QString("26 %"));
    QCOMPARE(fixture_->Find<ShareBar>("TuttiQuota_1")->Text(), QString("74 %"));
    fixture_->Run();
    QVERIFY(fixture_->open.Result());
    auto* tightness = fixture_->Find<QComboBox>("TuttiClasse_1");
    tightness->setFocus();
    QTest::keyClick(tightness, Qt::Key_Down);
    QCOMPARE(fixture_->open.Setup().facade.components[0].tightness_class, 1);
    QVERIFY(!fixture_->open.Result());
    QCOMPARE(fixture_->Find<ShareBar>("TuttiQuota_1")->Text(), QString("95 %"));
  }

  void componentsAreAddedDoubledAndRemoved() {
    TypeFacade();
    Act(1, "duplica_componente");
    QCOMPARE(fixture_->open.Setup().facade.Count(), 2);
    QCOMPARE(fixture_->Find<QLineEdit>("TuttiRw_2")->text(), QString("36"));
    QCOMPARE(Undo()->text(), QString("Annulla duplicazione del componente 1"));
    QTest::mouseClick(fixture_->Find<QPushButton>("AggiungiComponente"), Qt::LeftButton);
    QCOMPARE(fixture_->open.Setup().facade.Count(), 3);
    QVERIFY(fixture_->Find<QTabWidget>("SSTab2")->isTabVisible(2));
    fixture_->Type("TuttiArea_3", "-");
    Act(3, "componente_su");
    QCOMPARE(fixture_->open.Setup().facade.components[1].area_text, std::string("-"));
    Act(2, "elimina_componente");
    QCOMPARE(fixture_->open.Setup().facade.Count(), 2);
    Undo()->trigger();
    QCOMPARE(fixture_->open.Setup().facade.components[1].area_text, std::string("-"));
  }

  void theFormByBandsShowsWhatFollowsFromTheBands() {
    fixture_->file = QString(EXAMPLES) + "/facciata.drav";
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    QVERIFY(!fixture_->Find<QLineEdit>("TuttiRw_1")->isVisible());
    auto* rating = fixture_->Find<QLabel>("TuttiRwCalcolato_1");
    QVERIFY(rating->isVisible());
    QVERIFY(rating->text().toInt() > 20);
    fixture_->Find<QTabWidget>("SSTab2")->setCurrentIndex(0);
    fixture_->Type("Text12_9", "");
    fixture_->Find<QLineEdit>("Text12_9")->selectAll();
    QTest::keyClick(fixture_->Find<QLineEdit>("Text12_9"), Qt::Key_Backspace);
    QCOMPARE(rating->text(), QString());
    QCOMPARE(fixture_->Find<ShareBar>("TuttiQuota_0")->Text(), QString());
  }

  void aClickOnTheNumberOpensThePage() {
    fixture_->file = QString(EXAMPLES) + "/facciata-nove-componenti.drav";
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    QTest::mouseClick(fixture_->Find<QLabel>("TuttiNumero_4"), Qt::LeftButton);
    QCOMPARE(fixture_->Find<QTabWidget>("SSTab2")->currentIndex(), 3);
    QVERIFY(!fixture_->Find<QPushButton>("AggiungiComponente")->isVisible());
  }

 private:
  QAction* Undo() const { return fixture_->Find<QAction>("annulla"); }

  /// 20 m² of 50 dB with a window of 2 m² and 36 dB, by ratings.
  void TypeFacade() {
    fixture_->Choose("cal_facciata");
    fixture_->Type("Text7", "20");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    QTest::mouseClick(fixture_->Find<QWidget>("Check1"), Qt::LeftButton);
    fixture_->Type("TuttiRw_0", "50");
    fixture_->Type("TuttiArea_1", "2");
    fixture_->Type("TuttiRw_1", "36");
  }
  void Act(int number, const char* action) {
    auto* tools = fixture_->Find<QToolButton>("AzioniComponente_" + QString::number(number));
    QTest::mouseClick(tools, Qt::LeftButton);
    auto* menu = tools->findChild<QMenu*>("MenuComponente");
    menu->findChild<QAction*>(action)->trigger();
    delete menu;
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::FacadeTableTest)
#include "facade_table_test.moc"
