#pragma once

#include <span>

#include "models/plates/loss_factor.h"
#include "models/plates/plate_layer.h"

/// The plate's constants and its loss factor as their formulas are written down.
namespace velmar::models {

struct PlainPlate {
  double sum_h = 0.0;
  double sum_eh2 = 0.0;
  double mass = 0.0;
  double eta_int = 0.0;
  double fc = 0.0;
  double bending = 0.0;
  double lambda_c = 0.0;
  double perimeter = 0.0;
  double area = 0.0;
  double sigma_cap = 0.0;
  double sigma_crit = 0.0;
  double short_side = 0.0;
  double edge_loss = 0.0;
};

PlainPlate FindPlainPlate(std::span<const PlateLayer> layers, const PlateDimensions& dimensions);
double PlainTotalLossFactor(const PlainPlate& plate, double f, double value_before);

}  // namespace velmar::models
