#pragma once

#include "models/relations/relation_input.h"

namespace velmar::models {

// The quantities that relations are written in.

double PlateMass(const RelationInput& in);                 ///< m, kg/m²
double BothLeavesMass(const RelationInput& in);            ///< M = m1 + m2, kg/m²
double ThicknessInMetres(const RelationInput& in);         ///< tm
double ThicknessInCentimetres(const RelationInput& in);    ///< tc
double CavityDepthInCentimetres(const RelationInput& in);  ///< d
double FibreInCentimetres(const RelationInput& in);        ///< w

/// m / tm and M / tm in kg/m³.
/// @throws ArithmeticFailure without thickness
double PlateDensity(const RelationInput& in);
double BothLeavesDensity(const RelationInput& in);

/// 1 when the cavity is filled with fibres (or is empty), else 0: the form in which a range checks it.
double HasFibrousCavity(const RelationInput& in);
double HasEmptyCavity(const RelationInput& in);

/// A floating screed on its floor.
struct FloatingScreed {
  double mass_kg_m2 = 0.0;      ///< M, without the resilient layers
  double bare_rating_db = 0.0;  ///< Rw0, of the floor without the effect of the resilient layer
  double resonance_hz = 0.0;    ///< f0; 0 without a resilient layer
};

/// @throws ArithmeticFailure when a leaf has no mass
FloatingScreed FindFloatingScreed(const RelationInput& in);

/// What the resilient layer adds to the rating, in dB; 0 without one, below 0 for a very stiff one.
double FloatingScreedImprovement(const FloatingScreed& screed);

}  // namespace velmar::models
