#include "shell/structures/store_sources.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/structures/comparison_window.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
#include "tests/shell/structures/stores_fixture.h"

namespace velmar::structures {
namespace {

constexpr const char* kThirdOctaveWalls = "Pareti in lastre su orditura - terzi d'ottava";

class StoreSourcesTest : public StoresTest {};

TEST_F(StoreSourcesTest, TheLibraryWindowShowsAShippedTest) {
  MeasuredTarget target;
  target.take = [](const calculation::FacadePart&) {};
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), target);
  window.show();
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
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kTake);
  QObject::connect(&window, &SavedResultsWindow::Taken, &window,
                   [&](const calculation::FacadePart& part) { taken = part; });
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

TEST_F(StoreSourcesTest, AStoredLiningIsDeletedFromItsTable) {
  Store(storage::ResultTable::kAirborne, "Parete x");
  Store(storage::ResultTable::kLining, "Controparete x");
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kList);
  window.show();
  QTest::mouseClick(&Child<QRadioButton>(window, "Option1_2"), Qt::LeftButton);
  ASSERT_EQ(Child<QLineEdit>(window, "Text2").text(), "Controparete x");
  QTest::mouseClick(&Child<QPushButton>(window, "Elimina"), Qt::LeftButton);
  EXPECT_TRUE(storage::ResultsStore(places_.results).List(storage::ResultTable::kLining).empty());
  EXPECT_EQ(storage::ResultsStore(places_.results).List(storage::ResultTable::kAirborne).size(), 1U);
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
