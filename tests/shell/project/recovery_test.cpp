#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "foundation/failure.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";

/// Runs of the program, one after the other, over one folder of unsaved work.
struct Runs {
  std::filesystem::path Recovered() const { return folder.filePath("recupero").toStdString(); }

  /// The copies of unsaved work that stand there.
  QStringList Copies() const { return QDir(folder.filePath("recupero")).entryList({"*.drav"}, QDir::Files); }

  /// A run that ends with an unsaved thickness. @param file what it had saved before; empty: nothing
  void Leave(const char* thickness, const QString& file = {}) {
    const QStringList before = Copies();
    {
      WindowFixture lost;
      lost.services.places.recovery = Recovered();
      lost.MakeWindow();
      lost.Choose(kSingleGeneric);
      lost.file = file;
      if (!file.isEmpty()) lost.Find<QAction>("Salva_Progetto")->trigger();
      lost.Type("Text5_0", thickness);
      lost.window->close();
    }
    // Each a minute after the one before.
    for (const QString& copy : Copies()) {
      if (before.contains(copy)) continue;
      QFile written(folder.filePath("recupero/" + copy));
      if (!written.open(QIODevice::ReadWrite)) qFatal("no copy");
      const QDateTime time = QDateTime::currentDateTime().addSecs(60 * before.size());
      written.setFileTime(time.addSecs(-30), QFileDevice::FileModificationTime);
    }
  }

  /// The next run, to which lost work is offered and which gives `answers`.
  WindowFixture& Next(
      std::vector<LostWorkAnswer> answers,
      const std::function<void(WindowFixture&)>& prepare = [](WindowFixture&) {}) {
    window.reset();
    window = std::make_unique<WindowFixture>();
    window->services.places.recovery = Recovered();
    window->lost_answers = std::move(answers);
    prepare(*window);
    window->MakeWindow();
    window->window->OfferRecovery();
    return *window;
  }
  WindowFixture& Window() { return *window; }

  static QStringList Names(const std::vector<LostWork>& works) {
    QStringList names;
    for (const LostWork& work : works) names += work.Name("");
    return names;
  }

  QTemporaryDir folder;
  std::unique_ptr<WindowFixture> window;
};

}  // namespace

/// Unsaved work that a run leaves behind, and what the next one makes of it.
class RecoveryTest : public QObject {
  Q_OBJECT

 private slots:
  void unsavedWorkIsOfferedAtTheNextStart() {
    Runs runs;
    runs.Leave("77");
    WindowFixture& next = runs.Next({{LostWorkChoice::kRecover, 0}});
    QCOMPARE(next.lost.size(), 1U);
    QCOMPARE(next.lost[0].size(), 1U);
    QVERIFY(next.lost[0][0].project.path.empty());
    QVERIFY(next.lost[0][0].changed.secsTo(QDateTime::currentDateTime()) < 60);
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    QVERIFY(!next.open.IsSaved());
    QVERIFY(next.window->windowTitle().endsWith(" - Nuovo"));
  }

  void laterChangesNothingAndTheWorkIsOfferedAgain() {
    Runs runs;
    runs.Leave("77");
    QCOMPARE(runs.Next({}).lost.size(), 1U);  // Esc
    QVERIFY(!runs.Window().open.Setup().calculation);
    QCOMPARE(runs.Copies().size(), 1);
    WindowFixture& third = runs.Next({{LostWorkChoice::kRecover, 0}});
    QCOMPARE(third.Find<QLineEdit>("Text5_0")->text(), QString("77"));
  }

  void recoveredWorkKeepsItsNameAndSavesToItsFile() {
    Runs runs;
    const QString file = runs.folder.filePath("parete nord.drav");
    runs.Leave("77", file);
    WindowFixture& next = runs.Next({{LostWorkChoice::kRecover, 0}});
    QCOMPARE(next.lost[0][0].project.path, std::filesystem::path(file.toStdString()));
    QVERIFY(next.window->windowTitle().endsWith(" - parete nord"));
    next.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(next.to_save.size(), 0U);
    QVERIFY(next.asked.isEmpty());
    QVERIFY(next.open.IsSaved());
    QCOMPARE(runs.Copies(), QStringList());
    WindowFixture again;
    again.window->OpenProject(file.toStdString());
    QCOMPARE(again.Find<QLineEdit>("Text5_0")->text(), QString("77"));
  }

  void theOldCopyStaysUntilTheNewOneIsWritten() {
    Runs runs;
    runs.Leave("77");
    const QStringList left = runs.Copies();
    bool full = true;
    WindowFixture& next = runs.Next({{LostWorkChoice::kRecover, 0}}, [&](WindowFixture& fixture) {
      const auto write = fixture.services.write_project;
      fixture.services.write_project = [write, &full](const std::filesystem::path& path,
                                                      const elements::Setup& setup) {
        if (full) throw Failure({}, "no space left on device");
        write(path, setup);
      };
    });
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    QCOMPARE(runs.Copies(), left);
    QVERIFY(next.Find<QLabel>("RigaStato")->text().startsWith("La copia di sicurezza"));
    full = false;
    next.Type("Text5_0", "88");
    next.window->close();
    QCOMPARE(runs.Copies().size(), 1);
    QVERIFY(runs.Copies() != left);
    QCOMPARE(runs.Next({{LostWorkChoice::kRecover, 0}}).Find<QLineEdit>("Text5_0")->text(), QString("88"));
  }

  void severalLostWorksAreListedAndDeletedOneByOne() {
    Runs runs;
    runs.Leave("71", runs.folder.filePath("prima.drav"));
    runs.Leave("72", runs.folder.filePath("seconda.drav"));
    runs.Leave("73");
    WindowFixture& next = runs.Next({{LostWorkChoice::kDelete, 1}, {LostWorkChoice::kRecover, 1}});
    QCOMPARE(next.lost.size(), 2U);
    QCOMPARE(runs.Names(next.lost[0]), QStringList({"", "seconda", "prima"}));  // the latest first
    QCOMPARE(next.asked.size(), 1);
    QVERIFY2(next.asked[0].contains("seconda"), qPrintable(next.asked[0]));
    QCOMPARE(runs.Names(next.lost[1]), QStringList({"", "prima"}));
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("71"));
    // What was neither recovered nor deleted is there still, beside the copy of the work that is open.
    QCOMPARE(runs.Copies().size(), 2);
  }

  void deletingIsAskedAbout() {
    Runs runs;
    runs.Leave("77");
    WindowFixture& next =
        runs.Next({{LostWorkChoice::kDelete, 0}}, [](WindowFixture& fixture) { fixture.go_on = false; });
    QCOMPARE(next.asked.size(), 1);
    QCOMPARE(next.lost.size(), 2U);  // the question stands again
    QCOMPARE(runs.Copies().size(), 1);
  }

  void workThatAnotherProgramHoldsIsNotOffered() {
    Runs runs;
    WindowFixture running;
    running.services.places.recovery = runs.Recovered();
    running.MakeWindow();
    running.Choose(kSingleGeneric);
    running.Type("Text5_0", "77");
    running.window->SurviveFailure("copied now");
    QCOMPARE(runs.Copies().size(), 1);
    QCOMPARE(runs.Next({}).lost.size(), 0U);
  }

  void closingAsksOnlyWhenTheWorkCannotBeKept() {
    Runs runs;
    WindowFixture fixture;
    bool full = false;
    fixture.services.places.recovery = runs.Recovered();
    const auto write = fixture.services.write_project;
    fixture.services.write_project = [&](const std::filesystem::path& path, const elements::Setup& setup) {
      if (full) throw Failure({}, "no space left on device");
      write(path, setup);
    };
    fixture.MakeWindow();
    fixture.window->show();
    fixture.Choose(kSingleGeneric);
    full = true;
    fixture.window->close();
    QCOMPARE(fixture.save_questions, 1);  // answered with cancel
    QVERIFY(fixture.window->isVisible());
    full = false;
    fixture.window->close();
    QCOMPARE(fixture.save_questions, 1);
    QVERIFY(!fixture.window->isVisible());
    QCOMPARE(runs.Copies().size(), 1);
  }

  void whatClosingDoesIsSaidTheFirstTime() {
    Runs runs;
    const auto said = [&](const char* thickness) {
      WindowFixture fixture;
      fixture.services.places.recovery = runs.Recovered();
      fixture.services.places.settings = runs.folder.filePath("finestra.ini").toStdString();
      fixture.MakeWindow();
      fixture.window->show();
      fixture.Choose(kSingleGeneric);
      fixture.Type("Text5_0", thickness);
      const auto* line = fixture.Find<QLabel>("RigaStato");
      // The copy is written a while after the change.
      if (!QTest::qWaitFor([&] { return !runs.Copies().isEmpty(); }, 20000)) return QString("no copy");
      const QString text = line->isVisible() ? line->text() : QString();
      fixture.open.MarkSaved();
      return text;
    };
    QVERIFY(said("71").contains("al prossimo avvio"));
    QCOMPARE(said("72"), QString());
  }

  void givingUpTheChangesLeavesNoCopy() {
    Runs runs;
    WindowFixture fixture;
    fixture.services.places.recovery = runs.Recovered();
    fixture.MakeWindow();
    fixture.Choose(kSingleGeneric);
    fixture.save = false;
    fixture.Find<QAction>("Button_23")->trigger();
    QCOMPARE(runs.Copies(), QStringList());
  }

  // --- the file behind the work ---
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::RecoveryTest)
#include "recovery_test.moc"
