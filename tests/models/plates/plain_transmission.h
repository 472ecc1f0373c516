#pragma once

#include <span>

#include "models/plates/impedance.h"

/// The transmission model as its formulas are written down: no value shared, none kept, powers and angles
/// evaluated where they stand. Slow on purpose: it is what the production code is compared with.
namespace velmar::models {

double PlainPlateImag(double f, double theta, const Plate& plate);
double PlainPlateReal(double f, double theta, const Plate& plate);
double PlainCavityImag(double f, double theta, const Cavity& cavity);
double PlainCavityReal(double f, double theta, const Cavity& cavity);
double PlainTauAngle(double f, double theta, std::span<const Plate> plates, const Cavity& cavity);
double PlainTau(double f, std::span<const Plate> plates, const Cavity& cavity);
double PlainPointR(double f, std::span<const Plate> plates, const Cavity& cavity);
double PlainBandR(double f, std::span<const Plate> plates, const Cavity& cavity);

}  // namespace velmar::models
