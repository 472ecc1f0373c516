#include "materials/computed_absorption.h"

#include <vector>

#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

FibrousEntry Wool() {
  FibrousEntry entry;
  entry.name = "Lana";
  entry.thickness = "60";
  entry.density = "40";
  entry.flow_resistance = "840";
  return entry;
}

TEST(ComputeMissing, FillsEmptyBandsAlone) {
  FibrousEntry entry = Wool();
  entry.absorption[0] = "0,5";
  const ComputedAbsorption computed = ComputeMissing(entry);
  EXPECT_EQ(computed.coefficients[0], "0,5");
  EXPECT_EQ(computed.coefficients[1], "0,056");
  EXPECT_EQ(computed.coefficients[18], "0,995");
  EXPECT_EQ(computed.bands.size(), 18U);
  EXPECT_EQ(computed.bands.front(), 1U);
}

TEST(ComputeMissing, NeedsFlowResistanceAndThickness) {
  for (const char* nothing : {"", "0", "-5", "abc"}) {
    FibrousEntry entry = Wool();
    entry.thickness = nothing;
    EXPECT_TRUE(ComputeMissing(entry).bands.empty()) << nothing;
    entry = Wool();
    entry.flow_resistance = nothing;
    EXPECT_TRUE(ComputeMissing(entry).bands.empty()) << nothing;
  }
  FibrousEntry solid = Wool();
  solid.porous = false;
  EXPECT_TRUE(ComputeMissing(solid).bands.empty());
}

TEST(ComputationOf, NamesModelBandsAndWhatIsExtrapolated) {
  EXPECT_EQ(
      ComputationOf(Wool(), std::vector<std::size_t>{0, 1}),
      "assorbimento calcolato con Delany e Bazley (incidenza normale, 60 mm su parete rigida): 100, 125 Hz; "
      "valori stimati fuori dal campo del modello: 100 Hz");
  EXPECT_EQ(ComputationOf(Wool(), std::vector<std::size_t>{1}),
            "assorbimento calcolato con Delany e Bazley (incidenza normale, 60 mm su parete rigida): 125 Hz");
  EXPECT_EQ(ComputationOf(Wool(), {}), "");
}

}  // namespace
}  // namespace velmar::materials
