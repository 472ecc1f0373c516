#pragma once

namespace velmar::models {

/// Equal sheets of one material, one against the other, as a plate model sees them.
struct PlateLayer {
  int multiplicity = 1;             ///< number of sheets
  double thickness_mm = 0.0;        ///< of one sheet
  double density_kg_m3 = 0.0;       ///< rho
  double youngs_modulus_gpa = 0.0;  ///< E
  double loss_factor = 0.0;         ///< eta, internal
  double poissons_ratio = 0.0;      ///< nu
};

/// Thickness in metres of all the sheets of `layer`.
inline double LayerThickness(const PlateLayer& layer) {
  return layer.multiplicity * layer.thickness_mm * 0.001;
}

}  // namespace velmar::models
