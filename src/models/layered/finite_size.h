#pragma once

#include "models/plates/loss_factor.h"

namespace velmar::models {

/// Radiation of a plane wave's trace from an element of finite size in a baffle, mean over the azimuth, by
/// Davy's closed form (2009): towards normal incidence 1/cos(theta), held finite towards grazing by the
/// element's length and, at low frequencies, by its area. It multiplies the transmission once (Rhazi and
/// Atalla 2010).
class SpatialWindow {
 public:
  /// @param dimensions of the element, both above 0
  SpatialWindow(double frequency_hz, const PlateDimensions& dimensions);

  /// sigma at the cosine of the angle of incidence, 0 to 1.
  double Radiation(double cosine) const;

  /// The cosine at which the form changes, 0 to 1: a kink for whoever integrates.
  double Edge() const { return edge_; }
  /// G = Offset() - Slope() cosine below the edge, the cosine above; sigma = 1/sqrt(G² + AreaTerm()).
  double Offset() const { return offset_; }
  double Slope() const { return slope_; }
  double AreaTerm() const { return area_term_; }

 private:
  double edge_;       ///< p
  double offset_;     ///< h
  double slope_;      ///< alpha
  double area_term_;  ///< q²
};

}  // namespace velmar::models
