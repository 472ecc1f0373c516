#include "storage/project/material_uses.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "elements/setup_text.h"
#include "elements/variants.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;
using elements::MaterialFamily;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kWall = elements::Calculation::kSingleWallGeneric;

elements::Setup WallOf(const std::string& material) {
  elements::Setup setup = SampleSetup(kWall);
  setup.leaf1.rows[1].slot.name = material;
  setup.leaf1.rows[1].listed = material;
  return setup;
}

class MaterialUsesTest : public testing::Test {
 protected:
  fs::path Write(const std::string& name, const elements::Setup& setup) const {
    const fs::path file = folder_.Path() / name;
    fs::create_directories(file.parent_path());
    SaveProject(file, setup);
    return file;
  }
  fs::path Damage(const std::string& name) const {
    const fs::path file = folder_.Path() / name;
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "niente";
    return file;
  }
  MaterialUses Find(const SearchedProjects& where, const std::string& name = "Tufo giallo") const {
    return FindMaterialUses(where, MaterialFamily::kStructural, name, stop_);
  }
  MaterialUses FindBelow() const { return Find({.folders = {folder_.Path()}}); }

  TemporaryFolder folder_;
  std::atomic<bool> stop_{false};
};

std::vector<std::string> Names(const MaterialUses& uses) {
  std::vector<std::string> names;
  for (const ProjectUse& use : uses.projects) names.push_back(use.file.filename().string());
  return names;
}

TEST_F(MaterialUsesTest, FindsProjectsBelowAFolderAndTheirLayers) {
  Write("a.drav", WallOf("Tufo giallo"));
  Write("cantieri/b.DRAV", WallOf("tufo GIALLO"));
  Write("c.drav", WallOf("Tufo"));
  const MaterialUses uses = FindBelow();
  EXPECT_THAT(Names(uses), ElementsAre("a.drav", "b.DRAV"));
  EXPECT_THAT(uses.projects.at(0).layers, ElementsAre(2));
  EXPECT_EQ(uses.looked_at, 3U);
  EXPECT_THAT(uses.unreadable, IsEmpty());
  EXPECT_FALSE(uses.is_cut);
}

TEST_F(MaterialUsesTest, AMaterialOfAnotherFamilyIsAnotherOne) {
  Write("a.drav", WallOf("Tufo giallo"));
  EXPECT_THAT(FindMaterialUses({.folders = {folder_.Path()}}, MaterialFamily::kFibrous, "Tufo giallo", stop_)
                  .projects,
              IsEmpty());
}

TEST_F(MaterialUsesTest, FilesThatCannotBeReadAreTold) {
  const fs::path damaged = Damage("rotto.drav");
  Write("a.drav", WallOf("Tufo giallo"));
  const MaterialUses uses = FindBelow();
  EXPECT_THAT(uses.unreadable, ElementsAre(damaged));
  EXPECT_THAT(Names(uses), ElementsAre("a.drav"));
}

TEST_F(MaterialUsesTest, AFileIsReadOnceHoweverItIsReached) {
  const fs::path file = Write("a.drav", WallOf("Tufo giallo"));
  fs::create_directory_symlink(folder_.Path(), folder_.Path() / "ancora");
  const MaterialUses uses =
      Find({.files = {file, folder_.Path() / "." / "a.drav", folder_.Path() / "via.drav"},
            .folders = {folder_.Path(), folder_.Path()}});
  EXPECT_THAT(Names(uses), ElementsAre("a.drav"));
  EXPECT_EQ(uses.looked_at, 1U) << "a recent file that is gone is none";
  EXPECT_THAT(uses.unreadable, IsEmpty());
}

TEST_F(MaterialUsesTest, VariantsOfAProjectCount) {
  elements::Setup setup = WallOf("Tufo");
  PutVariants(setup.further, {{.name = "B", .setup_text = elements::WriteSetupText(WallOf("Tufo giallo"))}});
  Write("a.drav", setup);
  const MaterialUses uses = FindBelow();
  ASSERT_EQ(uses.projects.size(), 1U);
  EXPECT_THAT(uses.projects[0].layers, IsEmpty());
  EXPECT_THAT(uses.projects[0].variants, ElementsAre("B"));
}

TEST_F(MaterialUsesTest, NotDeeperThanItsBound) {
  Write("1/2/3/4/a.drav", WallOf("Tufo giallo"));
  EXPECT_FALSE(FindBelow().is_cut);
  Write("1/2/3/4/5/b.drav", WallOf("Tufo giallo"));
  Write(".nascosta/c.drav", WallOf("Tufo giallo"));
  const MaterialUses uses = FindBelow();
  EXPECT_THAT(Names(uses), ElementsAre("a.drav"));
  EXPECT_TRUE(uses.is_cut) << "there may be more";
}

TEST_F(MaterialUsesTest, AStoppedSearchReadsNothing) {
  Write("a.drav", WallOf("Tufo giallo"));
  stop_ = true;
  EXPECT_EQ(FindBelow().looked_at, 0U);
}

// Nobody writes into it: reading would wait for ever.
TEST_F(MaterialUsesTest, APipeWithTheNameOfAProjectHoldsNobodyUp) {
  const fs::path pipe = folder_.Path() / "tubo.drav";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT(FindBelow().unreadable, ElementsAre(pipe));
}

}  // namespace
}  // namespace velmar::storage
