#pragma once

namespace velmar::models {

// Air at 20 °C, as the transfer matrices breathe it. The coarser constants of the older calculations stay
// theirs: their saved results depend on them.
inline constexpr double kLayeredAirDensity = 1.204;                                        ///< rho0, kg/m³
inline constexpr double kLayeredSpeedOfSound = 343.2;                                      ///< c0, m/s
inline constexpr double kLayeredAirImpedance = kLayeredAirDensity * kLayeredSpeedOfSound;  ///< Z0, Pa·s/m

}  // namespace velmar::models
