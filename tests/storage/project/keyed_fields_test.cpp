#include "storage/project/keyed_fields.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"
#include "tests/support/changed_fields.h"

// The lines hold every field of today; what the block does with one that they do not hold is seen when they
// are said to hold none.
namespace velmar::storage {
namespace {

using elements::Calculation;
using elements::Field;
using elements::FieldSet;
using elements::KeyedValues;
using Entries = std::vector<KeyedValues::Entry>;

constexpr FieldSet kNone;

elements::Setup Wall() {
  elements::Setup setup;
  setup.calculation = Calculation::kSingleWallGeneric;
  return setup;
}

KeyedValues Block(const char* name, const std::string& text) {
  KeyedValues values;
  values.Set<std::string>({name}, text);
  return values;
}

TEST(KeyedFields, HoldWhatTheLinesHaveNoPlaceFor) {
  elements::Setup setup = Wall();
  setup.further.Set<std::string>({"nota"}, "prima");
  setup.height_text = "3,1";
  EXPECT_EQ(KeyedValuesOf(setup).Entries(), (Entries{{"nota", "prima"}}));
  EXPECT_EQ(KeyedValuesOf(setup, {Field::kWidth}).Entries(),
            (Entries{{"nota", "prima"}, {"altezza", "3,1"}}));
}

TEST(KeyedFields, AreNotWrittenWhereTheyAreNotReadOrAsTheyWereAtFirst) {
  elements::Setup setup = Wall();
  setup.hanger = 2;  // no wall hangs
  EXPECT_TRUE(KeyedValuesOf(setup, kNone).IsEmpty());
  setup.height_text = "3,1";
  setup.calculation.reset();
  EXPECT_TRUE(KeyedValuesOf(setup, kNone).IsEmpty());
}

TEST(KeyedFields, OfEveryCalculationComeBackAndLeaveTheFurtherValues) {
  for (const elements::CalculationRow& row : elements::Catalogue()) {
    elements::Setup setup;
    setup.calculation = row.calculation;
    FieldSet read;
    for (int i = 0; i <= static_cast<int>(elements::kLastField); ++i) {
      if (row.Reads(static_cast<Field>(i))) read = read.With({static_cast<Field>(i)});
    }
    tests::ChangeSingleFields(setup, read);
    setup.further.Set<std::string>({"nota"}, "prima");
    elements::Setup back;
    back.calculation = row.calculation;
    ASSERT_TRUE(TakeKeyedValues(KeyedValuesOf(setup, kNone), back, kNone)) << row.variant;
    EXPECT_EQ(back, setup) << row.variant;
  }
}

TEST(KeyedFields, WithoutANameAreAsAtFirstWhateverTheProjectBeforeHeld) {
  elements::Setup setup = Wall();
  setup.height_text = "3,1";
  setup.hanger = 2;
  ASSERT_TRUE(TakeKeyedValues(KeyedValues(), setup, kNone));
  EXPECT_EQ(setup.height_text, elements::Setup{}.height_text);
  EXPECT_EQ(setup.hanger, 2) << "a field that the wall does not read";
}

TEST(KeyedFields, ATextThatIsNoneOfItsFieldIsTold) {
  elements::Setup ceiling;
  ceiling.calculation = Calculation::kCeilingSea;
  EXPECT_TRUE(TakeKeyedValues(Block("pendino", "1"), ceiling, kNone));
  EXPECT_EQ(ceiling.hanger, 1);
  EXPECT_FALSE(TakeKeyedValues(Block("pendino", "molla"), ceiling, kNone));
}

TEST(KeyedFields, TheNameOfAFieldThatTheLinesHoldIsAFurtherValue) {
  elements::Setup setup = Wall();
  ASSERT_TRUE(TakeKeyedValues(Block("altezza", "9"), setup));
  EXPECT_EQ(setup.height_text, elements::Setup{}.height_text);
  EXPECT_EQ(setup.further.Entries(), (Entries{{"altezza", "9"}}));
}

}  // namespace
}  // namespace velmar::storage
