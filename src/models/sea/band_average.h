#pragma once

#include "acoustics/bands.h"
#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// Two masses with a spring of air between them. Masses of which one is not above 0 form no double wall.
struct SeaMassPair {
  double first_kg_m2 = 0.0;
  double second_kg_m2 = 0.0;
  double distance_m = 0.0;

  bool IsDouble() const { return first_kg_m2 > 0.0 && second_kg_m2 > 0.0; }
  double Total() const { return first_kg_m2 + second_kg_m2; }
};

/// The last whole frequency in Hz, 0 to 6000, at which the pair moves as one mass: its mass-spring-mass
/// resonance rounded to even. 0 for a single wall.
/// @throws ArithmeticFailure when the distance is not above 0
std::size_t LastMassLawHz(const SeaMassPair& pair);

/// The per-Hz levels that make up a wall, dB.
struct SeaBandAverageInput {
  const HzSpectrum& first_db;
  const HzSpectrum& second_db;
  const HzSpectrum& cavity_db;
  const HzSpectrum& extra_power;  ///< power ratio added to the heavier leaf, where it is not 0
  SeaMassPair masses{};
};

/// The 21 band levels of a wall in dB: the sum of the three levels, below the resonance of a double wall the
/// mass law of both masses; each band is the arithmetic mean of the decibels of its whole frequencies.
///
/// The bands follow one another from 44 Hz on; the last one goes up to 5599 Hz.
/// @throws ArithmeticFailure when a band is not finite
acoustics::Spectrum SeaBandAverage(const SeaBandAverageInput& input);

/// Band means of levels in dB.
acoustics::Spectrum MeanOfBands(const HzSpectrum& level_db);

/// Band means of the levels of power ratios in dB: MeanOfBands(LevelsOf(power_ratio)) with few logarithms.
/// @throws ArithmeticFailure when a ratio is not positive and finite
acoustics::Spectrum MeanLevelOfBands(const HzSpectrum& power_ratio);

}  // namespace velmar::models
