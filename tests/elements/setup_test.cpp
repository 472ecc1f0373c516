#include "elements/setup.h"

#include <cstddef>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "elements/keyed_values.h"

namespace velmar::elements {
namespace {

TEST(Setup, IsAValue) {
  elements::Setup a;
  elements::Setup b = a;
  EXPECT_EQ(a, b);
  b.leaf2.rows[9].slot.loss_factor = 0.01;
  EXPECT_NE(a, b);
}

TEST(SingleFields, HaveOnePlaceAndOneNameEach) {
  elements::Setup setup;
  std::set<std::string> names;
  std::set<const void*> places;
  FieldSet fields;
  std::size_t count = 0;
  VisitSingleFields(
      [&](Field field, const char* name, const auto& value) {
        EXPECT_FALSE(fields.Has(field)) << name;
        fields = fields.With({field});
        names.insert(name);
        places.insert(&value);
        ++count;
      },
      setup);
  EXPECT_EQ(names.size(), count);
  EXPECT_EQ(places.size(), count);
}

/// What a set-up has several times stands in rows, parts and components. Any other field that a calculation
/// reads and that is not visited would be missing from steps, variants and project files.
TEST(SingleFields, AreAllThatCalculationsReadBesideRowsAndParts) {
  constexpr FieldSet kOfRowsAndParts = {Field::kArea,
                                        Field::kRating,
                                        Field::kC,
                                        Field::kCtr,
                                        Field::kBand,
                                        Field::kMass,
                                        Field::kTightness,
                                        Field::kStratumKind,
                                        Field::kStratumThickness,
                                        Field::kConnection,
                                        Field::kConnectionNumber,
                                        Field::kProfileHeight,
                                        Field::kProfilePitch};
  FieldSet known = kOfRowsAndParts;
  const elements::Setup setup;
  VisitSingleFields(
      [&](Field field, const char* name, const auto&) {
        EXPECT_FALSE(kOfRowsAndParts.Has(field)) << name;
        EXPECT_TRUE(KeyedValues::IsName(name)) << name;
        known = known.With({field});
      },
      setup);
  for (const CalculationRow& row : Catalogue()) {
    for (int i = 0; i <= static_cast<int>(kLastField); ++i) {
      const auto field = static_cast<Field>(i);
      EXPECT_TRUE(known.Has(field) || !row.Reads(field)) << row.variant << ", field " << i;
    }
  }
}

TEST(SingleFields, AreOfTheSameFieldInEachSetup) {
  const elements::Setup before;
  elements::Setup after;
  after.width_text = "5";
  after.multilayer.framed = true;
  after.base.thickness_mm = 120.0;
  FieldSet changed;
  VisitSingleFields(
      [&](Field field, const char*, const auto& was, const auto& is) {
        if (was != is) changed = changed.With({field});
      },
      before, after);
  EXPECT_EQ(changed, (FieldSet{Field::kWidth, Field::kTracks, Field::kBaseThickness}));
}

TEST(Facade, CountsTheComponentsThatItsTextNames) {
  Facade facade;
  for (const auto& [text, count] : {std::pair{"3", 3}, {"9 ", 9}, {"12", 9}, {"", 1}, {"0", 1}, {"due", 1}}) {
    facade.count_text = text;
    EXPECT_EQ(facade.Count(), count) << text;
  }
}

TEST(SeaCavity, ShowsTheRowsOfItsType) {
  int fibres = 0;
  int masses = 0;
  for (int i = 0; i < kSeaCavityTypeCount; ++i) {
    fibres += FibreCount(static_cast<SeaCavityType>(i));
    masses += MassCount(static_cast<SeaCavityType>(i));
  }
  EXPECT_EQ(FibreCount(SeaCavityType::kFibreMassFibreMassFibre), 3);
  EXPECT_EQ(MassCount(SeaCavityType::kMassFibreMass), 2);
  EXPECT_EQ(fibres, 10);
  EXPECT_EQ(masses, 8);
}

}  // namespace
}  // namespace velmar::elements
