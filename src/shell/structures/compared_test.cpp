#include "shell/structures/compared_test.h"

namespace velmar::structures {
namespace {

acoustics::Spectrum ThirdsOf(const calculation::BandValues& bands) {
  acoustics::Spectrum levels{};
  for (std::size_t i = 0; i < levels.size(); ++i)
    levels[i] = bands[i] == calculation::kNotMeasuredDb ? 0.0 : bands[i].value_or(0.0);
  return levels;
}

/// As the ratings of a comparison are written, the same in every language.
const char* SymbolOf(Branch branch) {
  switch (branch) {
    case Branch::kFieldWalls:
      return "R'w";
    case Branch::kFloors:
    case Branch::kCalculatedFloors:
      return "Ln,w";
    case Branch::kFieldFloors:
      return "L'n,w";
    case Branch::kLinings:
    case Branch::kCalculatedLinings:
      return "ΔRw";
    case Branch::kCoverings:
      return "ΔLw";
    case Branch::kSmallElements:
      return "Dn,e,w";
    case Branch::kWalls:
    case Branch::kOpenings:
    case Branch::kCalculatedWalls:
      break;
  }
  return "Rw";
}

}  // namespace

std::optional<presentation::ComparedCurve> Compared(Branch branch, const MeasuredTest& test) {
  presentation::ComparedCurve curve;
  curve.name = test.part.name;
  curve.symbol = SymbolOf(branch);
  curve.levels = ThirdsOf(test.part.bands_db);
  if (curve.levels == acoustics::Spectrum{}) {
    curve.levels = ThirdsOf(test.octave_steps_db);
    curve.in_octaves = true;
  }
  if (curve.levels == acoustics::Spectrum{}) return std::nullopt;
  curve.rating = test.part.rating_db;
  curve.term = test.part.c_db;
  curve.other_term = test.part.ctr_db;
  const storage::RatingCheck& check = test.check;
  if (!check.rating || check.differs) return curve;
  if (!curve.rating) curve.rating = check.rating;
  if (!curve.term) curve.term = check.adaptation;
  if (!curve.other_term) curve.other_term = check.other_adaptation;
  return curve;
}

}  // namespace velmar::structures
