#pragma once

#include <array>
#include <cstddef>

namespace velmar::models {

/// The highest frequency of the energy balances, Hz.
inline constexpr std::size_t kHighestHz = 6000;
/// The same as a signed number: a loop that turns its frequency into a double counts in int, which a
/// processor converts several at a time.
inline constexpr int kLastHz = static_cast<int>(kHighestHz);

/// One value per whole Hz, index = frequency, 0 to 6000. The balances work from 1 Hz on; index 0 stays as it
/// was unless a function says otherwise. Levels are in dB; a "power ratio" is 10^(R/10), incident over
/// transmitted sound power, in which the models calculate because it needs no logarithm.
using HzSpectrum = std::array<double, kHighestHz + 1>;

/// The square root of each frequency, the only root of a frequency alone that the formulas need.
const HzSpectrum& RootsOfHz();

// Literals of the energy balances, none derived from another.
inline constexpr double kFourfoldAirImpedance = 1810.644;  ///< 4 rho0 c0, Pa·s/m
inline constexpr double kPiAirImpedance = 1422.0797976;    ///< pi rho0 c0, Pa·s/m

/// The power ratio of the mass law 20 lg(m f) - 48 is (m f)² times this, 10^-4.8.
inline constexpr double kMassLawFactor = 1.584893192461114e-05;

}  // namespace velmar::models
