#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QTest>
#include <QToolButton>

#include "calculation/edits/usual_layers.h"
#include "elements/parts.h"
#include "shell/main_window/kind_card.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

using elements::Calculation;

/// The six buttons and cards, and the calculation that each begins.
void AddKinds() {
  QTest::addColumn<int>("button");
  QTest::addColumn<QString>("variant");
  QTest::newRow("single wall") << 17 << "Parete singola Generica";
  QTest::newRow("double wall") << 18 << "Parete doppia Generica";
  QTest::newRow("floor") << 19 << "Solaio in laterocemento con pav. galleggiante";
  QTest::newRow("facade") << 20 << "Parete composta";
  QTest::newRow("lining") << 21 << "Controplaccaggio generico";
  QTest::newRow("ceiling") << 22 << "Controsoffitto generico";
}

QString Chosen(const WindowFixture& fixture) {
  const auto& calculation = fixture.open.Setup().calculation;
  return calculation ? QString::fromStdString(std::string(RowOf(*calculation).variant)) : QString();
}

/// The lines of a menu: a heading in brackets, its entries by the calculation that they choose.
QStringList LinesOf(const QMenu& menu) {
  QStringList lines;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator()) continue;
    lines += action->isEnabled() ? action->text() : '(' + action->text() + ')';
  }
  return lines;
}

QStringList Headings(const QMenu& menu) { return LinesOf(menu).filter(QRegularExpression("^\\(")); }

}  // namespace

/// What a new element begins with.
class NewElementTest : public QObject {
  Q_OBJECT

 private slots:
  void aCardBeginsTheGenericCalculation_data() { AddKinds(); }
  void aCardBeginsTheGenericCalculation() {
    QFETCH(int, button);
    QFETCH(QString, variant);
    WindowFixture fixture;
    fixture.window->show();
    QTest::mouseClick(fixture.Find<KindCard>("Inizio_" + QString::number(button)), Qt::LeftButton);
    QCOMPARE(Chosen(fixture), variant);
  }

  void aButtonBeginsTheGenericCalculation_data() { AddKinds(); }
  void aButtonBeginsTheGenericCalculation() {
    QFETCH(int, button);
    QFETCH(QString, variant);
    WindowFixture fixture;
    fixture.Choose(button == 20 ? Calculation::kSingleWallBrick : Calculation::kCompositeElement);
    fixture.window->show();
    QTest::mouseClick(fixture.Find<QToolButton>("Toolbar1_" + QString::number(button)), Qt::LeftButton);
    QCOMPARE(Chosen(fixture), variant);
  }

  void menusHaveTheirHeadings() {
    WindowFixture fixture;
    const auto menu = [&](int button) -> QMenu& {
      return *fixture.Find<QToolButton>("Toolbar1_" + QString::number(button))->menu();
    };
    QCOMPARE(Headings(menu(17)), QStringList({"(Parete singola)", "(Vetrate)"}));
    QCOMPARE(Headings(menu(19)), QStringList({"(Potere fonoisolante)", "(Livello di rumore di calpestio)"}));
    QCOMPARE(Headings(menu(18)),
             QStringList({"(Parete doppia)", "(Vetrate)", "(Cartongesso SEA)",
                          "(Cartongesso, per tipo di ossatura)", "(Cartongesso, per lastre e orditura)",
                          "(Parete leggera [Sharp])", "(Altri modelli)"}));
    const QStringList double_walls = LinesOf(menu(18));
    QCOMPARE(double_walls.value(double_walls.indexOf("Collegamento puntuale") - 1),
             QString("(Cartongesso SEA)"));
    for (const int button : {20, 21, 22}) QCOMPARE(Headings(menu(button)), QStringList());
    for (int button = 17; button <= 22; ++button) {
      const auto* card = fixture.Find<KindCard>("Inizio_" + QString::number(button));
      QCOMPARE(LinesOf(*card->Calculations()), LinesOf(menu(button)));
    }
  }

  void usualLayersLieWithinTheirRange_data() {
    QTest::addColumn<int>("index");
    for (const elements::CalculationRow& row : elements::Catalogue())
      QTest::newRow(std::string(row.variant).c_str()) << static_cast<int>(row.calculation);
  }
  // Only what stands on a base element is refused: that one nobody can guess.
  void usualLayersLieWithinTheirRange() {
    QFETCH(int, index);
    const auto calculation = static_cast<Calculation>(index);
    const elements::CalculationRow& row = RowOf(calculation);
    WindowFixture fixture;
    fixture.Find<QAction>(fixture.ControlOf(calculation))->trigger();
    for (const calculation::UsualLayer& layer : calculation::UsualLayersOf(calculation)) {
      const std::string name(layer.material);
      const auto family = RowOf(layer.group).family;
      QVERIFY2(family == elements::MaterialFamily::kStructural
                   ? fixture.services.materials.structural(name).has_value()
               : family == elements::MaterialFamily::kFibrous
                   ? fixture.services.materials.fibrous(name).has_value()
                   : fixture.services.materials.resilient(name).has_value(),
               name.c_str());
    }
    fixture.Run();
    QCOMPARE(fixture.asked, QStringList());
    const bool on_a_base = row.stacks.Has(elements::Stack::kBase);
    QCOMPARE(fixture.open.Result().has_value(), !on_a_base);
    QCOMPARE(fixture.told.isEmpty(), !on_a_base);
  }

  void panesBeginWithGlassAndFloorsWithSlabMatAndScreed() {
    const auto layers = [](Calculation calculation) {
      WindowFixture fixture;
      fixture.Find<QAction>(fixture.ControlOf(calculation))->trigger();
      QStringList names;
      for (const elements::Part& part : elements::PartsOf(fixture.open.Setup())) {
        for (const elements::Layer& layer : part.layers)
          names += QString::fromStdString(layer.name) + ' ' + QString::number(layer.thickness_mm) + " x" +
                   QString::number(layer.sheets);
      }
      return names;
    };
    QCOMPARE(layers(Calculation::kInsulatingGlassOneLaminated),
             QStringList({"Vetro float 6 x1", "Vetro stratificato 33.1 6.38 x1"}));
    QCOMPARE(layers(Calculation::kImpactReinforcedConcrete),
             QStringList({"Calcestruzzo armato 160 x1",
                          "Pannello minerale anticalpestio (MW-T) 30 mm, s' 10 30 x1",
                          "Massetto sabbia-cemento 50 x1"}));
    QCOMPARE(layers(Calculation::kMultilayerGeneric),
             QStringList({"Vetro float 4 x1", "Vetro float 4 x1", "Vetro float 4 x1"}));
    QCOMPARE(layers(Calculation::kDoubleWallPlasterboardCommonStuds),
             QStringList({"Cartongesso standard 12.5 x2", "Cartongesso standard 12.5 x2"}));
  }

  void anotherCalculationKeepsWhatWasEntered() {
    WindowFixture fixture;
    fixture.window->show();
    QTest::mouseClick(fixture.Find<KindCard>("Inizio_17"), Qt::LeftButton);
    fixture.Type("Text5_1", "250");
    QTest::mouseClick(fixture.Find<QToolButton>("Toolbar1_18"), Qt::LeftButton);
    QCOMPARE(fixture.Find<QComboBox>("Combo3_1")->currentText(), QString("Forati in laterizio 12 cm"));
    QCOMPARE(fixture.Find<QLineEdit>("Text5_1")->text(), QString("250"));
    QCOMPARE(fixture.open.Setup().leaf2.count, 1);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::NewElementTest)
#include "new_element_test.moc"
