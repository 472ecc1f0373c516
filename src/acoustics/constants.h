#pragma once

namespace velmar::acoustics {

// The coarse literals of the models. Each model uses the one that its formula names; none is derived from
// another, because saved ratings depend on the exact digits.

inline constexpr double kSpeedOfSound = 350.9;         ///< c0, m/s
inline constexpr double kAirDensity = 1.29;            ///< rho0, kg/m³
inline constexpr double kAirImpedance = 452.661;       ///< Z0 = rho0 c0, Pa·s/m
inline constexpr double kTwiceAirImpedance = 905.322;  ///< 2 Z0, Pa·s/m
inline constexpr double kTwoPi = 6.2832;               ///< wherever an angular frequency is formed
inline constexpr double kPi = 3.1416;                  ///< radiation and loss-factor terms, angular step

}  // namespace velmar::acoustics
