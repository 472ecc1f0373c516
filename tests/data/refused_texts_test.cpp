#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "data_builder/message_tables.h"
#include "data_builder/table_text.h"

namespace velmar::data_builder {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

class RefusedTextTest : public testing::Test {
 protected:
  RefusedTextTest() { std::filesystem::create_directories(folder_); }
  ~RefusedTextTest() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path Write(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name) << text;
    return folder_ / name;
  }

  std::filesystem::path folder_ = std::filesystem::temp_directory_path() /
                                  ("velmar-refused-" + std::to_string(getpid()) + "-" +
                                   testing::UnitTest::GetInstance()->current_test_info()->name());
};

const storage::TableSchema kSchema{
    "T", {{"Nome", storage::ColumnType::kText}, {"s (mm)", storage::ColumnType::kNumber}}, "Nome", true};

TEST_F(RefusedTextTest, AColumnOfAnotherName) {
  const auto file = Write("a.csv", "Nome,s (m)\nx,1\n");
  EXPECT_THAT([&] { ReadRows(file, kSchema); }, ThrowsMessage<std::runtime_error>(HasSubstr("\"s (mm)\"")));
}

TEST_F(RefusedTextTest, AMissingColumnUnlessTheFileIsOlder) {
  const auto file = Write("a.csv", "Nome\nx\n");
  EXPECT_ANY_THROW(ReadRows(file, kSchema));
  const auto rows = ReadRows(file, kSchema, Heading::kAsItOnceWas);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows.front(), (std::vector<storage::Cell>{std::string("x"), storage::Cell{}}));
}

TEST_F(RefusedTextTest, AColumnTooManyOrInAnotherPlace) {
  for (const Heading heading : {Heading::kWhole, Heading::kAsItOnceWas}) {
    const auto too_many = Write("a.csv", "Nome,s (mm),E (GPa)\nx,1,2\n");
    EXPECT_ANY_THROW(ReadRows(too_many, kSchema, heading));
    const auto elsewhere = Write("b.csv", "s (mm)\n1\n");
    EXPECT_ANY_THROW(ReadRows(elsewhere, kSchema, heading));
  }
}

TEST_F(RefusedTextTest, ANumberThatIsNone) {
  const auto file = Write("a.csv", "Nome,s (mm)\nx,dodici\n");
  EXPECT_THAT([&] { ReadRows(file, kSchema); }, ThrowsMessage<std::runtime_error>(HasSubstr("dodici")));
}

TEST_F(RefusedTextTest, AMissingFile) {
  EXPECT_THROW(ReadRows(folder_ / "none.csv", kSchema), std::runtime_error);
}

TEST_F(RefusedTextTest, ACatalogueRowOutOfPlace) {
  Write("catalogue.csv", "row,name,use,Italiano\n1,kARow,a,uno\n3,kBRow,b,tre\n");
  Write("texts.csv", "row,name,use,Italiano\n1001,kMRow,a,mille\n");
  EXPECT_THAT([&] { BuildMessages(folder_, folder_ / "m.mdb"); },
              ThrowsMessage<std::runtime_error>(HasSubstr("row 3 stands at place 2")));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "m.mdb"));
}

TEST_F(RefusedTextTest, AFurtherTextTwice) {
  Write("catalogue.csv", "row,name,use,Italiano\n1,kARow,a,uno\n");
  Write("texts.csv", "row,name,use,Italiano\n1001,kMRow,a,mille\n1001,kNRow,b,mille\n");
  EXPECT_ANY_THROW(BuildMessages(folder_, folder_ / "m.mdb"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "m.mdb"));
}

}  // namespace
}  // namespace velmar::data_builder
