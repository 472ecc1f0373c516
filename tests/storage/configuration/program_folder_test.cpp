#include "storage/configuration/program_folder.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFolder, IsWhereThisProgramLies) {
  EXPECT_TRUE(fs::exists(ProgramFolder() / "storage_configuration_test"));
}

TEST(ShippedDataFolder, IsFoundInstalledAndInTheBuildTree) {
  const TemporaryFolder root;
  EXPECT_EQ(ShippedDataFolder(root / "bin"), std::nullopt);
  WriteFile(root / "share/velmarpro/Databases/InterfMess.mdb", "");
  fs::create_directories(root / "bin");
  fs::create_directories(root / "apps/cli");
  EXPECT_EQ(ShippedDataFolder(root / "bin"), root / "share/velmarpro");
  EXPECT_EQ(ShippedDataFolder(root / "apps/cli"), root / "share/velmarpro");
}

TEST(AccessReaderProgram, IsFoundInstalledAndInTheBuildTree) {
  const TemporaryFolder root;
  EXPECT_EQ(AccessReaderProgram(root / "bin"), std::nullopt);
  WriteFile(root / "lib/velmarpro/velmar-access-reader", "");
  fs::create_directories(root / "bin");
  EXPECT_EQ(AccessReaderProgram(root / "bin"), root / "lib/velmarpro/velmar-access-reader");
  WriteFile(root / "apps/access_reader/velmar-access-reader", "");
  fs::create_directories(root / "apps/cli");
  EXPECT_EQ(AccessReaderProgram(root / "apps/cli"), root / "apps/access_reader/velmar-access-reader");
}

}  // namespace
}  // namespace velmar::storage
