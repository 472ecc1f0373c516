#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "elements/setup.h"

namespace velmar::elements {

/// The groups of layer rows that take a material.
enum class LayerGroup {
  kLeaf1,
  kLeaf2,
  kSeaLeaf1,
  kSeaLeaf2,
  kSeaDamping1,
  kSeaDamping2,
  kSeaCavityMass,
  kSeaCavityDamping,
  kCavity,
  kSeaCavityFibre,
  kResilient,
  kStratumSolid,
  kStratumFibre,
};

/// The table that a group takes its materials from.
enum class MaterialFamily { kStructural, kFibrous, kResilient };

/// What is known of a group.
struct LayerGroupRow {
  LayerGroup group{};
  std::string_view code{};  ///< destination code, such as "Parete 1": stays Italian in every language
  MaterialFamily family{};
  int capacity = 0;                   ///< number of rows
  std::string_view list{};            ///< control name of the rows' material lists
  std::string_view thickness_box{};   ///< control name of the rows' thickness boxes
  std::string_view chooser_button{};  ///< control name of the buttons that open the material list
};

/// The rows of all groups, in the order of the enumeration.
std::span<const LayerGroupRow> LayerGroups();

/// The row of `group`.
const LayerGroupRow& RowOf(LayerGroup group);

/// The group that a destination code names; nothing for an unknown code.
std::optional<LayerGroup> FindLayerGroup(std::string_view code);

/// How many rows of `group` are in use, within its capacity. Of damping layers: the rows that have a check,
/// ticked or not.
int RowsInUse(const Setup& setup, LayerGroup group);

/// Row `index` of a structural group of `setup`.
/// @throws std::out_of_range for a group of another family, or beyond its rows
LayerRow<StructuralMaterial>& StructuralRow(Setup& setup, LayerGroup group, int index);
const LayerRow<StructuralMaterial>& StructuralRow(const Setup& setup, LayerGroup group, int index);

/// Row `index` of a fibrous group of `setup`.
/// @throws std::out_of_range for a group of another family, or beyond its rows
LayerRow<FibrousMaterial>& FibrousRow(Setup& setup, LayerGroup group, int index);
const LayerRow<FibrousMaterial>& FibrousRow(const Setup& setup, LayerGroup group, int index);

}  // namespace velmar::elements
