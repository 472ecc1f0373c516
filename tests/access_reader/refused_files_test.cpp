#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/access_reader/reader_process.h"

namespace velmar::access_reader {
namespace {

struct RefusedCase {
  const char* name;
  std::string bytes;
};

class RefusedFileTest : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedFileTest, EndsWithAnErrorAndLeavesNothing) {
  const TemporaryFolder source;
  const TemporaryFolder target;
  std::ofstream(source.Path() / "file.mdb", std::ios::binary) << GetParam().bytes;
  const ReaderRun run = RunReader(source.Path() / "file.mdb", target.Path() / "copy.db");
  ASSERT_TRUE(run.exit_code);
  EXPECT_NE(*run.exit_code, static_cast<int>(ExitCode::kDone));
  EXPECT_TRUE(std::filesystem::is_empty(target.Path()));
}

const std::string kJetHead = std::string("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24);

INSTANTIATE_TEST_SUITE_P(
    Files, RefusedFileTest,
    testing::Values(RefusedCase{"Empty", ""}, RefusedCase{"Words", "Questo non è Access.\n"},
                    RefusedCase{"HeadAlone", kJetHead},
                    RefusedCase{"HeadAndZeros", kJetHead + std::string(65536, '\0')},
                    RefusedCase{"Sqlite", std::string("SQLite format 3\0", 16) + std::string(4096, '\0')}),
    [](const auto& test) { return test.param.name; });

TEST(AccessReader, RefusesAMissingFile) {
  const TemporaryFolder temporary;
  EXPECT_EQ(RunReader(temporary.Path() / "none.mdb", temporary.Path() / "copy.db").exit_code,
            static_cast<int>(ExitCode::kNotOpened));
}

TEST(AccessReader, NeverWritesOverAFile) {
  const TemporaryFolder temporary;
  std::ofstream(temporary.Path() / "file.mdb") << kJetHead;
  std::ofstream(temporary.Path() / "copy.db") << "kept";
  EXPECT_EQ(RunReader(temporary.Path() / "file.mdb", temporary.Path() / "copy.db").exit_code,
            static_cast<int>(ExitCode::kCopyNotWritten));
  std::string kept;
  std::getline(std::ifstream(temporary.Path() / "copy.db"), kept);
  EXPECT_EQ(kept, "kept");
}

}  // namespace
}  // namespace velmar::access_reader
