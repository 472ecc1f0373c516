#include <QAction>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include "calculation/edits/select_calculation.h"
#include "calculation/runs/run.h"
#include "elements/layer_groups.h"
#include "shell/fields/list_boxes.h"
#include "shell/pages/tab_layout.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

using elements::Calculation;
using elements::ResultSet;

/// What the command line says of a project.
QJsonObject RunByCommand(const QString& project) {
  QProcess program;
  program.start(VELMAR_PROGRAM, {"run", project, "--json", "--answer", "yes", "--data", SHARE});
  constexpr int kPatienceMs = 120'000;
  if (!program.waitForFinished(kPatienceMs))
    qFatal("velmar did not end: %s", qPrintable(program.errorString()));
  return QJsonDocument::fromJson(program.readAllStandardOutput()).object();
}

struct Quantity {
  const char* key = "";
  std::optional<double> ResultSet::*value = nullptr;
};
constexpr std::array kQuantities = {
    Quantity{"Rw", &ResultSet::rw},
    Quantity{"C", &ResultSet::c},
    Quantity{"Ctr", &ResultSet::ctr},
    Quantity{"X", &ResultSet::shift},
    Quantity{"DeltaRw", &ResultSet::delta_rw},
    Quantity{"RwRelation", &ResultSet::relation_rating},
    Quantity{"Fc", &ResultSet::critical_frequency_hz},
    Quantity{"EtaInt", &ResultSet::loss_factor},
    Quantity{"Mass", &ResultSet::mass_kg_m2},
    Quantity{"Bending", &ResultSet::bending_stiffness_nm},
    Quantity{"Lnw", &ResultSet::lnw},
    Quantity{"Ci", &ResultSet::ci},
    Quantity{"DeltaLnw", &ResultSet::delta_lnw},
    Quantity{"RwEstimate", &ResultSet::rw_estimate},
    Quantity{"DeltaRwEstimate", &ResultSet::delta_rw_estimate},
};

/// The quantities in which `json` and `held` differ in any bit; empty when there is none.
QStringList Differences(const QJsonObject& json, const ResultSet& held) {
  QStringList differences;
  for (const Quantity& quantity : kQuantities) {
    const std::optional<double>& value = held.*quantity.value;
    const bool same = value ? json[quantity.key].isDouble() && json[quantity.key].toDouble() == *value
                            : !json.contains(quantity.key);
    if (!same) differences += quantity.key;
  }
  QJsonArray spectrum;
  if (held.spectrum) {
    for (const double level : *held.spectrum) spectrum += level;
  }
  if (json["spectrum"].toArray() != spectrum) differences += "spectrum";
  return differences;
}

void AddRows() {
  QTest::addColumn<int>("index");
  for (const elements::CalculationRow& row : elements::Catalogue())
    QTest::newRow(std::string(row.variant).c_str()) << static_cast<int>(row.calculation);
}

/// Types what a run needs beyond the first materials and has no default: areas, levels, the depth of a SEA
/// cavity.
void FillIn(const WindowFixture& fixture) {
  const elements::Family family = RowOf(*fixture.open.Setup().calculation).family;
  if (family == elements::Family::kSea) fixture.Type("TextSpessoreIntercSEA", "60");
  const bool facade = family == elements::Family::kFacade;
  if (!facade && family != elements::Family::kLining && family != elements::Family::kCeiling) return;
  for (int band = 0; band < 21; ++band) {
    fixture.Type("Text13_" + QString::number(band), QString::number(35 + band) + ",25");
    if (facade) fixture.Type("Text12_" + QString::number(band), QString::number(25 + band / 2) + ",5");
  }
  fixture.Type("Text25", "50");
  if (facade) {
    fixture.Type("Text7", "10,5");
    fixture.Type("Text23_0", "2,4");
  } else {
    fixture.Type("TextMassaBase", "215,5");
  }
}

/// Every count of `page` at its highest: as many rows as it can have.
void FillUp(const QWidget& page) {
  for (CountBox* count : page.findChildren<CountBox*>()) {
    if (!count->isVisible() || !count->isEnabled()) continue;
    count->setCurrentIndex(count->count() - 1);
    emit count->activated(count->currentIndex());
  }
}

}  // namespace

/// Each calculation, from its menu entry to the numbers.
class EveryCalculationTest : public QObject {
  Q_OBJECT

 private slots:
  void itsEntryLaysOutItsTabs_data() { AddRows(); }
  void itsEntryLaysOutItsTabs() {
    QFETCH(const int, index);
    const auto calculation = static_cast<Calculation>(index);
    WindowFixture fixture;
    elements::Setup expected = fixture.open.Setup();
    fixture.Choose(calculation);
    calculation::SelectCalculation(expected, calculation);
    QVERIFY(fixture.open.Setup() == expected);
    const auto tabs = TabsOf(calculation);
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    QCOMPARE(strip->currentIndex(), static_cast<int>(tabs.front().tab));
    for (int tab = 0; tab < kTabCount; ++tab) {
      const bool shown =
          std::ranges::any_of(tabs, [tab](const ShownTab& one) { return static_cast<int>(one.tab) == tab; });
      QCOMPARE(strip->isTabVisible(tab), shown);
    }
  }

  void itsPagesNeedNoSidewaysScrollingOnALaptop_data() { AddRows(); }
  void itsPagesNeedNoSidewaysScrollingOnALaptop() {
    QFETCH(const int, index);
    const auto calculation = static_cast<Calculation>(index);
    WindowFixture fixture;
    fixture.Choose(calculation);
    fixture.window->resize(1366, 768);
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    for (const ShownTab& shown : TabsOf(calculation)) {
      strip->setCurrentIndex(static_cast<int>(shown.tab));
      const auto* area = qobject_cast<QScrollArea*>(strip->currentWidget());
      QVERIFY(area != nullptr);
      for (const bool full : {false, true}) {
        if (full) FillUp(*area->widget());
        QTest::qWait(0);
        QVERIFY2(area->horizontalScrollBar()->maximum() == 0,
                 qPrintable(QString("tab %1, %2: %3 px beyond the edge")
                                .arg(static_cast<int>(shown.tab))
                                .arg(full ? "full" : "as chosen")
                                .arg(area->horizontalScrollBar()->maximum())));
      }
    }
    QCOMPARE(fixture.window->size(), QSize(1366, 768));
  }

  void itsSavedProjectGivesTheNumbersOfTheWindow_data() { AddRows(); }
  void itsSavedProjectGivesTheNumbersOfTheWindow() {
    QFETCH(const int, index);
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(static_cast<Calculation>(index));
    FillIn(fixture);
    fixture.Run();
    const std::optional<ResultSet> held = fixture.open.Result();
    const QString thickness = fixture.Find<QLabel>("Text3")->text();
    fixture.file = folder.filePath("elemento.drav");
    fixture.Find<QAction>("Salva_Progetto")->trigger();

    const QJsonObject said = RunByCommand(fixture.file);
    QCOMPARE(said["status"].toString(), QString("ok"));
    QVERIFY(held.has_value());
    QVERIFY(fixture.Find<QAction>("Salva")->isEnabled());
    QCOMPARE(Differences(said, *held), QStringList());
    QCOMPARE(said["thickness"].toDouble(), QString(thickness).replace(',', '.').toDouble());
    QCOMPARE(fixture.told, QStringList());
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::EveryCalculationTest)
#include "every_calculation_test.moc"
