#include "shell/structures/store_sources.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/structures/comparison_window.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
#include "storage/results/results_store.h"
#include "tests/shell/structures/fake_sources.h"

namespace velmar::structures {
namespace {

constexpr const char* kThirdOctaveWalls = "Pareti in lastre su orditura - terzi d'ottava";

/// The shipped library, beside a results database of the test's own.
class StoreSourcesTest : public testing::Test {
 protected:
  StoreSourcesTest() {
    const std::filesystem::path databases = std::filesystem::path(SHARE) / "Databases";
    places_.library = databases / "Database";
    places_.pictures = databases / "immagine";
    places_.results = folder_.filePath("Database_teorico.mdb").toStdString();
    std::filesystem::copy_file(places_.library / "Database_teorico.mdb", places_.results);
    std::filesystem::permissions(places_.results, std::filesystem::perms::owner_all);
  }

  LibrarySource Library() const {
    return MeasuredLibrary(places_, std::make_shared<storage::AccessSession>(storage::AccessReader{}));
  }

  storage::SavedResult Store(storage::ResultTable table, const std::string& name) {
    storage::SavedResult result;
    result.name = name;
    result.description = name + ", 200 mm";
    result.rating = 54;
    result.adaptation = -1;
    result.other_adaptation = -5;
    result.area_m2 = 10.8;
    result.thickness_mm = 230;
    result.mass_kg_m2 = 310.5;
    for (std::size_t i = 0; i < result.bands.size(); ++i) result.bands[i] = 33.25 + static_cast<double>(i);
    EXPECT_EQ(storage::ResultsStore(places_.results).Save(table, result), storage::SaveStatus::kSaved);
    return result;
  }

  QTemporaryDir folder_;
  LibraryPlaces places_;
  FakeBoxes boxes_;
};

TEST_F(StoreSourcesTest, TheLibraryWindowShowsAShippedTest) {
  MeasuredTarget target;
  target.take = [](const calculation::FacadePart&) {};
  QElapsedTimer timer;
  timer.start();
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), target);
  window.show();
  std::printf("shipped library: opening %lld ms\n", static_cast<long long>(timer.elapsed()));
  OpenLibraryFile(window, "TreeView1", kThirdOctaveWalls);
  SelectTest(window, "List1", 0);
  EXPECT_EQ(Child<QLabel>(window, "Label3").text(), "Rw(C,Ctr)= 38(-6, -11) dB");
  EXPECT_EQ(Child<QLineEdit>(window, "Text1_0").text(), "21,5");
  EXPECT_EQ(Child<QLineEdit>(window, "Text1_20").text(), "53,0");
  EXPECT_EQ(Child<QLineEdit>(window, "TextMassa").text(), "-");
  EXPECT_TRUE(boxes_.told.isEmpty());
  Picture(window, "form9");
}

TEST_F(StoreSourcesTest, EveryShippedTestCanBeRead) {
  const LibrarySource library = Library();
  int read = 0;
  for (const Branch branch :
       {Branch::kWalls, Branch::kLinings, Branch::kFloors, Branch::kCoverings, Branch::kOpenings,
        Branch::kSmallElements, Branch::kFieldWalls, Branch::kFieldFloors}) {
    for (const LibraryFile& file : library.files(branch)) {
      for (const TestEntry& entry : library.tests(file)) {
        const auto test = library.test(file, entry.name);
        ASSERT_TRUE(test.has_value()) << entry.name;
        EXPECT_EQ(test->part.origin, calculation::PartOrigin::kMeasurement);
        ++read;
      }
    }
  }
  EXPECT_GT(read, 300);
}

TEST_F(StoreSourcesTest, AStoredResultIsListedCopiedTakenAndDeleted) {
  const storage::SavedResult stored = Store(storage::ResultTable::kAirborne, "Parete x");
  std::optional<calculation::FacadePart> taken;
  SavedResultsWindow::Listener listener;
  listener.take = [&](const calculation::FacadePart& part) { taken = part; };
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results), listener);
  window.show();
  ASSERT_EQ(Child<QLineEdit>(window, "Text2").text(), "Parete x");
  QTest::mouseClick(&Child<QPushButton>(window, "Copia"), Qt::LeftButton);
  const QString copied = QApplication::clipboard()->mimeData()->text();
  for (const char* piece : {"Nome", "Parete x", "Indice di valutazione [dB]", "Area [m²]", "10,8", "53,2",
                            "5000", "C [dB]", "Ctr [dB]"})
    EXPECT_TRUE(copied.contains(piece)) << piece << "\n" << copied.toStdString();
  QTest::mouseClick(&Child<QPushButton>(window, "Seleziona"), Qt::LeftButton);
  ASSERT_TRUE(taken.has_value());
  EXPECT_EQ(taken->bands_db, stored.bands);
  EXPECT_EQ(taken->thickness_mm, 230);
  window.show();
  QTest::mouseClick(&Child<QPushButton>(window, "Elimina"), Qt::LeftButton);
  EXPECT_TRUE(storage::ResultsStore(places_.results).List(storage::ResultTable::kAirborne).empty());
}

TEST_F(StoreSourcesTest, AMissingResultsDatabaseIsTold) {
  std::filesystem::remove(places_.results);
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results), {});
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_FALSE(boxes_.told[0].isEmpty());
}

TEST_F(StoreSourcesTest, ADamagedLibraryFileIsToldAndTheOthersStayUsable) {
  std::filesystem::copy(places_.library, folder_.filePath("Database").toStdString(),
                        std::filesystem::copy_options::recursive);
  places_.library = folder_.filePath("Database").toStdString();
  const std::filesystem::path walls = places_.library / "Partizioni verticali (Rw)";
  std::filesystem::permissions(walls, std::filesystem::perms::owner_all);
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

TEST_F(StoreSourcesTest, CalculatedResultsStandBesideTheMeasuredOnes) {
  Store(storage::ResultTable::kAirborne, "Parete x");
  Store(storage::ResultTable::kLining, "Controparete x");
  Overlay drawn;
  ComparisonWindow window(boxes_.Tools(), Library(), elements::Family::kLining,
                          [&](const Overlay& overlay) { drawn = overlay; });
  window.show();
  OpenLibraryFile(window, "TreeView1", "Database_teorico");
  const QAbstractItemModel& list = *Child<QListView>(window, "List1").model();
  ASSERT_EQ(list.rowCount(), 1);
  EXPECT_EQ(list.index(0, 0).data().toString(), "Controparete x");
  SelectTest(window, "List1", 0);
  Child<QCheckBox>(window, "Check1").click();
  ASSERT_TRUE(drawn.laboratory.has_value());
  EXPECT_EQ((*drawn.laboratory)[0], 33.25);
  Picture(window, "form8-shipped");
}

}  // namespace
}  // namespace velmar::structures
