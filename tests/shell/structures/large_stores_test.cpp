// The windows over thousands of rows in real database files.
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>

#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
#include "storage/library/library_store.h"
#include "tests/shell/structures/stores_fixture.h"
#include "tests/storage/support/databases.h"

namespace velmar::structures {
namespace {

constexpr int kTests = 5000;
constexpr int kResults = 2000;

class LargeStoresTest : public StoresTest {};

TEST_F(LargeStoresTest, AFileOfFiveThousandTestsIsListedSearchedAndShown) {
  const storage::LibraryFolder kind = *storage::FindLibraryFolder("Rw");
  const std::filesystem::path file = CopyLibrary() / "Grande.mdb";
  storage::MakeTables(file, {kind.table});
  std::vector<std::vector<storage::Cell>> rows;
  for (int i = 0; i < kTests; ++i) {
    std::vector<storage::Cell> row(kind.table.columns.size());
    for (std::size_t column = 3; column < row.size(); ++column) {
      if (kind.table.columns[column].type == storage::ColumnType::kNumber) row[column] = 30.0 + i % 40;
    }
    row[0] = "Prova numero " + std::to_string(i);
    row[1] = "Parete di prova con una descrizione lunga come quelle dei certificati, n. " + std::to_string(i);
    row[2] = "parola " + std::to_string(i % 500);
    rows.push_back(std::move(row));
  }
  storage::InsertRows(file, kind.table, rows);

  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  window.show();
  window.grab();
  OpenLibraryFile(window, "TreeView1", "Grande");
  window.grab();
  const auto& list = Child<QListView>(window, "List1");
  ASSERT_EQ(list.model()->rowCount(), kTests);
  QTest::keyClicks(&Child<QLineEdit>(window, "List1_cerca"), "numero 49");
  EXPECT_EQ(list.model()->rowCount(), 199);
  SelectTest(window, "List1", 100);
  window.grab();
  EXPECT_FALSE(Child<QLineEdit>(window, "Text4").text().isEmpty());
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(LargeStoresTest, TwoThousandStoredResultsAreListedAndSearched) {
  std::vector<std::vector<storage::Cell>> rows;
  for (int i = 0; i < kResults; ++i) {
    storage::SavedResult result;
    result.name = "Parete numero " + std::to_string(i);
    result.description =
        "PARETE 1: Intonaco di calce e cemento (15 mm); Mattone forato (80 mm) " + std::to_string(i);
    result.rating = 40 + i % 20;
    result.bands.fill(45.5);
    rows.push_back(storage::CellsFromResult(storage::ResultTable::kAirborne, result));
  }
  storage::InsertRows(places_.results, storage::AirborneResultTable(), rows);

  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kList);
  window.show();
  window.grab();
  const auto& grid = Child<QTableView>(window, "DBGrid1");
  EXPECT_EQ(grid.model()->rowCount(), kResults);
  QTest::keyClicks(&Child<QLineEdit>(window, "TextCerca"), "numero 199");
  EXPECT_EQ(grid.model()->rowCount(), 12);
}

}  // namespace
}  // namespace velmar::structures
