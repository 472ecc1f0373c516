#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "validation/prediction.h"

namespace velmar::validation {

/// One measured construction as one model predicted it.
struct Observation {
  double error_db = 0.0;  ///< predicted minus measured
  double predicted_db = 0.0;
  std::string source{};
  Features features{};
};

/// The error that a further construction of the same kind would show.
struct ErrorEstimate {
  double bias_db = 0.0;        ///< expected predicted minus measured
  double half_width_db = 0.0;  ///< of the interval of 90 %
};

inline constexpr double kIntervalCoverage = 0.90;
/// Fewer constructions say nothing.
inline constexpr std::size_t kFewestObservations = 9;
/// A laboratory does not repeat another better: standard deviation of reproducibility of Rw, ISO 12999-1.
inline constexpr double kLeastSpreadDb = 1.2;

/// What is known of the errors of one model on one kind of element: a linear model with random effects of the
/// source.
///
/// error = a + sum of trends + effect of the source + rest. The trends run over log10 of the surface mass,
/// log10 of the depth of the cavity and whether the cavity is filled. A set of trends is kept when it has the
/// least n ln(RSS / n) + 2 p ln n among all sets that the data determine, which is Schwarz's criterion with
/// its penalty doubled: groups are small, and a trend that is only apparent does harm beyond its source. The
/// variances between and within sources follow from the residuals by the method of moments (DerSimonian and
/// Laird 1986); the interval for a construction of a source not seen before is that of Higgins, Thompson and
/// Spiegelhalter (2009) with the quantile of Student's t for n - 1 - k degrees of freedom (k trends).
class ErrorModel {
 public:
  /// @throws std::invalid_argument with fewer than three observations
  explicit ErrorModel(const std::vector<Observation>& observations);

  /// The error to expect of an element with `features`.
  ErrorEstimate At(const Features& features) const;

  std::size_t SourceCount() const { return source_count_; }
  /// Whether the trend over log mass, log depth, fill is part of the model.
  bool HasTrend(std::size_t trend) const;

 private:
  std::vector<std::size_t> trends_{};
  std::vector<double> coefficients_{};
  std::vector<std::vector<double>> inverse_{};  ///< of the normal matrix
  double mean_of_sources_db_ = 0.0;
  double variance_ = 0.0;  ///< of one construction around the trends, between and within sources
  double variance_of_mean_ = 0.0;
  std::size_t observation_count_ = 0;
  std::size_t source_count_ = 0;
};

/// Whether `features` and a prediction lie within what was measured: a tenth beyond the least and the
/// greatest mass and depth, a fill only where fills were measured, a rating at most 5 dB outside those
/// predicted.
bool IsWithinMeasured(const std::vector<Observation>& observations, const Features& features,
                      double predicted_db);

/// How often the interval held the measured value.
struct Coverage {
  std::size_t held = 0;
  std::size_t tried = 0;

  double Share() const { return tried == 0 ? 0.0 : static_cast<double>(held) / static_cast<double>(tried); }
};

/// Each construction against the interval that all others give.
Coverage LeaveOneOut(const std::vector<Observation>& observations);
/// Each construction against the interval that the constructions of all other sources give. Where they are
/// fewer than three nothing is tried.
Coverage LeaveOneSourceOut(const std::vector<Observation>& observations);

/// The 95 % quantile of Student's t with `degrees_of_freedom` (1 or more).
double StudentQuantile95(std::size_t degrees_of_freedom);

}  // namespace velmar::validation
