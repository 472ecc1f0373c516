#include "shell/materials/store_source.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <filesystem>
#include <fstream>
#include <functional>

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "shell/materials/material_list_window.h"
#include "shell/materials/material_tree_window.h"
#include "storage/materials/material_store.h"
#include "tests/shell/materials/fake_source.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;
namespace fs = std::filesystem;

/// A copy of the shipped material database.
class StoreSourceTest : public testing::Test {
 protected:
  StoreSourceTest() : file_(folder_.filePath("Database.mdb").toStdString()) {
    fs::copy_file(fs::path(SHARE) / "Databases" / "Database" / "Database.mdb", file_);
    fs::permissions(file_, fs::perms::owner_all);
  }

  QTemporaryDir folder_;
  fs::path file_;
  FakeBoxes boxes_;
};

TEST_F(StoreSourceTest, TheShippedTablesAreListedWhole) {
  MaterialListWindow window(boxes_.Tools(), StoredMaterials(file_), std::nullopt, {});
  window.show();
  const QTableView& grid = Child<QTableView>(window, "DataGrid1");
  const std::pair<const char*, std::size_t> options[] = {
      {"Option1_0", storage::MaterialStore(file_).List(MaterialFamily::kStructural).size()},
      {"Option1_1", storage::MaterialStore(file_).List(MaterialFamily::kResilient).size()},
      {"Option1_2", storage::MaterialStore(file_).List(MaterialFamily::kFibrous).size()}};
  for (const auto& [option, rows] : options) {
    Child<QRadioButton>(window, option).click();
    EXPECT_EQ(grid.model()->rowCount(), static_cast<int>(rows));
    EXPECT_GT(rows, 30U);
    Picture(window, QStringLiteral("form2-") + QLatin1String(option));
  }
  EXPECT_TRUE(boxes_.told.isEmpty());
}

// Another program that saves keeps readers out for a moment: the window paints meanwhile.
TEST_F(StoreSourceTest, ALockIsWaitedForByAWindowThatLives) {
  MaterialListWindow window(boxes_.Tools(), StoredMaterials(file_), std::nullopt, {});
  window.show();
  SQLite::Database other(file_.string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  // Only a window that goes on handling events lets the other program finish.
  bool lived = false;
  QTimer::singleShot(30, &window, [&] {
    lived = true;
    other.exec("ROLLBACK");
  });
  Child<QRadioButton>(window, "Option1_2").click();
  EXPECT_TRUE(lived);
  EXPECT_TRUE(boxes_.told.isEmpty());
  EXPECT_GT(Child<QTableView>(window, "DataGrid1").model()->rowCount(), 30);
}

TEST_F(StoreSourceTest, AFileThatIsHeldForGoodIsTold) {
  MaterialListWindow window(boxes_.Tools(), StoredMaterials(file_), std::nullopt, {});
  window.show();
  SQLite::Database other(file_.string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  Child<QRadioButton>(window, "Option1_2").click();
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_TRUE(boxes_.told.first().contains("in uso in un altro programma"))
      << boxes_.told.first().toStdString();
}

TEST_F(StoreSourceTest, TheTreeShowsAShippedMaterial) {
  MaterialTreeWindow window(boxes_.Tools(), StoredMaterials(file_), {});
  window.show();
  QTest::keyClicks(&Child<QLineEdit>(window, "TextCerca"), "mattone pieno");
  EXPECT_EQ(Child<QLabel>(window, "LabelNome").text(), "Mattone pieno");
  EXPECT_EQ(Child<QLabel>(window, "LabelDensita").text(), "1800");
  Picture(window, "albero");
}

TEST_F(StoreSourceTest, ANameWithAQuoteIsFoundAndDeleted) {
  storage::MaterialStore store(file_);
  store.Add<elements::StructuralMaterial>({Wall("Pietra d'Istria \"bianca\"; --", 2600, "pietre")});
  MaterialListWindow window(boxes_.Tools(), StoredMaterials(file_), std::nullopt, {});
  QTest::keyClicks(&Child<QLineEdit>(window, "TextCerca"), "d'istria");
  QTest::mouseClick(&Child<QPushButton>(window, "Command4"), Qt::LeftButton);
  EXPECT_FALSE(store.Find<elements::StructuralMaterial>("Pietra d'Istria \"bianca\"; --"));
  EXPECT_EQ(store.List(MaterialFamily::kStructural).size(),
            storage::MaterialStore(fs::path(SHARE) / "Databases" / "Database" / "Database.mdb")
                .List(MaterialFamily::kStructural)
                .size());
}

TEST_F(StoreSourceTest, ChangesOfAnotherStoreAreSeenOnRefresh) {
  MaterialListWindow window(boxes_.Tools(), StoredMaterials(file_), std::nullopt, {});
  window.show();
  const QTableView& grid = Child<QTableView>(window, "DataGrid1");
  const int before = grid.model()->rowCount();
  storage::MaterialStore(file_).Add<elements::StructuralMaterial>({Wall("Tufo di prova", 1500, "pietre")});
  EXPECT_EQ(grid.model()->rowCount(), before);
  QTest::keyClick(&window, Qt::Key_F5);
  EXPECT_EQ(grid.model()->rowCount(), before + 1);
}

/// A database in a state in which it cannot be changed or read.
struct Trouble {
  const char* name = "";
  std::function<std::shared_ptr<void>(const fs::path&)> make{};  ///< what it gives holds the state
  bool readable = false;
};

class TroubledStoreTest : public StoreSourceTest, public testing::WithParamInterface<int> {
 public:
  static const std::vector<Trouble>& Troubles() {
    static const std::vector<Trouble> troubles = {
        {"ReadOnly",
         [](const fs::path& file) {
           fs::permissions(file, fs::perms::owner_read);
           return nullptr;
         },
         true},
        {"Locked",
         [](const fs::path& file) {
           const auto other = std::make_shared<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE);
           other->exec("BEGIN EXCLUSIVE");
           return other;
         },
         false},
        {"Missing",
         [](const fs::path& file) {
           fs::remove(file);
           return nullptr;
         },
         false},
        {"Corrupt",
         [](const fs::path& file) {
           std::ofstream(file, std::ios::binary) << "this is no database";
           return nullptr;
         },
         false},
    };
    return troubles;
  }
};

TEST_P(TroubledStoreTest, IsToldAndTheWindowsStayUsable) {
  const Trouble& trouble = Troubles().at(static_cast<std::size_t>(GetParam()));
  MaterialListWindow window(boxes_.Tools(), StoredMaterials(file_), std::nullopt, {});
  window.show();
  const QTableView& grid = Child<QTableView>(window, "DataGrid1");
  const int before = grid.model()->rowCount();
  const fs::path kept = file_.string() + ".kept";
  fs::copy_file(file_, kept);
  auto held = trouble.make(file_);
  QTest::mouseClick(&Child<QPushButton>(window, "Command4"), Qt::LeftButton);
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_FALSE(boxes_.told.front().isEmpty());
  EXPECT_EQ(grid.model()->rowCount(), before);
  QTest::keyClick(&window, Qt::Key_F5);
  EXPECT_EQ(boxes_.told.size(), trouble.readable ? 1 : 2);
  EXPECT_EQ(grid.model()->rowCount(), before) << "what was shown stays";
  held.reset();
  fs::remove(file_);
  fs::rename(kept, file_);
  fs::permissions(file_, fs::perms::owner_all);
  QTest::mouseClick(&Child<QPushButton>(window, "Command4"), Qt::LeftButton);
  EXPECT_EQ(grid.model()->rowCount(), before - 1);
}

INSTANTIATE_TEST_SUITE_P(Database, TroubledStoreTest, testing::Range(0, 4), [](const auto& trouble) {
  return std::string(TroubledStoreTest::Troubles().at(static_cast<std::size_t>(trouble.param)).name);
});

}  // namespace
}  // namespace velmar::shell
