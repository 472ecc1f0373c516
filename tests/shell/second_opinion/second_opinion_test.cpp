#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

/// A window with the project `example` and its result.
struct Calculated : WindowFixture {
  explicit Calculated(const char* example) {
    file = QString(EXAMPLES) + '/' + example + ".drav";
    Find<QAction>("Apri_Progetto")->trigger();
    window->show();
    Run();
  }

  QString Says(const char* label) const { return Find<QLabel>(label)->text(); }
  bool Shows(const char* widget) const { return Find<QWidget>(widget)->isVisible(); }
  /// Waits until the models have spoken, and opens their table.
  void OpenTable() const {
    QTRY_VERIFY(Shows("FrameSecondoParere"));
    QTest::mouseClick(Find<QToolButton>("PulsanteSecondoParere"), Qt::LeftButton);
    QTRY_VERIFY(Shows("TabellaSecondoParere"));
  }
};

}  // namespace

/// What is said of the error of a result, and what other models say of the element.
class SecondOpinionTest : public QObject {
  Q_OBJECT

 private slots:
  void anIntervalStandsUnderTheResult() {
    const Calculated wall("parete-forato-intonacata");
    QVERIFY2(wall.open.Result(), qPrintable(wall.told.join('\n')));
    QVERIFY2(wall.Says("LabelIntervallo").startsWith("Rw "), qPrintable(wall.Says("LabelIntervallo")));
    QVERIFY(wall.Says("LabelIntervallo").contains("intervallo 90 %: da "));
    QVERIFY(wall.Says("LabelIntervallo").endsWith("misure)"));
    QVERIFY(!wall.Shows("LabelFuoriCampo"));
    QVERIFY(!wall.Shows("LabelElementoRisultante"));
  }

  void aRangeThatWasLeftIsToldWithTheResult() {
    const Calculated wall("parete-fuori-campo");
    QCOMPARE(wall.asked.size(), 1);
    QVERIFY2(wall.asked.first().contains("m' = 504 kg/m² (da 80 a 400)"), qPrintable(wall.asked.first()));
    QVERIFY(wall.Shows("LabelFuoriCampo"));
    QVERIFY(wall.Says("LabelFuoriCampo")
                .endsWith("Fuori dal campo di validità della relazione [1]: m' = 504 kg/m² (da 80 a 400). "
                          "Calcolo proseguito per scelta dell'utente."));
    wall.Type("Text5_0", "8");
    QVERIFY(!wall.Shows("FrameNote"));
  }

  void aLiningShowsWhatItMakesOfItsBase() {
    const Calculated lining("controplaccaggio-ossatura");
    QVERIFY2(lining.open.Result(), qPrintable(lining.told.join('\n')));
    QVERIFY(lining.Shows("LabelElementoRisultante"));
    QVERIFY(lining.Says("LabelElementoRisultante").startsWith("Elemento risultante: Rw(C; Ctr)= "));
  }

  void aFloorSaysThatNothingIsKnownAndWhy() {
    const Calculated floor("calpestio-galleggiante");
    QVERIFY(floor.Says("LabelIntervallo").contains("nessuna stima: "));
    floor.OpenTable();
    QVERIFY(!floor.Says("Indice footfall").isEmpty());
  }

  void theModelsOfAPlasterboardWallStandSideBySide() {
    const Calculated wall("leggera-linea-linea");
    QVERIFY2(wall.open.Result(), qPrintable(wall.told.join('\n')));
    wall.OpenTable();
    QVERIFY(wall.Says("LabelSecondoParere").startsWith("2 modelli, "));
    QVERIFY(wall.Says("LabelSecondoParere").contains("più affidabile qui: Multistrato"));
    QVERIFY(wall.Says("Modello calculation").endsWith("(calcolo scelto)"));
    QVERIFY(wall.Says("Modello layered").endsWith("★"));
    QVERIFY(!wall.Says("Indice layered").isEmpty());
    QVERIFY(wall.Says("Intervallo layered").contains(" … "));
    QVERIFY(wall.Says("Errore layered").endsWith(" dB"));
    QCOMPARE(wall.Says("LabelTipoElemento"), QString("Tipo di elemento: lastre su montanti"));
  }

  void aTickDrawsTheCurveOfItsModel() {
    Calculated wall("leggera-linea-linea");
    wall.OpenTable();
    QVERIFY(wall.Results().Chart()->further.empty());
    wall.Find<QCheckBox>("Curva layered")->click();
    QCOMPARE(wall.Results().Chart()->further.size(), 1U);
    const acoustics::Spectrum drawn = wall.Results().Chart()->further[0].values;
    QVERIFY(drawn != *wall.open.Result()->spectrum);
    QVERIFY(QString::fromStdString(wall.Results().Chart()->further[0].name).startsWith("Multistrato"));
    // Ticked once, the model is drawn for the next result too, with its new curve.
    wall.Type("Text5_0", "25");
    QVERIFY(!wall.Shows("FrameSecondoParere"));
    wall.Run();
    QTRY_VERIFY(wall.Results().Chart() && !wall.Results().Chart()->further.empty());
    QVERIFY(wall.Results().Chart()->further[0].values != drawn);
    wall.Find<QCheckBox>("Curva layered")->click();
    QVERIFY(wall.Results().Chart()->further.empty());
  }

  void whyOpensTheRouteOfItsModel() {
    const Calculated wall("leggera-linea-linea");
    wall.OpenTable();
    QTest::mouseClick(wall.Find<QToolButton>("Perche layered"), Qt::LeftButton);
    const QString route = wall.Find<QTextBrowser>("TestoPerche")->toPlainText();
    for (const char* said : {"Multistrato", "Fonte", "Davy", "Ipotesi", "Dati usati", "Lastra 1", "Limiti",
                             "Errore verificato", "misure"})
      QVERIFY2(route.contains(said), said);
    // It tells of the result that stands, and goes with it.
    wall.Type("Text5_0", "25");
    QTRY_VERIFY(wall.window->findChild<QWidget*>("FinestraPerche") == nullptr);
  }

  void aCalculationThatErrsOnSuchElementsSaysSo() {
    Calculated wall("leggera-linea-linea");
    wall.Choose(elements::Calculation::kDoubleWallGeneric);
    wall.Run();
    QTRY_VERIFY(wall.Shows("LabelNotaModello"));
    QVERIFY2(wall.Says("LabelNotaModello").contains("questo calcolo sottostima in media di"),
             qPrintable(wall.Says("LabelNotaModello")));
  }

  void whereNoOtherModelAppliesThePanelSaysSoAndTheRouteStands() {
    const Calculated glazing("multistrato-vetrocamera-tripla");
    glazing.OpenTable();
    QCOMPARE(glazing.Says("LabelSecondoParere"), QString("nessun altro modello si adatta a questo elemento"));
    QTest::mouseClick(glazing.Find<QToolButton>("Perche calculation"), Qt::LeftButton);
    const QString route = glazing.Find<QTextBrowser>("TestoPerche")->toPlainText();
    for (const char* said : {"Fonte", "Ipotesi", "Limiti"}) QVERIFY2(route.contains(said), said);
  }

  // The window goes while models are still at work.
  void closingDoesNotWaitForAnOpinionInVain() {
    auto wall = std::make_unique<Calculated>("leggera-linea-linea");
    wall.reset();
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::SecondOpinionTest)
#include "second_opinion_test.moc"
