// The windows over files that are locked, read-only, missing, damaged or not what they should be.
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <array>
#include <functional>
#include <memory>

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include "shell/structures/comparison_window.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
#include "shell/windows/picture_view.h"
#include "storage/library/library_store.h"
#include "tests/shell/structures/stores_fixture.h"
#include "tests/storage/support/databases.h"

namespace velmar::structures {
namespace {

namespace fs = std::filesystem;
constexpr const char* kThirdOctaveWalls = "Pareti in lastre su orditura - terzi d'ottava";

/// Spoils the results database in one way, and undoes it.
struct Spoiling {
  const char* name;
  const char* told;  ///< a piece of what the user is told
  bool lists;        ///< whether the names can still be read
  std::function<std::function<void()>(const fs::path&)> spoil;
};

std::function<void()> Hold(const fs::path& file) {
  auto other = std::make_shared<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE);
  other->exec("BEGIN EXCLUSIVE");
  return [other]() mutable {
    other->exec("ROLLBACK");
    other.reset();
  };
}

std::function<void()> MarkReadOnly(const fs::path& file) {
  fs::permissions(file, fs::perms::owner_read);
  return [file] { fs::permissions(file, fs::perms::owner_all); };
}

std::function<void()> PutAside(const fs::path& file) {
  const fs::path aside = file.string() + ".via";
  fs::rename(file, aside);
  return [file, aside] { fs::rename(aside, file); };
}

std::function<void()> Damage(const fs::path& file) {
  const auto undo = PutAside(file);
  QFile damaged(QString::fromStdString(file.string()));
  EXPECT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("this is no database");
  return undo;
}

std::function<void()> WithoutTables(const fs::path& file) {
  const auto undo = PutAside(file);
  storage::Execute(file, {"CREATE TABLE Altro (Nome TEXT)"});
  return undo;
}

class SpoiltResultsTest : public StoresTest, public testing::WithParamInterface<Spoiling> {
 protected:
  SpoiltResultsTest() { Store(storage::ResultTable::kAirborne, "Parete x"); }
};

TEST_P(SpoiltResultsTest, OpeningSaysSoAndF5ReadsWhenItIsMended) {
  auto undo = GetParam().spoil(places_.results);
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kList);
  Activate(window);
  const auto& grid = Child<QTableView>(window, "DBGrid1");
  EXPECT_EQ(grid.model()->rowCount(), GetParam().lists ? 1 : 0);
  EXPECT_EQ(boxes_.told.size(), GetParam().lists ? 0 : 1);
  if (!GetParam().lists) {
    EXPECT_TRUE(boxes_.told[0].contains(GetParam().told)) << boxes_.told[0].toStdString();
    EXPECT_FALSE(Child<QPushButton>(window, "Elimina").isEnabled());
  }
  undo();
  QTest::keyClick(&window, Qt::Key_F5);
  EXPECT_EQ(grid.model()->rowCount(), 1);
}

TEST_P(SpoiltResultsTest, DeletingSaysSoAndLosesNothing) {
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kList);
  window.show();
  auto undo = GetParam().spoil(places_.results);
  QTest::mouseClick(&Child<QPushButton>(window, "Elimina"), Qt::LeftButton);
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_TRUE(boxes_.told[0].contains(GetParam().told)) << boxes_.told[0].toStdString();
  EXPECT_TRUE(window.isVisible());
  undo();
  EXPECT_EQ(storage::ResultsStore(places_.results).List(storage::ResultTable::kAirborne).size(), 1U);
  QTest::mouseClick(&Child<QPushButton>(window, "Elimina"), Qt::LeftButton);
  EXPECT_TRUE(storage::ResultsStore(places_.results).List(storage::ResultTable::kAirborne).empty());
}

/// What can be read can be selected: only a file that cannot.
class UnreadableResultsTest : public SpoiltResultsTest {};

TEST_P(UnreadableResultsTest, SelectingSaysSoAndTheWindowStays) {
  std::vector<calculation::FacadePart> taken;
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kTake);
  QObject::connect(&window, &SavedResultsWindow::Taken, &window,
                   [&](const calculation::FacadePart& part) { taken.push_back(part); });
  window.show();
  auto undo = GetParam().spoil(places_.results);
  QTest::mouseClick(&Child<QPushButton>(window, "Seleziona"), Qt::LeftButton);
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_TRUE(taken.empty());
  EXPECT_TRUE(window.isVisible());
  undo();
  QTest::mouseClick(&Child<QPushButton>(window, "Seleziona"), Qt::LeftButton);
  EXPECT_EQ(taken.size(), 1U);
}

/// All but a file that is waited for.
class SpoiltAtOnceTest : public SpoiltResultsTest {};

TEST_P(SpoiltAtOnceTest, TheLibraryShowsItsOwnFilesBesideThem) {
  auto undo = GetParam().spoil(places_.results);
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  window.show();
  OpenLibraryFile(window, "TreeView1", "Database_teorico");
  EXPECT_EQ(boxes_.told.size(), GetParam().lists ? 0 : 1);
  OpenLibraryFile(window, "TreeView1", kThirdOctaveWalls);
  EXPECT_GT(Child<QListView>(window, "List1").model()->rowCount(), 0);
  undo();
}

const Spoiling kLocked = {"Locked", "altro programma", false, Hold};
const Spoiling kReadOnly = {"ReadOnly", "sola lettura", true, MarkReadOnly};
const Spoiling kMissing = {"Missing", "Database_teorico.mdb", false, PutAside};
const Spoiling kDamaged = {"Damaged", "danneggiato", false, Damage};
const Spoiling kWithoutTables = {"WithoutTables", "Potere_fonoisolante", false, WithoutTables};

std::string NameOf(const testing::TestParamInfo<Spoiling>& test) { return test.param.name; }

INSTANTIATE_TEST_SUITE_P(Ways, SpoiltResultsTest,
                         testing::Values(kLocked, kReadOnly, kMissing, kDamaged, kWithoutTables), NameOf);
INSTANTIATE_TEST_SUITE_P(Ways, UnreadableResultsTest, testing::Values(kMissing, kDamaged, kWithoutTables),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(Ways, SpoiltAtOnceTest,
                         testing::Values(kReadOnly, kMissing, kDamaged, kWithoutTables), NameOf);

class BadLibraryTest : public StoresTest {};

TEST_F(BadLibraryTest, ADamagedFileIsToldAndTheOthersStayUsable) {
  const fs::path walls = CopyLibrary();
  QFile damaged(QString::fromStdString((walls / "Guasto.mdb").string()));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("this is no database");
  damaged.close();
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  OpenLibraryFile(window, "TreeView1", "Guasto");
  EXPECT_EQ(boxes_.told.size(), 1);
  OpenLibraryFile(window, "TreeView1", kThirdOctaveWalls);
  EXPECT_GT(Child<QListView>(window, "List1").model()->rowCount(), 0);
}

TEST_F(BadLibraryTest, AFileThatGoesWhileItIsOpenIsTold) {
  const fs::path walls = CopyLibrary();
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  Activate(window);
  OpenLibraryFile(window, "TreeView1", kThirdOctaveWalls);
  fs::remove(walls / (std::string(kThirdOctaveWalls) + ".mdb"));
  SelectTest(window, "List1", 0);
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Child<QLineEdit>(window, "Text4").text(), "");
  QTest::keyClick(&window, Qt::Key_F5);
  EXPECT_EQ(Child<QListView>(window, "List1").model()->rowCount(), 0);
  EXPECT_EQ(boxes_.told.size(), 1);
}

TEST_F(BadLibraryTest, ALibraryThatIsNotThereGivesEmptyTrees) {
  places_.library = InFolder("none");
  places_.pictures = InFolder("none");
  for (const LibraryPurpose purpose : {LibraryPurpose::kOpaquePart, LibraryPurpose::kComponents,
                                       LibraryPurpose::kAirborneData, LibraryPurpose::kImpactData}) {
    MeasuredLibraryWindow window(boxes_.Tools(), Library(), {.purpose = purpose});
    window.show();
  }
  const ComparisonWindow comparison(boxes_.Tools(), Library(), elements::Family::kLining,
                                    [](const Overlay&) {});
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(BadLibraryTest, PicturesThatAreMissingOrNoneShowTheSubstitute) {
  const fs::path walls = CopyLibrary();
  const storage::LibraryFolder kind = *storage::FindLibraryFolder("Rw");
  const fs::path file = walls / "Immagini.mdb";
  storage::MakeTables(file, {kind.table});
  storage::Execute(file, {"INSERT INTO Rw_laboratorio (Nome, Immagine) VALUES ('manca', 'manca.jpg'), "
                          "('nulla', NULL), ('fuori', '..\\..\\..\\etc\\passwd'), ('guasta', 'guasta.jpg'), "
                          "('vera', 'VERA.PNG')"});
  places_.pictures = InFolder("immagine");
  const fs::path pictures = places_.pictures / kind.folder;
  fs::create_directories(pictures);
  fs::copy_file(fs::path(SHARE) / "Databases" / "immagine" / "senza.jpg", places_.pictures / "senza.jpg");
  QFile broken(QString::fromStdString((pictures / "guasta.jpg").string()));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("not a picture");
  broken.close();
  QImage(40, 30, QImage::Format_RGB32).save(QString::fromStdString((pictures / "vera.png").string()));
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  OpenLibraryFile(window, "TreeView1", "Immagini");
  const auto* picture = dynamic_cast<shell::PictureView*>(&Child<QWidget>(window, "Picture2"));
  ASSERT_NE(picture, nullptr);
  const std::array shown = {true, true, true, false, true};
  for (int row = 0; row < 5; ++row) {
    SelectTest(window, "List1", row);
    EXPECT_EQ(picture->HasPicture(), shown.at(static_cast<std::size_t>(row))) << row;
  }
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(BadLibraryTest, NamesWithQuotesAccentsAndSignsAreFound) {
  const fs::path walls = CopyLibrary();
  const storage::LibraryFolder kind = *storage::FindLibraryFolder("Rw");
  const fs::path file = walls / "Muri d'ambito \"à\".mdb";
  storage::MakeTables(file, {kind.table});
  const std::vector<std::string> names = {"Parete d'ambito", "Parete \"doppia\"", "Perché è così; DROP TABLE",
                                          "50 % [x] *?", "Ω µ ³"};
  std::vector<std::vector<storage::Cell>> rows;
  for (const std::string& name : names) {
    rows.emplace_back(kind.table.columns.size());
    rows.back()[0] = name;
    rows.back()[3] = 40.0 + static_cast<double>(rows.size());
  }
  storage::InsertRows(file, kind.table, rows);
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  OpenLibraryFile(window, "TreeView1", "Muri d'ambito \"à\"");
  for (int row = 0; row < 5; ++row) {
    SelectTest(window, "List1", row);
    EXPECT_EQ(Child<QLineEdit>(window, "Text4").text(), QString::number(41 + row));
  }
  EXPECT_TRUE(boxes_.told.isEmpty());
}

class ResultNamesTest : public StoresTest, public testing::WithParamInterface<const char*> {};

TEST_P(ResultNamesTest, AreListedTakenCopiedAndDeleted) {
  Store(storage::ResultTable::kAirborne, "Altra");
  Store(storage::ResultTable::kAirborne, GetParam());
  std::vector<calculation::FacadePart> taken;
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kTake);
  QObject::connect(&window, &SavedResultsWindow::Taken, &window,
                   [&](const calculation::FacadePart& part) { taken.push_back(part); });
  window.show();
  auto& grid = Child<QTableView>(window, "DBGrid1");
  grid.setCurrentIndex(grid.model()->index(1, 0));
  QTest::mouseClick(&Child<QPushButton>(window, "Seleziona"), Qt::LeftButton);
  ASSERT_EQ(taken.size(), 1U);
  EXPECT_EQ(taken[0].name, GetParam());
  window.show();
  QTest::mouseClick(&Child<QPushButton>(window, "Elimina"), Qt::LeftButton);
  EXPECT_TRUE(boxes_.questions[0].endsWith(QString::fromUtf8(GetParam()) + "?"));
  const auto left = storage::ResultsStore(places_.results).List(storage::ResultTable::kAirborne);
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0].name, "Altra");
  EXPECT_TRUE(boxes_.told.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Names, ResultNamesTest,
                         testing::Values("Parete d'ambito", "Parete \"doppia\"", "Però È", "a;--DROP TABLE x",
                                         "<b>&amp;</b>", "100 % _ * ?", "Ω µ ³"));

}  // namespace
}  // namespace velmar::structures
