#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "elements/materials.h"

namespace velmar::elements {

/// A row of a material table: its values, and which of its numbers the table leaves empty (null). A null is
/// no 0: a layer that takes the material keeps the number it had.
template <typename Material>
struct MaterialRecord {
  Material values{};
  std::vector<double Material::*> nulls{};

  bool Holds(double Material::*field) const { return std::ranges::find(nulls, field) == nulls.end(); }
};

using StructuralRecord = MaterialRecord<StructuralMaterial>;
using FibrousRecord = MaterialRecord<FibrousMaterial>;
using ResilientRecord = MaterialRecord<ResilientMaterial>;

/// Where layers find their materials by name (case ignored); nothing for an unknown name. The rules of a
/// set-up are given this instead of a database.
struct MaterialLookup {
  std::function<std::optional<StructuralRecord>(std::string_view name)> structural;
  std::function<std::optional<FibrousRecord>(std::string_view name)> fibrous;
  std::function<std::optional<ResilientRecord>(std::string_view name)> resilient;
  /// Gives the same look-ups for one operation that asks for many materials: over one connection, and after a
  /// failure without trying again. Empty where nothing is gained by that.
  std::function<MaterialLookup()> for_one_operation{};
};

/// `materials` for one operation that asks for many of them.
inline MaterialLookup ForOneOperation(const MaterialLookup& materials) {
  return materials.for_one_operation ? materials.for_one_operation() : materials;
}

}  // namespace velmar::elements
