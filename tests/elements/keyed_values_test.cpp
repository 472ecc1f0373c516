#include "elements/keyed_values.h"

#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

const ValueKey<double> kLimit{"requisito.valore"};
const ValueKey<std::string> kNote{"nota"};
const ValueKey<bool> kShown{"mostrato"};

TEST(KeyedValues, GiveBackWhatWasSetUnderItsType) {
  KeyedValues values;
  EXPECT_FALSE(values.Get(kLimit));
  values.Set<double>(kLimit, 50.25);
  values.Set<std::string>(kNote, "riga 1\nriga 2 \\ 漢");
  values.Set<bool>(kShown, true);
  EXPECT_EQ(values.Get(kLimit), 50.25);
  EXPECT_EQ(values.Get(kNote), "riga 1\nriga 2 \\ 漢");
  EXPECT_EQ(values.Get(kShown), true);
  EXPECT_EQ(values.Get(ValueKey<std::string>{"requisito.valore"}), "50,25");
}

TEST(KeyedValues, KeepTheirPlaceAndGoWhenSetToNothing) {
  KeyedValues values;
  values.Set<std::string>({"b"}, "1");
  values.Set<std::string>({"a"}, "2");
  values.Set<std::string>({"b"}, "3");
  EXPECT_EQ(values.Entries(), (std::vector<KeyedValues::Entry>{{"b", "3"}, {"a", "2"}}));
  values.Set<std::string>({"b"}, std::nullopt);
  values.Set<std::string>({"none"}, std::nullopt);
  EXPECT_EQ(values.Entries(), (std::vector<KeyedValues::Entry>{{"a", "2"}}));
}

TEST(KeyedValues, GiveNothingForATextOfAnotherType) {
  KeyedValues values;
  values.Set<std::string>({"mostrato"}, "forse");
  values.Set<std::string>({"requisito.valore"}, "inf");
  EXPECT_FALSE(values.Get(kShown));
  EXPECT_FALSE(values.Get(kLimit));
}

TEST(KeyedValues, RefuseWhatNoFileCouldHold) {
  KeyedValues values;
  for (const char* name : {"", " ", "a b", "a=b", "è", "a\n", "[a]"}) {
    EXPECT_FALSE(KeyedValues::IsName(name)) << name;
    EXPECT_THROW(values.Set<std::string>({name}, "x"), std::invalid_argument) << name;
  }
  EXPECT_THROW(values.Set<double>(kLimit, std::numeric_limits<double>::infinity()), std::invalid_argument);
  EXPECT_TRUE(values.IsEmpty());
  EXPECT_THROW(KeyedValues(std::vector<KeyedValues::Entry>{{"a", "1"}, {"a", "2"}}), std::invalid_argument);
  EXPECT_THROW(KeyedValues(std::vector<KeyedValues::Entry>{{"a b", "1"}}), std::invalid_argument);
  EXPECT_EQ(KeyedValues(std::vector<KeyedValues::Entry>{{"nota", "1"}}).Get(kNote), "1");
}

}  // namespace
}  // namespace velmar::elements
