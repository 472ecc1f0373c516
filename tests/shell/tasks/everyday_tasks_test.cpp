// What the tasks of every day take, counted by a hand that does them in the real windows (see hand.h for what
// counts), as the program is shipped unless a task says otherwise. A change may not raise them. Each ends in
// the result that the same construction has by another way.
#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <cmath>

#include "presentation/documents/package.h"
#include "shell/commands/report_commands.h"
#include "shell/main_window/kind_card.h"
#include "tests/shell/support/materials_program.h"
#include "tests/shell/support/stores_program.h"
#include "tests/shell/tasks/hand.h"

namespace velmar::shell {
namespace {

void Show(const WindowFixture& fixture) {
  fixture.window->resize(1366, 768);
  fixture.window->show();
  if (!QTest::qWaitForWindowActive(fixture.window.get())) qFatal("no active window");
}

/// The button of the card of element button `number` that opens its calculations.
QToolButton* CalculationsOf(const WindowFixture& fixture, int number) {
  return fixture.Find<KindCard>("Inizio_" + QString::number(number))->findChild<QToolButton*>();
}

/// The rating on the screen, empty when there is none.
QString RatingOf(const WindowFixture& fixture) {
  const auto* label = fixture.Find<QLabel>("Label4");
  return label->isVisible() ? label->text() : QString();
}

/// The spectrum of `change` made to the example `name`, as a run gives it without a window.
acoustics::Spectrum SpectrumOf(const char* name, const std::function<void(elements::Setup&)>& change = {}) {
  WindowFixture other;
  elements::Setup setup =
      other.services.read_project(std::filesystem::path(EXAMPLES) / (std::string(name) + ".drav"));
  if (change) change(setup);
  other.open.Replace(std::move(setup));
  const auto outcome = other.open.Run([](const Message&) { return false; });
  if (!outcome.result || !outcome.result->spectrum) qFatal("%s gives no spectrum", name);
  return *outcome.result->spectrum;
}

/// What stands in the Word document `path`.
QByteArray TextOfWord(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QByteArray::fromStdString(
      presentation::Package(file.readAll().toStdString()).Part("word/document.xml"));
}

/// As large as a new element is.
void ResizeAsNew(elements::Setup& setup) {
  const elements::Setup fresh;
  setup.width_text = fresh.width_text;
  setup.height_text = fresh.height_text;
}

}  // namespace

class EverydayTasksTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { hand_ = {}; }
  void cleanup() { qInfo("%d keys and clicks, entries of %d letters", hand_.Count(), hand_.Letters()); }

  // The wall of the first example: its brick is not the one that the program proposes.
  void plasteredHollowBrickAndItsRating() {
    WindowFixture fixture;
    Show(fixture);
    hand_.Choose(CalculationsOf(fixture, 17), "TIPO_PARETE_SINGOLA_2");
    hand_.Click(fixture.Find<QComboBox>("Combo3_1")->lineEdit());
    hand_.Enter("semipieno 1200");
    hand_.Press(Qt::Key_F5);
    QCOMPARE(fixture.asked, QStringList());
    QVERIFY(fixture.open.Result());
    QCOMPARE(*fixture.open.Result()->spectrum, SpectrumOf("parete-forato-intonacata", ResizeAsNew));
    QVERIFY(!RatingOf(fixture).isEmpty());
    QVERIFY(hand_.Count() <= 8);
    QCOMPARE(hand_.Count(), 5);
  }

  // With the continuous calculation, and the field in which the thickness stands.
  void effectOfAThickness() {
    WindowFixture fixture;
    Show(fixture);
    fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    fixture.Find<QAction>("calcolo_continuo")->trigger();
    auto* thickness = fixture.Find<QLineEdit>("Text5_1");
    hand_.Click(thickness);
    const QString before = RatingOf(fixture);
    QVERIFY(!before.isEmpty());
    hand_ = {};
    hand_.Press(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(thickness->text(), QString("130"));
    QCOMPARE(*fixture.open.Result()->spectrum,
             SpectrumOf("parete-forato-intonacata", [](elements::Setup& setup) {
               calculation::EnterLayerThickness(setup, elements::LayerGroup::kLeaf1, 1, "130");
             }));
    QVERIFY(fixture.Find<QWidget>("LabelPrima")->isVisible());
    QCOMPARE(hand_.Count(), 1);
    hand_.Turn(thickness, 1);
    QCOMPARE(thickness->text(), QString("131"));
    QCOMPARE(hand_.Count(), 2);
  }

  void doubleWallWithWool() {
    WindowFixture fixture;
    Show(fixture);
    hand_.Choose(CalculationsOf(fixture, 18), "TIPO_PARETE_DOPPIA_2");
    hand_.Click(fixture.Find<QComboBox>("Combo3_1")->lineEdit());
    hand_.Enter("semipieno 1200");
    hand_.Enter("80");
    hand_.Press(Qt::Key_2, Qt::ControlModifier);
    hand_.Click(fixture.Find<QComboBox>("Combo4_0")->lineEdit());
    hand_.Enter("semipieno 1200");
    hand_.Press(Qt::Key_3, Qt::ControlModifier);
    hand_.Enter("60");
    hand_.Press(Qt::Key_F5);
    QCOMPARE(fixture.asked, QStringList());
    QVERIFY(fixture.open.Result());
    QCOMPARE(*fixture.open.Result()->spectrum, SpectrumOf("doppia-forati-lana"));
    QVERIFY(!RatingOf(fixture).isEmpty());
    QVERIFY(hand_.Count() <= 12);
  }

  // One key less while each change is calculated at once.
  void facadeOfAStoredWallTwoMeasuredWindowsAndATypedShutterBox() {
    StoresProgram program;
    program.AddMeasurements();
    WindowFixture& fixture = program.fixture;
    program.Store("Parete esterna", 40, 10);
    Show(fixture);
    hand_.Click(fixture.Find<QWidget>("Inizio_20"));
    hand_.Enter("Parete esterna");
    hand_.Press(Qt::Key_Return);  // over the description
    hand_.Enter("20");
    hand_.Click(fixture.Find<QWidget>("Check2"));
    hand_.Press(Qt::Key_2, Qt::ControlModifier);
    AddMeasured(fixture, "finestra a due");
    AddMeasured(fixture, "porta-finestra");
    hand_.Click(fixture.Find<QWidget>("AggiungiComponente"));
    hand_.Enter("Cassonetto");
    hand_.Enter("1,2");
    hand_.Enter("28");
    const int without_run = hand_.Count();
    hand_.Press(Qt::Key_F5);
    QCOMPARE(fixture.told, QStringList());
    const elements::Facade& facade = fixture.open.Setup().facade;
    QCOMPARE(facade.Count(), 3);
    QCOMPARE(facade.components[0].rating_text, std::string("34"));
    QCOMPARE(facade.components[1].rating_text, std::string("38"));
    QCOMPARE(facade.components[2].name, std::string("Cassonetto"));
    // The energies of 20 m² of parts, by their areas.
    const double energy = (20 - 2 * 1.75 - 1.2) * std::pow(10.0, -5.5) + 1.75 * std::pow(10.0, -3.4) +
                          1.75 * std::pow(10.0, -3.8) + 1.2 * std::pow(10.0, -2.8);
    QVERIFY(fixture.open.Result());
    QVERIFY(std::abs(*fixture.open.Result()->rw - -10.0 * std::log10(energy / 20)) < 0.51);
    QVERIFY(without_run <= 14);
    QCOMPARE(hand_.Count(), without_run + 1);
  }

  void floorWithFloatingScreed() {
    WindowFixture fixture;
    Show(fixture);
    hand_.Choose(CalculationsOf(fixture, 19), "cal_solaio_new_0");
    hand_.Press(Qt::Key_2, Qt::ControlModifier);
    hand_.Click(fixture.Find<QWidget>("Text6_0"));
    hand_.Enter("60");
    hand_.Press(Qt::Key_F5);
    QVERIFY(fixture.open.Result());
    QVERIFY(fixture.open.Result()->lnw);
    // 164 - 35 lg(384 kg/m²) of the slab, less 18 + 15 lg(120 kg/m² / 10 MN/m³).
    QCOMPARE(RatingOf(fixture), QString("39 dB"));
    QVERIFY(hand_.Count() <= 10);
  }

  void wordReport() {
    const QTemporaryDir folder;
    DocumentServices documents;
    documents.places.templates = std::filesystem::path(SHARE) / "Templates";
    ReportCommands commands(documents);
    WindowFixture fixture;
    fixture.services.report_commands = &commands;
    fixture.MakeWindow();
    Show(fixture);
    fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    fixture.Run();
    const QString rating = RatingOf(fixture);
    fixture.file = folder.filePath("relazione.docx");
    hand_.Click(fixture.Find<QWidget>("Toolbar1_8"));
    hand_.Answer();
    QCOMPARE(fixture.written, QStringList({fixture.file}));
    QVERIFY(
        TextOfWord(fixture.file).contains(QByteArray("Rw(C; Ctr)= ") + rating.section(' ', 0, 0).toUtf8()));
    QCOMPARE(hand_.Count(), 2);
    fixture.window.reset();
  }

  void comparisonWithAMeasuredWall() {
    StoresProgram program;
    WindowFixture& fixture = program.fixture;
    Show(fixture);
    fixture.window->OpenProject(EXAMPLES "/cartongesso-lastra-doppia.drav");
    fixture.go_on = true;
    fixture.Run();
    hand_.Press(Qt::Key_F7);
    auto* comparison = fixture.Find<QDialog>("Form8");
    QVERIFY(comparison->isAncestorOf(QApplication::focusWidget()));
    hand_.Enter("fibra di cellulosa 90");
    hand_.Click(comparison->findChild<QCheckBox*>("Check1"));
    const auto& chart = fixture.Results().Chart();
    QVERIFY(chart && chart->laboratory);
    QCOMPARE((*chart->laboratory)[0], 21.5);
    QCOMPARE((*chart->laboratory)[1], 19.5);
    QCOMPARE(hand_.Count(), 3);
  }

  // A brick of another density, made of the one in the row, and the wall of it.
  void ownMaterialMadeAndUsed() {
    MaterialsProgram program;
    program.MakeWindow(EditorOf(program.store, program.fixture.services.words));
    WindowFixture& fixture = program.fixture;
    Show(fixture);
    fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    Hand::WhenAsked([this](QWidget& editor) {
      hand_.Enter("Mattone della fornace", Qt::Key_Tab);
      auto* density = editor.findChild<QLineEdit*>("Text4");
      hand_.Click(density);
      hand_.Enter("1000");
    });
    hand_.Choose(fixture.Find<QWidget>("AzioniCombo3_1"), "duplica_materiale");
    hand_.Press(Qt::Key_F5);
    QCOMPARE(fixture.told, QStringList());
    const auto& layer = fixture.open.Setup().leaf1.rows[1];
    QCOMPARE(layer.slot.name, std::string("Mattone della fornace"));
    QCOMPARE(layer.slot.density_kg_m3, 1000.0);
    QVERIFY(fixture.open.Result());
    // 2 x 15 mm of plaster at 1800 kg/m³ and 120 mm of the brick.
    QCOMPARE(fixture.open.CurrentTotals().surface_mass_kg_m2, 54.0 + 120.0);
    QVERIFY(hand_.Count() <= 6);
  }

 private:
  /// The measured element that a search finds first becomes a component.
  void AddMeasured(const WindowFixture& fixture, const QString& searched) {
    hand_.Click(fixture.Find<QWidget>("AggiungiMisurato"));
    auto* library = fixture.Find<QDialog>("Form9");
    QVERIFY(QTest::qWaitForWindowActive(library));
    hand_.Enter(searched);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(fixture.window->findChild<QDialog*>("Form9") == nullptr);
    Hand::GoBackTo(*fixture.window);
  }

  Hand hand_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::EverydayTasksTest)
#include "everyday_tasks_test.moc"
