#include "presentation/export/report_section.h"

#include <gtest/gtest.h>

#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

double MillimetresHigh(const elements::Setup& setup) {
  constexpr double kEmuPerMillimetre = 36000.0;
  return static_cast<double>(ReportSectionOf(setup, CatalogueWords()).wide.value().height_emu) /
         kEmuPerMillimetre;
}

// A wall must leave its page room for who signs; the thin layers of a floor lie one above the other.
TEST(ReportSection, OfAWallIsLowAndOfAFloorHigh) {
  EXPECT_NEAR(MillimetresHigh(samples::PlasteredBrickWall()), 28.0, 0.5);
  EXPECT_NEAR(MillimetresHigh(samples::FloatingFloor()), 33.0, 0.5);
}

}  // namespace
}  // namespace velmar::presentation
