#pragma once

#include <string>
#include <vector>

#include "elements/layers.h"

namespace velmar::storage {

// The layers of a measured construction as one line of text, from the first to the last, joined by " + ":
//   2 x 12.5 Cartongesso standard (850 4.1 0.012 0.3)
// is two sheets of 12.5 mm with density (kg/m³), Young's modulus (GPa), loss factor and Poisson's ratio.
// Every function throws std::runtime_error, naming the text, when it does not read so.

/// The sheets of a leaf.
std::vector<elements::LayerRow<elements::StructuralMaterial>> ReadSheets(const std::string& text);

/// The mats under a floor: thickness, name, density (kg/m³) and dynamic stiffness (MN/m³).
std::vector<elements::LayerRow<elements::ResilientMaterial>> ReadMats(const std::string& text);

/// A fibre that a cavity may hold.
struct FibreKind {
  elements::FibrousMaterial material{};   ///< without thickness and flow resistance
  double flow_resistivity_pa_s_m2 = 0.0;  ///< 0 where no source states it
};

/// The fills of a cavity: thickness and the name of one of `kinds`. Their flow resistance is the resistivity
/// times the thickness.
std::vector<elements::LayerRow<elements::FibrousMaterial>> ReadFills(const std::string& text,
                                                                     const std::vector<FibreKind>& kinds);

}  // namespace velmar::storage
