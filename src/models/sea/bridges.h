#pragma once

#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// Fixings at points between two leaves.
struct SeaPointBridge {
  double surface_mass_kg_m2 = 0.0;
  double thickness_m = 0.0;
  double loss_factor = 0.0;
  double longitudinal_speed_m_s = 0.0;
  long count = 0;
};

/// Transmission through the points at 1 to 6000 Hz, as a ratio of powers; 0 throughout without fixings.
/// @throws ArithmeticFailure when it is negative or not finite
HzSpectrum SeaPointBridgeCoupling(const SeaPointBridge& bridge, const HzSpectrum& radiation_efficiency);

/// Studs or ties along lines between two leaves.
struct SeaLineBridge {
  double surface_mass_kg_m2 = 0.0;
  double loss_factor = 0.0;
  double critical_frequency_hz = 0.0;
  double count = 0.0;
  double length_m = 0.0;
};

/// Transmission along the lines at 1 to 6000 Hz, as a ratio of powers, into `coupling`, which keeps its
/// values when the count is 0.
/// @throws ArithmeticFailure when it is negative or not finite
void SeaLineBridgeCoupling(const SeaLineBridge& bridge, const HzSpectrum& radiation_efficiency,
                           HzSpectrum& coupling);

/// `power_ratio` with the transmission of a connection added beside it, at 1 to 6000 Hz: 1 / (1 / ratio +
/// coupling), 1 or more.
/// @param coupling not negative
void AddBridge(const HzSpectrum& coupling, HzSpectrum& power_ratio);

}  // namespace velmar::models
