#include "storage/messages/message_table.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

TEST(MessageTable, GivesTheWordsOfRowsLinesAndBoxes) {
  const MessageTable table({"File", "Apri"}, {{1001, "Il calcolo"}});
  EXPECT_EQ(table.Mess(2), "Apri");
  EXPECT_EQ(table.Text(MessageRow{1001}), "Il calcolo");
  EXPECT_EQ(table.Text(MessageLine{MessageRow{2}, " \"", std::string("x"), "\""}), "Apri \"x\"");
  EXPECT_EQ(table.Text(Message{{MessageRow{1}}, {"due"}}), (std::vector<std::string>{"File", "due"}));
}

TEST(MessageTable, RowsBeyondItsEndAreEmpty) {
  const MessageTable table({"File"}, {});
  for (const int row : {-1, 0, 2, 419, 420, 1000}) EXPECT_EQ(table.Mess(row), "") << row;
  EXPECT_EQ(table.Text(MessageRow{420}), "");
}

TEST(MessageTable, AMissingFurtherTextShowsItsNumber) {
  EXPECT_EQ(MessageTable().Text(MessageRow{1119}), "[1119]");
}

}  // namespace
}  // namespace velmar::storage
