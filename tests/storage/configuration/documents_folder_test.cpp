#include "storage/configuration/documents_folder.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

struct DirsCase {
  const char* name;
  const char* line;
  const char* folder;
};

class DocumentsTest : public testing::TestWithParam<DirsCase> {};

TEST_P(DocumentsTest, ComeFromTheUsersDirectories) {
  const TemporaryFolder settings;
  WriteFile(settings / "user-dirs.dirs",
            std::string("# XDG_DOCUMENTS_DIR=\"/no\"\nXDG_MUSIC_DIR=\"$HOME/m\"\n") + GetParam().line + "\n");
  EXPECT_EQ(CartellaDocumenti("/home/ada", settings.Path()), GetParam().folder);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, DocumentsTest,
    testing::Values(DirsCase{"InHome", "XDG_DOCUMENTS_DIR=\"$HOME/Documenti\"", "/home/ada/Documenti"},
                    DirsCase{"Home", "XDG_DOCUMENTS_DIR=\"$HOME/\"", "/home/ada"},
                    DirsCase{"Absolute", "XDG_DOCUMENTS_DIR=\"/srv/doc\"", "/srv/doc"},
                    DirsCase{"Escaped", "XDG_DOCUMENTS_DIR=\"$HOME/a\\\"b\"", "/home/ada/a\"b"},
                    DirsCase{"Relative", "XDG_DOCUMENTS_DIR=\"doc\"", "/home/ada/Documents"},
                    DirsCase{"Broken", "XDG_DOCUMENTS_DIR=", "/home/ada/Documents"}),
    [](const auto& test) { return test.param.name; });

TEST(Documents, WithoutSettingsAreWhicheverFolderThereIs) {
  const TemporaryFolder home;
  EXPECT_EQ(CartellaDocumenti(home.Path(), home / "none"), home / "Documents");
  std::filesystem::create_directory(home / "Documenti");
  EXPECT_EQ(CartellaDocumenti(home.Path(), home / "none"), home / "Documenti");
  std::filesystem::create_directory(home / "Documents");
  EXPECT_EQ(CartellaDocumenti(home.Path(), home / "none"), home / "Documents");
}

}  // namespace
}  // namespace velmar::storage
