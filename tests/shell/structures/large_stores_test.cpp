// The windows over thousands of rows in real database files. The times are told, not judged: they are the
// machine's. Run alone to read them.
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>

#include "shell/structures/comparison_window.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
#include "storage/library/library_store.h"
#include "tests/shell/structures/stores_fixture.h"
#include "tests/storage/support/databases.h"

namespace velmar::structures {
namespace {

constexpr int kTests = 5000;
constexpr int kResults = 2000;

class LargeStoresTest : public StoresTest {
 protected:
  void Tell(const char* what, qint64 elapsed_ms) {
    RecordProperty(what, static_cast<int>(elapsed_ms));
    std::printf("%s: %lld ms\n", what, static_cast<long long>(elapsed_ms));
  }

  /// Types `text` and draws after every key, as a screen would. @return the slowest key
  qint64 SlowestKey(QWidget& window, QLineEdit& field, const QString& text) {
    qint64 slowest_ms = 0;
    for (const QChar letter : text) {
      QElapsedTimer timer;
      timer.start();
      QTest::keyClicks(&field, QString(letter));
      window.grab();
      slowest_ms = std::max(slowest_ms, timer.elapsed());
    }
    return slowest_ms;
  }
};

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

  QElapsedTimer timer;
  timer.start();
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  window.show();
  window.grab();
  Tell("library window, opening", timer.restart());
  OpenLibraryFile(window, "TreeView1", "Grande");
  window.grab();
  Tell("library window, file of 5000 tests", timer.restart());
  const auto& list = Child<QListView>(window, "List1");
  ASSERT_EQ(list.model()->rowCount(), kTests);
  Tell("library window, slowest key of a search",
       SlowestKey(window, Child<QLineEdit>(window, "List1_cerca"), "numero 49"));
  EXPECT_EQ(list.model()->rowCount(), 199);
  timer.restart();
  SelectTest(window, "List1", 100);
  window.grab();
  Tell("library window, choosing a test", timer.elapsed());
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

  QElapsedTimer timer;
  timer.start();
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results), {});
  window.show();
  window.grab();
  Tell("results window, opening with 2000 results", timer.elapsed());
  const auto& grid = Child<QTableView>(window, "DBGrid1");
  EXPECT_EQ(grid.model()->rowCount(), kResults);
  Tell("results window, slowest key of a search",
       SlowestKey(window, Child<QLineEdit>(window, "TextCerca"), "numero 199"));
  EXPECT_EQ(grid.model()->rowCount(), 12);
  timer.restart();
  const ComparisonWindow comparison(boxes_.Tools(), Library(), elements::Family::kSingle,
                                    [](const Overlay&) {});
  Tell("comparison window, opening", timer.elapsed());
}

}  // namespace
}  // namespace velmar::structures
