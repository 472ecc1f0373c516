#include <gtest/gtest.h>

#include "tests/models/layered/sample_elements.h"

namespace velmar::models {
namespace {

// Outputs of an independent program with the same formulas, 9 frequencies a band and 256 angles, printed to
// 0.1 dB.

void ExpectWithin(const acoustics::Spectrum& spectrum, const acoustics::Spectrum& printed, double tolerance) {
  for (std::size_t band = 0; band < printed.size(); ++band) {
    EXPECT_NEAR(spectrum[band], printed[band], tolerance) << "band " << band;
  }
}

TEST(LayeredWorkedExamples, SixMillimetresOfGlass) {
  const LayeredPrediction pane = Predicted(Pane(LayeredPlate{{Glass(0.006)}}));
  ExpectWithin(pane.reduction_index_db, {17.0, 18.3, 19.4, 20.5, 21.8, 23.3, 24.8, 26.3, 27.6, 29.1, 30.5,
                                         31.9, 33.2, 34.1, 34.5, 32.9, 26.6, 27.9, 33.6, 37.9, 41.7},
               0.1);
  EXPECT_FALSE(pane.structural_path_db.has_value());
  EXPECT_DOUBLE_EQ(pane.surface_mass_kg_m2, 15.0);
  EXPECT_DOUBLE_EQ(pane.thickness_m, 0.006);
}

TEST(LayeredWorkedExamples, BoardsOnSteelStuds) {
  const LayeredPrediction wall = Predicted(BoardsOnSteelStuds());
  ExpectWithin(wall.cavity_path_db, {15.0, 13.2, 8.6,  13.7, 23.9, 31.5, 38.1, 44.1, 49.9, 55.4, 60.7,
                                     65.7, 70.3, 74.3, 77.3, 78.0, 70.1, 52.7, 59.4, 66.5, 72.7},
               0.1);
  ASSERT_TRUE(wall.structural_path_db.has_value());
  ExpectWithin(*wall.structural_path_db, {19.1, 20.8, 22.3, 24.0, 26.4, 30.1, 34.4, 38.3, 41.5, 44.1, 46.4,
                                          48.4, 50.3, 52.1, 53.6, 54.4, 51.1, 48.5, 51.0, 54.0, 56.9},
               0.1);
  ExpectWithin(wall.reduction_index_db, {13.6, 12.5, 8.5,  13.3, 22.0, 27.8, 32.9, 37.3, 40.9, 43.8, 46.2,
                                         48.3, 50.3, 52.0, 53.5, 54.4, 51.1, 47.1, 50.4, 53.8, 56.8},
               0.1);
}

TEST(LayeredWorkedExamples, InsulatingUnit) {
  ExpectWithin(Predicted(InsulatingUnit()).reduction_index_db,
               {22.1, 22.2, 22.5, 23.0, 23.5, 23.6, 21.4, 20.4, 23.4, 26.7, 30.0,
                33.4, 36.6, 39.5, 42.1, 43.9, 44.0, 39.3, 32.3, 48.0, 62.4},
               0.1);
}

}  // namespace
}  // namespace velmar::models
