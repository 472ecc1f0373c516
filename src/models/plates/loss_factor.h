#pragma once

#include <array>
#include <span>
#include <vector>

#include "acoustics/fine_grid.h"

namespace velmar::models {

/// The two lateral dimensions of an element.
struct PlateDimensions {
  double a_m = 0.0;  ///< DimA, above 0
  double b_m = 0.0;  ///< DimB, above 0
};

/// What decides how a plate loses energy by radiation and at its edges.
struct LossTerms {
  double internal_loss_factor = 0.0;   ///< EtaInt
  double mass_kg_m2 = 0.0;             ///< the mass of the radiation and edge terms
  double critical_frequency_hz = 0.0;  ///< Fc
  double lambda_c_m = 0.0;             ///< LambdaC, the wavelength in air at Fc
  double perimeter_m = 0.0;
  double area_m2 = 0.0;
  double sigma_cap = 0.0;   ///< the highest radiation efficiency well above Fc
  double sigma_crit = 0.0;  ///< the radiation efficiency around Fc
  double short_side_m = 0.0;
  double edge_loss = 0.0;  ///< EdgeLoss
};

/// The loss terms of a plate of `mass_kg_m2` and `internal_loss_factor`. The critical frequency is asked for
/// by itself because it may belong to a larger mass than the one that radiates.
/// @throws ArithmeticFailure when a dimension, the mass or the critical frequency are not positive
LossTerms FindLossTerms(double mass_kg_m2, double internal_loss_factor, double critical_frequency_hz,
                        const PlateDimensions& dimensions);

/// The radiation efficiency at `frequency_hz`, above 0 and at most half of Fc: sides and corners after
/// Maidanik, never above 1 nor above the efficiency around Fc.
double RadiationBelowCritical(const LossTerms& terms, double frequency_hz);

/// EtaTotal at `frequency_hz` (above 0): internal, radiation and edge losses, with the radiation
/// efficiency below, around and above the critical frequency after Maidanik. Below half of Fc the radiation
/// counts twice as much as elsewhere.
/// @param value_before what stands where the frequency is exactly Fc 10^(1/20): that point belongs to neither
/// side
double TotalLossFactor(const LossTerms& terms, double frequency_hz, double value_before);

/// TotalLossFactor() at each of `frequencies_hz` in turn; before the first stands 0.
/// @throws ArithmeticFailure when a value is not finite
std::vector<double> TotalLossFactors(const LossTerms& terms, std::span<const double> frequencies_hz);

/// TotalLossFactor() on the 10 Hz grid.
/// @throws ArithmeticFailure when a value is not finite
std::array<double, acoustics::kFineGridPoints> FineGridLossFactors(const LossTerms& terms);

}  // namespace velmar::models
