#include "storage/database/file_kind.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

TEST(FileKind, IsToldByTheFirstBytesWhateverTheName) {
  const TemporaryFolder folder;
  using namespace std::string_literals;
  const struct {
    std::string bytes;
    FileKind kind;
  } cases[] = {{"SQLite format 3\0 and more"s, FileKind::kSqlite},
               {"\0\1\0\0Standard Jet DB\0\1"s, FileKind::kAccess},
               {"\0\1\0\0Standard ACE DB\0\2"s, FileKind::kAccess},
               {"SQLite format 3"s, FileKind::kOther},
               {"Standard Jet DB"s, FileKind::kOther},
               {""s, FileKind::kOther}};
  for (const auto& test : cases) {
    WriteFile(folder / "a.mdb", test.bytes);
    EXPECT_EQ(KindOf(folder / "a.mdb"), test.kind) << test.bytes;
  }
  EXPECT_EQ(KindOf(folder / "none.mdb"), FileKind::kMissing);
  EXPECT_EQ(KindOf(folder.Path()), FileKind::kNoFile);
}

}  // namespace
}  // namespace velmar::storage
