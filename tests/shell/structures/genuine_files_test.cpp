// Genuine Access files behind the windows. They stand outside the repository: VELMAR_ACCESS_FIXTURES names
// their folder; without it these tests are skipped, and say so.
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

#include "shell/structures/comparison_window.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
#include "tests/shell/structures/stores_fixture.h"

namespace velmar::structures {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

class GenuineFilesTest : public StoresTest {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMAR_ACCESS_FIXTURES");
    if (folder == nullptr || *folder == '\0')
      GTEST_SKIP() << "left out: VELMAR_ACCESS_FIXTURES names no folder";
    fixtures_ = folder;
  }
  /// Puts `fixture` among the walls of the library. @return the file
  fs::path AmongTheWalls(const char* fixture, const char* name) {
    const fs::path file = CopyLibrary() / name;
    fs::copy_file(fixtures_ / fixture, file);
    return file;
  }

  fs::path fixtures_;
};

TEST_F(GenuineFilesTest, ALibraryFileAppearsLikeAnyOther) {
  const fs::path file = AmongTheWalls("jet4-schema-generated.mdb", "Access.mdb");
  const std::string before = BytesOf(file);
  std::vector<calculation::FacadePart> taken;
  MeasuredTarget target;
  target.take = [&](const calculation::FacadePart& part) { taken.push_back(part); };
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), target);
  window.show();
  OpenLibraryFile(window, "TreeView1", "Access");
  ASSERT_EQ(Child<QListView>(window, "List1").model()->rowCount(), 36);
  SelectTest(window, "List1", 2);
  EXPECT_EQ(Child<QLabel>(window, "Label3").text(), "Rw(C,Ctr)= 42(-1, -5) dB");
  EXPECT_EQ(Child<QLineEdit>(window, "Text3").text(), "10,08");
  EXPECT_EQ(Child<QLineEdit>(window, "TextMassa").text(), "102");
  EXPECT_EQ(Child<QLineEdit>(window, "Text1_0").text(), "25,2");
  EXPECT_EQ(Child<QLineEdit>(window, "Text1_8").text(), "");
  EXPECT_EQ(Child<QLineEdit>(window, "TextDataProva").text(), "03/03/1992");
  EXPECT_EQ(Child<QLineEdit>(window, "TextEnteProva").text(), "Laboratorio à 2");
  QTest::mouseClick(&Child<QPushButton>(window, "Command1"), Qt::LeftButton);
  ASSERT_EQ(taken.size(), 1U);
  EXPECT_EQ(taken[0].bands_db[0], 25.2);
  EXPECT_FALSE(taken[0].bands_db[8].has_value());
  EXPECT_TRUE(boxes_.told.isEmpty());
  EXPECT_EQ(BytesOf(file), before);
}

TEST_F(GenuineFilesTest, ItsCurveIsLaidOverTheResult) {
  AmongTheWalls("jet4-schema-generated.mdb", "Access.mdb");
  std::vector<Overlay> drawn;
  ComparisonWindow window(boxes_.Tools(), Library(), elements::Family::kSingle,
                          [&](const Overlay& overlay) { drawn.push_back(overlay); });
  window.show();
  OpenLibraryFile(window, "TreeView1", "Access");
  SelectTest(window, "List1", 2);
  Child<QAbstractButton>(window, "Check1").click();
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ((*drawn[0].laboratory)[0], 25.2);
  EXPECT_EQ((*drawn[0].laboratory)[8], 0.0);
}

struct ForeignCase {
  const char* name;
  const char* fixture;
  const char* told;  ///< a piece of what the user is told
};
class ForeignFilesTest : public GenuineFilesTest, public testing::WithParamInterface<ForeignCase> {};

TEST_P(ForeignFilesTest, AreListedToldAndLeaveTheWindowUsable) {
  AmongTheWalls(GetParam().fixture, "Estraneo.mdb");
  MeasuredLibraryWindow window(boxes_.Tools(), Library(), {});
  window.show();
  OpenLibraryFile(window, "TreeView1", "Estraneo");
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_TRUE(boxes_.told[0].contains(GetParam().told)) << boxes_.told[0].toStdString();
  EXPECT_EQ(Child<QListView>(window, "List1").model()->rowCount(), 0);
  OpenLibraryFile(window, "TreeView1", "Pareti in lastre su orditura - terzi d'ottava");
  EXPECT_GT(Child<QListView>(window, "List1").model()->rowCount(), 0);
  EXPECT_EQ(boxes_.told.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, ForeignFilesTest,
                         testing::Values(ForeignCase{"OtherTables", "jet3-types-index.mdb", "Rw_laboratorio"},
                                         ForeignCase{"OtherTablesOfAccess2007", "ace12-nonascii-column.accdb",
                                                     "Rw_laboratorio"},
                                         ForeignCase{"Encrypted", "ace14-encrypted.accdb", "Estraneo.mdb"}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(GenuineFilesTest, AResultsDatabaseIsNeverWrittenToAndItsFormatIsTold) {
  fs::remove(places_.results);
  fs::copy_file(fixtures_ / "jet4-schema-generated.mdb", places_.results);
  const std::string before = BytesOf(places_.results);
  SavedResultsWindow window(boxes_.Tools(), StoredResults(places_.results),
                            SavedResultsWindow::Purpose::kList);
  window.show();
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_TRUE(boxes_.told[0].contains("Access")) << boxes_.told[0].toStdString();
  EXPECT_EQ(Child<QTableView>(window, "DBGrid1").model()->rowCount(), 0);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(BytesOf(places_.results), before);
}

}  // namespace
}  // namespace velmar::structures
