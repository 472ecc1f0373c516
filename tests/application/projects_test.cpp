#include "application/projects.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "storage/materials/material_store.h"
#include "storage/project/project_writer.h"
#include "tests/application/start_fixture.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;

class ProjectsTest : public StartTest {
 protected:
  ProjectsTest() { storage::WriteFile(file_, ShippedBytes(storage::kMaterialDatabase)); }

  /// A double wall of twenty layers.
  fs::path Project() const {
    elements::Setup setup;
    setup.calculation = elements::Calculation::kDoubleWallGeneric;
    for (elements::LeafLayers* leaf : {&setup.leaf1, &setup.leaf2}) {
      leaf->count = static_cast<int>(leaf->rows.size());
      for (auto& row : leaf->rows) row.slot.name = "Mattone pieno";
    }
    storage::SaveProject(folder_ / "wall.drav", setup);
    return folder_ / "wall.drav";
  }

  fs::path file_ = FileOf(storage::kMaterialDatabase);
  int told_ = 0;
  elements::MaterialLookup materials_ =
      ForgivingLookup(storage::MaterialLookupIn(file_), [this](const Failure&) { ++told_; });
};

TEST_F(ProjectsTest, ALockedDatabaseIsToldOnceAProjectAndEachTime) {
  const fs::path project = Project();
  {
    SQLite::Database other(file_.string(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(OpenProject(project, {}, materials_).setup.leaf1.rows[9].slot.name, "Mattone pieno");
    EXPECT_EQ(told_, 1);
    OpenProject(project, {}, materials_);
    EXPECT_EQ(told_, 2) << "told again";
    EXPECT_FALSE(materials_.structural("Mattone pieno"));
    EXPECT_FALSE(materials_.structural("Mattone pieno"));
    EXPECT_EQ(told_, 4) << "a layer that is chosen is an operation of its own";
  }
  OpenProject(project, {}, materials_);
  EXPECT_TRUE(materials_.structural("Mattone pieno"));
  EXPECT_EQ(told_, 4);
}

}  // namespace
}  // namespace velmar::application
