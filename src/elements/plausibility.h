#pragma once

#include <span>
#include <vector>

#include "elements/material_record.h"
#include "elements/materials.h"

namespace velmar::elements {

/// The numbers of a material.
enum class MaterialProperty {
  kThickness,          ///< mm
  kDensity,            ///< kg/m³
  kSurfaceMass,        ///< kg/m²
  kYoungsModulus,      ///< GPa
  kCriticalFrequency,  ///< Hz
  kLossFactor,
  kPoissonsRatio,
  kFlowResistance,      ///< Pa·s/m
  kDynamicStiffness,    ///< MN/m³
  kImpactImprovement,   ///< dB
  kResonanceFrequency,  ///< Hz
  kAbsorption,
};

/// What a value of a property may be. Outside `possible` no matter behaves so; outside `usual` none that
/// builders use does, and the value is more likely a slip of the unit or of the decimal sign.
struct PropertyRange {
  double lowest_possible = 0.0;  ///< the ends of both ranges belong to them
  double highest_possible = 0.0;
  double lowest_usual = 0.0;
  double highest_usual = 0.0;
  bool zero_means_unknown = false;  ///< 0 stands for a value that nobody knows, and is usual
};

/// Materials of the three families differ in what is usual.
enum class MaterialKind { kStructural, kFibrous, kResilient };

const PropertyRange& RangeOf(MaterialKind kind, MaterialProperty property);

enum class Plausibility { kUsual, kImprobable, kImpossible };

/// What to think of `value`; one that is not finite is impossible.
Plausibility Judge(MaterialKind kind, MaterialProperty property, double value);

/// A value that is not usual.
struct PropertyFinding {
  MaterialKind kind{};
  MaterialProperty property{};
  double value = 0.0;
  Plausibility verdict = Plausibility::kUsual;

  bool operator==(const PropertyFinding&) const = default;
};

/// The values of a material that are not usual, in the order of its fields. What the material leaves open
/// (nulls, bands without absorption, the numbers of the other kind of a fibrous one) is not judged.
std::vector<PropertyFinding> FindingsOf(const StructuralRecord& material);
std::vector<PropertyFinding> FindingsOf(const FibrousRecord& material);
std::vector<PropertyFinding> FindingsOf(const ResilientRecord& material);

/// Those of `findings` with `verdict`.
std::vector<PropertyFinding> Only(std::span<const PropertyFinding> findings, Plausibility verdict);

}  // namespace velmar::elements
