#include <QAction>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <map>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr int kPatienceMs = 120'000;

/// What a tile or an entry says to who cannot see it; empty as long as it was not looked at.
QString Told(const QListWidgetItem& item) { return item.data(Qt::AccessibleTextRole).toString(); }

bool AllAreTold(const QListWidget& list) {
  for (int i = 0; i < list.count(); ++i) {
    if (Told(*list.item(i)).isEmpty()) return false;
  }
  return true;
}

QListWidgetItem* ItemOf(const QListWidget& list, const QString& name) {
  const auto found = list.findItems(name, Qt::MatchExactly);
  return found.isEmpty() ? nullptr : found.first();
}

QStringList Shown(const QListWidget& list) {
  QStringList names;
  for (int i = 0; i < list.count(); ++i) {
    if (!list.item(i)->isHidden()) names += list.item(i)->text();
  }
  names.sort();
  return names;
}

/// The text of the label `name`, empty when it is not there to be read.
QString Read(const WindowFixture& fixture, const QString& name) {
  const auto* label = fixture.Find<QLabel>(name);
  return label->isVisible() ? label->text() : QString();
}

}  // namespace

/// The constructions and recent projects that the window begins with.
class StartScreenTest : public QObject {
  Q_OBJECT

 private slots:
  // Whatever a tile says of an example, opening and running it shows.
  void tilesTellWhatOpeningAndRunningShows() {
    Examples fixture(EXAMPLES);
    const auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    QCOMPARE(tiles->count(), static_cast<int>(ProjectsIn(EXAMPLES).size()));
    QTRY_VERIFY_WITH_TIMEOUT(AllAreTold(*tiles), kPatienceMs);
    std::map<QString, QString> told;
    for (int i = 0; i < tiles->count(); ++i)
      told[tiles->item(i)->data(Qt::UserRole).toString()] = Told(*tiles->item(i));
    fixture.go_on = false;
    fixture.save = false;
    int asked = 0;
    for (const auto& [path, tile] : told) {
      fixture.window->OpenProject(path.toStdString());
      fixture.asked.clear();
      fixture.Run();
      const QString rating = Read(fixture, "Label4");
      if (fixture.asked.isEmpty()) {
        QVERIFY2(!rating.isEmpty(), qPrintable(path));
        QVERIFY2(tile.contains(' ' + rating), qPrintable(path + ": " + rating + " / " + tile));
      } else {
        ++asked;
        QVERIFY2(tile.contains("fuori campo") && !tile.contains(" dB"), qPrintable(tile));
      }
      const double mass = fixture.open.CurrentTotals().surface_mass_kg_m2;
      // To the even neighbour of a half, as every number that is shown.
      const QString rounded = QString::number(std::nearbyint(mass)) + " kg/m²";
      if (mass > 0.0) QVERIFY2(tile.contains(rounded), qPrintable(tile));
    }
    QVERIFY(asked > 0);
  }

  void aKindShowsItsConstructionsAlone() {
    const QTemporaryDir folder;
    for (const char* name : {"parete-forato-intonacata", "calpestio-galleggiante", "doppia-forati-lana"})
      QFile::copy(QString("%1/%2.drav").arg(EXAMPLES, name), folder.filePath(QString(name) + ".drav"));
    Examples fixture(folder.path());
    const auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    QTRY_VERIFY_WITH_TIMEOUT(AllAreTold(*tiles), kPatienceMs);
    auto* kinds = fixture.Find<QComboBox>("TipoCostruzioni");
    kinds->setCurrentIndex(kinds->findText("Solaio"));
    QCOMPARE(Shown(*tiles), QStringList({"Calpestio galleggiante"}));
    kinds->setCurrentIndex(kinds->findText("Parete singola"));
    QCOMPARE(Shown(*tiles), QStringList({"Parete forato intonacata"}));
    kinds->setCurrentIndex(kinds->findText("Modelli propri"));
    QCOMPARE(Shown(*tiles), QStringList());
    kinds->setCurrentIndex(0);
    QCOMPARE(Shown(*tiles).size(), 3);
  }

  void aFileThatCannotBeReadIsMarkedAndHoldsNobodyUp() {
    const QTemporaryDir folder;
    QFile::copy(EXAMPLES "/vetro-6.drav", folder.filePath("vetro-6.drav"));
    QFile rubbish(folder.filePath("a-rotto.drav"));
    QVERIFY(rubbish.open(QIODevice::WriteOnly));
    rubbish.write("VELMAR 2.0.0\nProgetto\n");
    rubbish.close();
    Examples fixture(folder.path());
    const auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    QTRY_VERIFY_WITH_TIMEOUT(AllAreTold(*tiles), kPatienceMs);
    QVERIFY2(Told(*ItemOf(*tiles, "A rotto")).contains("⚠ non leggibile"),
             qPrintable(Told(*ItemOf(*tiles, "A rotto"))));
    QVERIFY(Told(*ItemOf(*tiles, "Vetro 6")).contains("Rw "));
    QCOMPARE(fixture.told, QStringList());
  }

  // The set-up that is read stays out of the open work, and so does a reading that is still going on.
  void lookingChangesNothing() {
    Examples fixture(EXAMPLES);
    const elements::Setup before = fixture.open.Setup();
    const auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    QTRY_VERIFY_WITH_TIMEOUT(!Told(*tiles->item(3)).isEmpty(), kPatienceMs);
    QVERIFY(fixture.open.Setup() == before);
    QVERIFY(fixture.open.IsSaved());
    fixture.window->OpenProject(EXAMPLES "/vetro-6.drav");
    fixture.window.reset();  // while tiles are still being read
  }

  void tilesFillTheirLine() {
    WindowFixture fixture;
    fixture.services.places.examples = EXAMPLES;
    fixture.MakeWindow();
    fixture.window->resize(1366, 768);
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    const auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    const auto place = [tiles](int i) { return tiles->visualItemRect(tiles->item(i)); };
    int in_line = 1;
    while (place(in_line).top() == place(0).top()) ++in_line;
    const int left_over = tiles->viewport()->width() - place(in_line - 1).right();
    QVERIFY2(left_over >= 0 && left_over < 16, qPrintable(QString::number(left_over)));
  }

  void recentProjectsTellWhatTheyAre() {
    const QTemporaryDir folder;
    const QString mine = folder.filePath("mia.drav");
    QFile::copy(EXAMPLES "/parete-forato-intonacata.drav", mine);
    QFile written(mine);
    QVERIFY(written.open(QIODevice::ReadWrite));
    QVERIFY(
        written.setFileTime(QDateTime(QDate(2026, 3, 9), QTime(12, 0)), QFileDevice::FileModificationTime));
    written.close();
    WindowFixture fixture;
    fixture.services.places.settings = folder.filePath("finestra.ini").toStdString();
    fixture.MakeWindow();
    fixture.window->OpenProject(mine.toStdString());
    fixture.Run();
    const QString rating = fixture.Find<QLabel>("Label4")->text();
    fixture.open.MarkSaved();
    fixture.window->show();
    fixture.Find<QAction>("nuovo_progetto")->trigger();
    const auto* recent = fixture.Find<QListWidget>("Recenti");
    QCOMPARE(recent->count(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(!Told(*recent->item(0)).isEmpty(), kPatienceMs);
    const QString told = Told(*recent->item(0));
    QVERIFY2(told.contains("Rw " + rating + " · Parete singola: Laterizio · 09/03/2026"), qPrintable(told));
    QVERIFY(told.contains(mine));
  }

  void aTemplateIsKeptAndBegunAsAWorkWithoutAName() {
    const QTemporaryDir folder;
    WithTemplates fixture(folder);
    fixture.window->OpenProject(EXAMPLES "/doppia-forati-lana.drav");
    fixture.Type("Text5_1", "123");
    fixture.open.Edit([](elements::Setup& setup) { setup.information[1].value = "Cliente riservato"; });
    fixture.Keep("Doppia della casa");
    const QString file = folder.filePath("modelli/Doppia della casa.drav");
    QVERIFY(QFileInfo::exists(file));
    QVERIFY(!fixture.open.IsSaved());  // a template is no project file
    elements::Setup kept = fixture.open.Setup();
    fixture.save = false;
    fixture.Find<QAction>("nuovo_progetto")->trigger();
    auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    QCOMPARE(tiles->item(0)->text(), QString("Doppia della casa"));
    QTest::mouseClick(tiles->viewport(), Qt::LeftButton, {}, tiles->visualItemRect(tiles->item(0)).center());
    QTRY_VERIFY(fixture.open.Setup().calculation.has_value());
    QVERIFY(fixture.window->windowTitle().endsWith(" - Nuovo"));
    QVERIFY(fixture.open.IsSaved());
    QCOMPARE(fixture.open.Setup().information[1].value, std::string());
    kept.information = fixture.open.Setup().information;
    QVERIFY(fixture.open.Setup() == kept);
    // Saving it asks for a file of its own.
    fixture.Type("Text5_1", "124");
    fixture.to_save.clear();
    fixture.file.clear();
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.to_save.size(), 1U);
    QVERIFY(!fixture.to_save[0].start.contains("modelli"));
  }

  void aTemplateOfANameThatIsThereIsReplacedOnlyOnRequest() {
    const QTemporaryDir folder;
    WithTemplates fixture(folder);
    fixture.window->OpenProject(EXAMPLES "/vetro-6.drav");
    fixture.Keep("Uno");
    const QByteArray first = Bytes(folder.filePath("modelli/Uno.drav"));
    fixture.window->OpenProject(EXAMPLES "/doppia-forati-lana.drav");
    fixture.go_on = false;
    fixture.Keep("Uno");
    QCOMPARE(fixture.asked.size(), 1);
    QCOMPARE(Bytes(folder.filePath("modelli/Uno.drav")), first);
    fixture.go_on = true;
    fixture.Keep("Uno");
    QVERIFY(Bytes(folder.filePath("modelli/Uno.drav")) != first);
  }

  void aNameThatNoFileCanHaveIsRefused() {
    const QTemporaryDir folder;
    WithTemplates fixture(folder);
    fixture.window->OpenProject(EXAMPLES "/vetro-6.drav");
    for (const QString& name : {QString("../fuori"), QString(".nascosto"), QString(300, 'a')}) {
      fixture.told.clear();
      fixture.Keep(name);
      QCOMPARE(fixture.told.size(), 1);
    }
    QVERIFY(QDir(folder.filePath("modelli")).entryList(QDir::Files | QDir::Hidden).isEmpty());
    QVERIFY(!QFileInfo::exists(folder.filePath("fuori.drav")));
  }

  void templatesAreRenamedAndDeletedOnTheirTile() {
    const QTemporaryDir folder;
    WithTemplates fixture(folder);
    fixture.window->OpenProject(EXAMPLES "/vetro-6.drav");
    for (const char* name : {"Alfa", "Beta"}) fixture.Keep(name);
    fixture.Find<QAction>("nuovo_progetto")->trigger();
    auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    tiles->setCurrentRow(0);
    fixture.name = "Beta";  // taken
    QTest::keyClick(tiles, Qt::Key_F2);
    QCOMPARE(fixture.told.size(), 1);
    fixture.name = "Gamma";
    QTest::keyClick(tiles, Qt::Key_F2);
    QVERIFY(ItemOf(*tiles, "Alfa") == nullptr);
    QVERIFY(ItemOf(*tiles, "Gamma") != nullptr);
    QVERIFY(QFileInfo::exists(folder.filePath("modelli/Gamma.drav")));
    tiles->setCurrentItem(ItemOf(*tiles, "Gamma"));
    fixture.go_on = false;
    QTest::keyClick(tiles, Qt::Key_Delete);
    QVERIFY(fixture.asked.last().contains("Gamma"));
    QVERIFY(ItemOf(*tiles, "Gamma") != nullptr);
    fixture.go_on = true;
    QTest::keyClick(tiles, Qt::Key_Delete);
    QVERIFY(ItemOf(*tiles, "Gamma") == nullptr);
    QVERIFY(!QFileInfo::exists(folder.filePath("modelli/Gamma.drav")));
    QVERIFY(QFileInfo::exists(folder.filePath("modelli/Beta.drav")));
  }

  void examplesAreNeitherRenamedNorDeleted() {
    Examples fixture(EXAMPLES);
    auto* tiles = fixture.Find<QListWidget>("Costruzioni");
    tiles->setCurrentRow(0);
    QTest::keyClick(tiles, Qt::Key_Delete);
    QTest::keyClick(tiles, Qt::Key_F2);
    QCOMPARE(fixture.asked, QStringList());
    QVERIFY(QFileInfo::exists(tiles->item(0)->data(Qt::UserRole).toString()));
  }

  void withoutAFolderNoTemplatesAreKept() {
    const WindowFixture fixture;
    QVERIFY(!fixture.Find<QAction>("salva_come_modello")->isVisible());
  }

 private:
  /// A window over the examples in `folder`.
  struct Examples : WindowFixture {
    explicit Examples(const QString& folder) {
      services.places.examples = folder.toStdString();
      MakeWindow();
      window->show();
    }
  };
  /// A window that keeps templates in "modelli" of `folder`, and asks nobody for their names but `name`.
  struct WithTemplates : WindowFixture {
    explicit WithTemplates(const QTemporaryDir& folder) {
      services.places.templates = folder.filePath("modelli").toStdString();
      services.boxes.ask_name = [this](const NameQuestion&) { return name; };
      MakeWindow();
      window->show();
    }
    void Keep(const QString& as) {
      name = as;
      Find<QAction>("salva_come_modello")->trigger();
    }

    QString name;
  };

  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::StartScreenTest)
#include "start_screen_test.moc"
