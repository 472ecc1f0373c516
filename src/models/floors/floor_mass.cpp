#include "models/floors/floor_mass.h"

namespace velmar::models {

double SurfaceMass(std::span<const PlateLayer> layers) {
  double mass = 0.0;
  for (const PlateLayer& layer : layers) mass += layer.density_kg_m3 * LayerThickness(layer);
  return mass;
}

double SurfaceMass(std::span<const ResilientMat> layers) {
  double mass = 0.0;
  for (const ResilientMat& layer : layers) {
    if (layer.density_kg_m3 < 0.0) continue;
    mass += layer.thickness_mm * layer.density_kg_m3 * layer.multiplicity * 0.001;
  }
  return mass;
}

}  // namespace velmar::models
