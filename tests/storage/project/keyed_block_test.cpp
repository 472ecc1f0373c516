#include "storage/project/keyed_block.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "storage/files/windows_1252.h"
#include "storage/project/project_failure.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"
#include "tests/support/random_setup.h"

namespace velmar::storage {
namespace {

using elements::KeyedValues;
using Entries = std::vector<KeyedValues::Entry>;

std::string SampleBytes() { return WriteProject(SampleSetup(elements::Calculation::kSingleWallBrick)); }

/// The entries of a project with `block` behind its last line.
Entries EntriesOf(const std::string& block) {
  return ReadProject(SampleBytes() + block, {}).setup.further.Entries();
}

std::string BlockOf(const std::string& value) {
  LineWriter out;
  KeyedValues values;
  values.Set<std::string>({"v"}, value);
  WriteKeyedBlock(out, values);
  return out.Bytes();
}

TEST(KeyedBlock, IsNotThereWhenItHasNothingToSay) {
  elements::Setup setup = SampleSetup(elements::Calculation::kSingleWallBrick);
  EXPECT_EQ(WriteProject(setup).find('['), std::string::npos);
  setup.further.Set<std::string>({"a"}, "1");
  const std::string with = WriteProject(setup);
  EXPECT_EQ(with, SampleBytes() + "[VELMARpro]\r\na = 1\r\n");
  setup.further.Set<std::string>({"a"}, std::nullopt);
  EXPECT_EQ(WriteProject(setup), SampleBytes());
}

TEST(KeyedBlock, OtherTextBehindTheLastLineIsIgnored) {
  for (const char* text : {"note", "\r\n[VELMARpro]\r\na = 1\r\n", "[Altro]\r\na = 1\r\n", "[VELMARpro\r\n",
                           "\0", "[VELMARpro]x\r\na = 1\r\n", "\xFF\xFE"}) {
    EXPECT_TRUE(EntriesOf(text).empty()) << text;
  }
  EXPECT_TRUE(EntriesOf("[VELMARpro]").empty());
  EXPECT_TRUE(EntriesOf("[VELMARpro]\r\n\r\n \r\n").empty());
}

TEST(KeyedBlock, NamesThatAreNotKnownComeBackInOrder) {
  const std::string block = "[VELMARpro]\r\nz.futuro = \xE8 \x80\r\na =\r\nvariante-2 = x = y\r\n";
  EXPECT_EQ(EntriesOf(block), (Entries{{"z.futuro", "è €"}, {"a", ""}, {"variante-2", "x = y"}}));
  EXPECT_EQ(WriteProject(ReadProject(SampleBytes() + block, {}).setup), SampleBytes() + block);
}

TEST(KeyedBlock, IsReadAsAnEditorLeavesIt) {
  EXPECT_EQ(EntriesOf("[VELMARpro]\na=1\n  b  =  due  \n\n\n"), (Entries{{"a", "1"}, {"b", "due"}}));
  EXPECT_EQ(EntriesOf("[VELMARpro] \ra = 1\rb = 2"), (Entries{{"a", "1"}, {"b", "2"}}));
}

TEST(KeyedBlock, BehindAByteOrderMarkItIsUtf8) {
  const std::string bytes = "\xEF\xBB\xBF" + Utf8FromWindows1252(SampleBytes()) + "[VELMARpro]\r\na = 漢\r\n";
  EXPECT_EQ(ReadProject(bytes, {}).setup.further.Entries(), (Entries{{"a", "漢"}}));
}

struct Value {
  const char* name;
  std::string value;
  std::string line;
};

class KeyedValueTest : public testing::TestWithParam<Value> {};

TEST_P(KeyedValueTest, IsWrittenAndComesBack) {
  const std::string block = "[VELMARpro]\r\nv =" + GetParam().line + "\r\n";
  EXPECT_EQ(BlockOf(GetParam().value), block);
  EXPECT_EQ(EntriesOf(block), (Entries{{"v", GetParam().value}}));
}

INSTANTIATE_TEST_SUITE_P(
    Values, KeyedValueTest,
    testing::Values(Value{"Plain", "50 dB", " 50 dB"}, Value{"Empty", "", ""},
                    Value{"CodePage", "città €", " citt\xE0 \x80"},
                    Value{"Backslash", "C:\\nuovo", " C:\\\\nuovo"},
                    Value{"LineBreaks", "a\r\nb\n\rc", " a\\r\\nb\\n\\rc"},
                    Value{"BlanksAtTheEnds", "  a ", " \\u{20} a\\u{20}"}, Value{"OneBlank", " ", " \\u{20}"},
                    Value{"Beyond", "漢😀č", " \\u{6f22}\\u{1f600}\\u{10d}"},
                    Value{"CombiningAccent", "e\u0300", " e\\u{300}"},
                    Value{"Controls", std::string("\0\t\x7F\u0081", 5), " \\u{0}\\u{9}\\u{7f}\\u{81}"},
                    Value{"Heading", "[VELMARpro]", " [VELMARpro]"}, Value{"Brace", "{", " {"},
                    Value{"NoBreakSpace", "\u00A0a",
                          " \xA0"
                          "a"}),
    [](const auto& test) { return std::string(test.param.name); });

struct Damage {
  const char* name;
  const char* lines;
  int line;  ///< of the block, the heading being 1
};

class DamagedBlockTest : public testing::TestWithParam<Damage> {};

TEST_P(DamagedBlockTest, IsRefusedWithItsLine) {
  const std::string sample = SampleBytes();
  const auto lines_before = std::count(sample.begin(), sample.end(), '\n');
  try {
    ReadProject(sample + "[VELMARpro]\r\n" + GetParam().lines, {});
    FAIL() << "was read";
  } catch (const ProjectFileFailure& failure) {
    EXPECT_EQ(failure.LineNumber(), lines_before + GetParam().line);
    EXPECT_EQ(LeadingRow(failure.UserMessage().front()), MessageRow{394});
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, DamagedBlockTest,
    testing::Values(Damage{"NoSign", "a = 1\r\nb\r\n", 3}, Damage{"NoName", " = 1\r\n", 2},
                    Damage{"NameWithBlank", "a b = 1\r\n", 2}, Damage{"NameWithAccent", "\xE8 = 1\r\n", 2},
                    Damage{"Twice", "a = 1\r\nb = 2\r\na = 1\r\n", 4},
                    Damage{"BlankBetween", "a = 1\r\n\r\nb = 2\r\n", 3},
                    Damage{"HeadingTwice", "a = 1\r\n[VELMARpro]\r\n", 3},
                    Damage{"EscapeAtTheEnd", "a = x\\\r\n", 2}, Damage{"UnknownEscape", "a = \\t\r\n", 2},
                    Damage{"EscapeNotClosed", "a = \\u{41\r\n", 2}, Damage{"EscapeEmpty", "a = \\u{}\r\n", 2},
                    Damage{"EscapeNoNumber", "a = \\u{4g}\r\n", 2},
                    Damage{"EscapeSigned", "a = \\u{-4}\r\n", 2},
                    Damage{"EscapeSurrogate", "a = \\u{d800}\r\n", 2},
                    Damage{"EscapeTooHigh", "a = \\u{110000}\r\n", 2},
                    Damage{"EscapeOverflow", "a = \\u{fffffffff}\r\n", 2}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(KeyedBlock, ANullCharacterIsDamage) {
  const std::string block("[VELMARpro]\r\na = \0\r\n", 20);
  EXPECT_THROW(ReadProject(SampleBytes() + block, {}), ProjectFileFailure);
}

/// The block follows the last line of every calculation's part, whatever that line is.
TEST(KeyedBlock, FollowsEveryCalculation) {
  for (const elements::CalculationRow& row : elements::Catalogue()) {
    const std::string bytes = WriteProject(SampleSetup(row.calculation));
    const OpenedProject opened = ReadProject(bytes + "[VELMARpro]\r\na = 1\r\n", {});
    EXPECT_EQ(opened.setup.further.Entries(), (Entries{{"a", "1"}})) << row.variant;
    EXPECT_EQ(WriteProject(opened.setup), bytes + "[VELMARpro]\r\na = 1\r\n") << row.variant;
  }
}

TEST(KeyedBlock, IsKeptForAFamilyThatIsNotKnown) {
  elements::Setup setup;
  setup.further.Set<std::string>({"a"}, "1");
  const StoredCalculation unknown{"FUTURA", "Parete di ghiaccio", "verticale"};
  const std::string bytes = WriteProject(setup, unknown);
  const OpenedProject opened = ReadProject(bytes, {});
  EXPECT_EQ(opened.setup.further, setup.further);
  EXPECT_EQ(WriteProject(opened.setup, opened.stored), bytes);
}

TEST(KeyedBlock, OfTheProjectBeforeDoesNotStay) {
  ProjectReadContext context;
  context.current.further.Set<std::string>({"a"}, "1");
  EXPECT_TRUE(ReadProject(SampleBytes(), context).setup.further.IsEmpty());
}

TEST(KeyedBlock, AnyTextComesBack) {
  tests::RandomSource random(55);
  for (int i = 0; i < 2000; ++i) {
    const KeyedValues values = tests::RandomKeyedValues(random);
    LineWriter out;
    WriteKeyedBlock(out, values);
    LineCursor lines(out.Bytes());
    EXPECT_EQ(ReadKeyedBlock(lines), values) << out.Bytes();
  }
}

}  // namespace
}  // namespace velmar::storage
