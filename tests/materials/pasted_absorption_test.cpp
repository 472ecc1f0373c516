#include "materials/pasted_absorption.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

using testing::ElementsAre;

std::string Cells(int count, const std::string& separator) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i == 0 ? "" : separator) + "0," + std::to_string(10 + i);
  return text;
}

PastedAbsorption Read(const std::string& text, std::size_t band = 0) {
  return std::get<PastedAbsorption>(ReadPastedAbsorption(text, band));
}
MessageRow Refused(const std::string& text, std::size_t band = 0) {
  const auto read = ReadPastedAbsorption(text, band);
  const auto* refusal = std::get_if<Message>(&read);
  return refusal == nullptr ? MessageRow{} : LeadingRow(refusal->front());
}

class SeparatorTest : public testing::TestWithParam<std::string> {};

TEST_P(SeparatorTest, AWholeColumnFillsAllBands) {
  for (const std::string& end : {std::string(), GetParam()}) {
    const PastedAbsorption pasted = Read(Cells(19, GetParam()) + end, 7);
    EXPECT_EQ(pasted.first_band, 0U);
    ASSERT_EQ(pasted.texts.size(), 19U);
    EXPECT_EQ(pasted.texts.front(), "0,10");
    EXPECT_EQ(pasted.texts.back(), "0,28");
  }
}

INSTANTIATE_TEST_SUITE_P(Separators, SeparatorTest, testing::Values("\n", "\r\n", "\r", "\t", ";", " ; "));

TEST(PastedAbsorption, CommaAndPointAreDecimalSigns) {
  EXPECT_THAT(Read("0.5\n0,25\n1").texts, ElementsAre("0,5", "0,25", "1"));
}

TEST(PastedAbsorption, FewerCellsGoIntoTheBandsFromTheBoxOn) {
  const PastedAbsorption pasted = Read("0,1\t0,2", 17);
  EXPECT_EQ(pasted.first_band, 17U);
  EXPECT_THAT(pasted.texts, ElementsAre("0,1", "0,2"));
}

TEST(PastedAbsorption, AnEmptyCellKeepsItsPlace) {
  EXPECT_THAT(Read("0,1\n\n0,3\n").texts, ElementsAre("0,1", "", "0,3"));
}

TEST(PastedAbsorption, BlanksAroundANumberDoNotCount) {
  EXPECT_THAT(Read(" 0,1 \n\xC2\xA0"
                   "0,2\xC2\xA0\n")
                  .texts,
              ElementsAre("0,1", "0,2"));
}

TEST(PastedAbsorption, OneCellIsAColumnWhenItsLineEnds) {
  EXPECT_TRUE(IsColumn("0,5\r\n"));
  EXPECT_FALSE(IsColumn("0,5"));
  EXPECT_THAT(Read("0,5\r\n", 3).texts, ElementsAre("0,5"));
}

TEST(PastedAbsorption, WhatIsNoNumberIsRefusedWhole) {
  for (const char* text : {"0,1\nmolto\n0,3", "\n\n", "", "0,1,2;3", "1e999;1"})
    EXPECT_EQ(Refused(text), MessageRow{1654}) << text;
}

TEST(PastedAbsorption, MoreCellsThanBandsAreRefusedWithTheirCount) {
  EXPECT_EQ(Refused(Cells(20, "\n")), MessageRow{1655});
  EXPECT_EQ(Refused("0,1\n0,2", 18), MessageRow{1655});
  EXPECT_EQ(std::get<Message>(ReadPastedAbsorption(Cells(38, "\n"), 0)).front().back(),
            MessagePiece(std::string(" 38")));
}

}  // namespace
}  // namespace velmar::materials
