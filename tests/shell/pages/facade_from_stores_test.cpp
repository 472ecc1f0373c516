// A facade built through the windows from what is stored and measured gives the numbers of the same facade
// typed into the fields.
#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <cmath>
#include <map>

#include "tests/shell/support/stores_program.h"

namespace velmar::shell {
namespace {

constexpr int kComponents = 3;

QString BandBox(int component, int band) {
  const int array = component == 0 ? 13 : component == 1 ? 12 : component + 12;
  return QStringLiteral("Text%1_%2").arg(array).arg(band);
}

/// Everything that the fields of a facade hold, by the name of the field.
std::map<QString, QString> FieldsOf(const WindowFixture& fixture) {
  std::map<QString, QString> fields;
  const auto read = [&](const QString& name) { fields[name] = fixture.Find<QLineEdit>(name)->text(); };
  for (const char* name : {"Text7", "Text25", "Text27", "Text28"}) read(name);
  for (int component = 0; component <= kComponents; ++component) {
    for (int band = 0; band < 21; ++band) read(BandBox(component, band));
    if (component == 0) continue;
    for (const char* array : {"Text23", "Text24", "Text29", "Text30"})
      read(QStringLiteral("%1_%2").arg(array).arg(component - 1));
  }
  return fields;
}

/// The facade of the test, every part through a window.
void TakeParts(StoresProgram& program) {
  WindowFixture& fixture = program.fixture;
  fixture.Choose("cal_facciata");
  fixture.Find<QTabWidget>("SSTab1")->setCurrentIndex(0);
  fixture.Type("Text7", "14,4");
  fixture.open.Edit([](elements::Setup& setup) { setup.facade.count_text = std::to_string(kComponents); });
  fixture.Find<QAbstractButton>("Command3")->click();
  QTest::mouseClick(fixture.Find<QPushButton>("Seleziona"), Qt::LeftButton);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const std::array<std::pair<const char*, const char*>, kComponents> parts = {
      std::pair{"Serramenti", "Finestra a due ante"}, std::pair{"Serramenti", "Porta-finestra"},
      std::pair{"Bocchette", "Bocchetta \"silenziata\""}};
  for (int i = 0; i < kComponents; ++i) {
    fixture.Find<QAbstractButton>(QStringLiteral("Command12_%1").arg(i + 1))->click();
    auto* library = fixture.Find<QDialog>("Form9");
    const auto& [file, entry] = parts.at(static_cast<std::size_t>(i));
    StoresProgram::OpenEntry(*library, "TreeView1", file, "List1", entry);
    QTest::mouseClick(library->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

/// Calculates a wall and stores it.
void StoreAWall(StoresProgram& program) {
  program.fixture.window->OpenProject(EXAMPLES "/doppia-forati-lana.drav");
  program.fixture.Run();
  program.name = "Parete esterna \"tipo A\"";
  program.fixture.Find<QAction>("Salva")->trigger();
}

void CompareResults(const StoresProgram& taken, const StoresProgram& typed) {
  const auto& one = taken.fixture.open.Result();
  const auto& other = typed.fixture.open.Result();
  QVERIFY2(one.has_value(), qPrintable(taken.fixture.told.join('\n')));
  QVERIFY2(other.has_value(), qPrintable(typed.fixture.told.join('\n')));
  // The boxes show one decimal of what was stored, and that is what a hand can type.
  QCOMPARE(one->spectrum.has_value(), other->spectrum.has_value());
  for (std::size_t band = 0; one->spectrum && band < one->spectrum->size(); ++band)
    QVERIFY(std::abs(one->spectrum->at(band) - other->spectrum->at(band)) < 0.051);
  QVERIFY(one->rw == other->rw && one->rw.has_value());
  QVERIFY(one->c == other->c);
  QVERIFY(one->ctr == other->ctr);
}

}  // namespace

class FacadeFromStoresTest : public QObject {
  Q_OBJECT

 private slots:
  void aFacadeOfStoredAndMeasuredPartsRunsAsTypedByHand_data() {
    QTest::addColumn<bool>("simplified");
    QTest::newRow("bands") << false;
    QTest::newRow("simplified") << true;
  }

  void aFacadeOfStoredAndMeasuredPartsRunsAsTypedByHand() {
    QFETCH(const bool, simplified);
    StoresProgram taken;
    taken.AddMeasurements();
    StoreAWall(taken);
    TakeParts(taken);
    const elements::Facade& facade = taken.fixture.open.Setup().facade;
    QCOMPARE(facade.components[2].area_text, std::string(elements::kSmallElementArea));
    QCOMPARE(taken.fixture.Find<QLineEdit>("Text23_0")->text(), QString("1,75"));
    QCOMPARE(taken.fixture.open.Setup().base.name, taken.name.toStdString());

    StoresProgram typed;
    typed.fixture.Choose("cal_facciata");
    typed.fixture.open.Edit(
        [](elements::Setup& setup) { setup.facade.count_text = std::to_string(kComponents); });
    // Each form opens fields of its own.
    for (const bool form : {true, false}) {
      typed.fixture.open.Edit([form](elements::Setup& setup) { setup.facade.simplified = form; });
      for (const auto& [name, text] : FieldsOf(taken.fixture)) {
        if (!text.isEmpty()) typed.fixture.Type(name, text);
      }
    }
    for (StoresProgram* program : {&taken, &typed}) {
      program->fixture.open.Edit([&](elements::Setup& setup) { setup.facade.simplified = simplified; });
      program->fixture.Run();
    }
    for (const auto& [name, text] : FieldsOf(taken.fixture))
      QVERIFY2(typed.fixture.Find<QLineEdit>(name)->text() == text,
               qPrintable(name + ": " + text + " / " + typed.fixture.Find<QLineEdit>(name)->text()));
    CompareResults(taken, typed);
    // What a facade knows of its parts beyond the fields: the stored mass.
    QVERIFY(taken.fixture.open.Result()->mass_kg_m2 > 0.0);
  }

  void aStoredFacadeIsItselfAPart() {
    StoresProgram program;
    program.AddMeasurements();
    StoreAWall(program);
    TakeParts(program);
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    program.name = "Facciata";
    program.fixture.Find<QAction>("Salva")->trigger();
    const auto part = program.fixture.services.saved_result("facciata");
    QVERIFY(part.has_value());
    QVERIFY(part->mass_kg_m2 == program.fixture.open.Result()->mass_kg_m2);
    QVERIFY(part->area_m2 == 14.4);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::FacadeFromStoresTest)
#include "facade_from_stores_test.moc"
