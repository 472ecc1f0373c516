#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "foundation/message_rows.h"
#include "storage/files/store_failure.h"
#include "storage/project/project_failure.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;
using enum elements::Calculation;

class SaveProjectTest : public testing::Test {
 protected:
  SaveProjectTest() : folder_(fs::temp_directory_path() / ("velmar-project-" + std::to_string(::getpid()))) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~SaveProjectTest() override { fs::remove_all(folder_); }

  static Message FailureOf(const fs::path& path) {
    try {
      OpenProject(path, {});
    } catch (const ProjectFileFailure& failure) {
      return failure.UserMessage();
    }
    ADD_FAILURE() << "opened: " << path;
    return {};
  }

  fs::path folder_;
};

TEST_F(SaveProjectTest, OpensWhatWasSaved) {
  const elements::Setup setup = SampleSetup(kCeilingSea);
  SaveProject(folder_ / "a.drav", setup);
  EXPECT_TRUE(OpenProject(folder_ / "a.drav", {}).setup == setup);
}

TEST_F(SaveProjectTest, AFailedSaveLeavesTheOldProject) {
  const fs::path path = folder_ / "a.drav";
  SaveProject(path, SampleSetup(kCeilingSea));
  fs::permissions(path, fs::perms{0444});
  EXPECT_THROW(SaveProject(path, SampleSetup(kSingleWallBrick)), StoreFailure);
  EXPECT_EQ(OpenProject(path, {}).setup.calculation, kCeilingSea);
  EXPECT_THROW(SaveProject(folder_ / "none" / "a.drav", {}), StoreFailure);
}

TEST_F(SaveProjectTest, AMissingFileIsSaidInItsOwnWords) {
  EXPECT_EQ(FailureOf(folder_ / "none.drav"), (Message{{std::string(kProjectMissing)}}));
}

TEST_F(SaveProjectTest, AFolderAndAHugeFileAreRefused) {
  const Message folder = FailureOf(folder_);
  ASSERT_EQ(folder.size(), 2U);
  EXPECT_EQ(LeadingRow(folder[0]), kProjectDamagedRow);
  EXPECT_EQ(LeadingRow(folder[1]), MessageRow{1135});

  const fs::path huge = folder_ / "huge.drav";
  std::ofstream(huge).put('x');
  fs::resize_file(huge, std::uintmax_t{100} << 20);
  EXPECT_EQ(LeadingRow(FailureOf(huge).at(1)), MessageRow{1138});
}

}  // namespace
}  // namespace velmar::storage
