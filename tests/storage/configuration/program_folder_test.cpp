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

TEST(ManualFile, IsFoundBesideTheProgramAndWhereItIsInstalled) {
  constexpr const char* kName = "VELMARpro - Manuale d'uso.pdf";
  const TemporaryFolder root;
  fs::create_directories(root / "bin");
  EXPECT_EQ(ManualFile(root / "bin"), root / "bin" / kName) << "named even where it is missing";
  WriteFile(root / "share/doc/velmarpro" / kName, "%PDF");
  EXPECT_EQ(ManualFile(root / "bin"), root / "share/doc/velmarpro" / kName);
  WriteFile(root / "bin" / kName, "%PDF");
  EXPECT_EQ(ManualFile(root / "bin"), root / "bin" / kName);
}

TEST(ManualText, IsFoundBesideTheProgramAndWhereItIsInstalled) {
  const TemporaryFolder root;
  fs::create_directories(root / "bin");
  EXPECT_EQ(ManualText(root / "bin"), root / "bin/manuale/manuale.md") << "named even where it is missing";
  WriteFile(root / "share/doc/velmarpro/manuale/manuale.md", "# Manuale");
  EXPECT_EQ(ManualText(root / "bin"), root / "share/doc/velmarpro/manuale/manuale.md");
  WriteFile(root / "bin/manuale/manuale.md", "# Manuale");
  EXPECT_EQ(ManualText(root / "bin"), root / "bin/manuale/manuale.md");
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
