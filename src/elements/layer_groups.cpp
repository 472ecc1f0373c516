#include "elements/layer_groups.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace velmar::elements {
namespace {

using enum LayerGroup;
using T = MaterialFamily;

constexpr std::array<LayerGroupRow, 13> kGroups = {{
    {kLeaf1, "Parete 1", T::kStructural, 10, "Combo3", "Text5", "Command1"},
    {kLeaf2, "Parete 2", T::kStructural, 10, "Combo4", "Text6", "Command7"},
    {kSeaLeaf1, "Parete 1 normale SEA", T::kStructural, 3, "ComboMatNormaleSEA1", "TextSpessoreMatSEA1",
     "CommandMatSEA1"},
    {kSeaLeaf2, "Parete 2 normale SEA", T::kStructural, 3, "ComboMatNormaleSEA2", "TextSpessoreMatSEA2",
     "CommandMatSEA2"},
    {kSeaDamping1, "Parete 1 smorzante SEA", T::kStructural, 6, "ComboMatSmorzanteSEA1",
     "TextSpessoreMatSmorzanteSEA1", "CommandMatSmorzanteSEA1"},
    {kSeaDamping2, "Parete 2 smorzante SEA", T::kStructural, 6, "ComboMatSmorzanteSEA2",
     "TextSpessoreMatSmorzanteSEA2", "CommandMatSmorzanteSEA2"},
    {kSeaCavityMass, "Intercapedine massa SEA", T::kStructural, 2, "ComboMatMassaIntercSEA",
     "TextSpessoreMatMassaIntercSEA", "CommandMatMassaIntercSEA"},
    {kSeaCavityDamping, "Intercapedine smorzante SEA", T::kStructural, 2, "ComboMatSmorzIntercSEA",
     "TextSpessoreMatSmorzIntercSEA", "CommandMatSmorzIntercSEA"},
    {kCavity, "Intercapedine", T::kFibrous, 7, "Combo9", "Text26", "Command13"},
    {kSeaCavityFibre, "Intercapedine fibra SEA", T::kFibrous, 3, "ComboMatFibraIntercSEA",
     "TextSpessoreMatFibraIntercSEA", "CommandMatFibraIntercSEA"},
    {kResilient, "Mat. resiliente", T::kResilient, 10, "Combo11", "Text10", "Command9"},
    {kStratumSolid, "Strato multistrato", T::kStructural, Multilayer::kCapacity, "ComboMatStrato",
     "TextSpessoreMatStrato", "CommandMatStrato"},
    {kStratumFibre, "Riempimento multistrato", T::kFibrous, Multilayer::kCapacity, "ComboFibraStrato",
     "TextSpessoreFibraStrato", "CommandFibraStrato"},
}};

// One body for the mutable and the const door.
template <typename AnySetup>
auto& AnyStructuralRow(AnySetup& setup, LayerGroup group, int index) {
  const auto i = static_cast<std::size_t>(index);
  switch (group) {
    case kLeaf1:
      return setup.leaf1.rows.at(i);
    case kLeaf2:
      return setup.leaf2.rows.at(i);
    case kSeaLeaf1:
      return setup.sea_leaf1.rows.at(i);
    case kSeaLeaf2:
      return setup.sea_leaf2.rows.at(i);
    case kSeaDamping1:
      return setup.sea_leaf1.damping.at(i).row;
    case kSeaDamping2:
      return setup.sea_leaf2.damping.at(i).row;
    case kSeaCavityMass:
      return setup.sea_cavity.masses.at(i);
    case kSeaCavityDamping:
      return setup.sea_cavity.mass_damping.at(i).row;
    case kStratumSolid:
      return setup.multilayer.strata.at(i).solid;
    default:
      throw std::out_of_range("no structural layer group");
  }
}

template <typename AnySetup>
auto& AnyFibrousRow(AnySetup& setup, LayerGroup group, int index) {
  const auto i = static_cast<std::size_t>(index);
  switch (group) {
    case kCavity:
      return setup.cavity.layers.rows.at(i);
    case kSeaCavityFibre:
      return setup.sea_cavity.fibres.at(i);
    case kStratumFibre:
      return setup.multilayer.strata.at(i).fibre;
    default:
      throw std::out_of_range("no fibrous layer group");
  }
}

}  // namespace

std::span<const LayerGroupRow> LayerGroups() { return kGroups; }

const LayerGroupRow& RowOf(LayerGroup group) { return kGroups.at(static_cast<std::size_t>(group)); }

std::optional<LayerGroup> FindLayerGroup(std::string_view code) {
  const auto* row = std::ranges::find(kGroups, code, &LayerGroupRow::code);
  if (row == kGroups.end()) return std::nullopt;
  return row->group;
}

int RowsInUse(const Setup& setup, LayerGroup group) {
  const int capacity = RowOf(group).capacity;
  switch (group) {
    case kLeaf1:
      return std::clamp(setup.leaf1.count, 0, capacity);
    case kLeaf2:
      return std::clamp(setup.leaf2.count, 0, capacity);
    case kSeaLeaf1:
      return std::clamp(setup.sea_leaf1.count, 0, capacity);
    case kSeaLeaf2:
      return std::clamp(setup.sea_leaf2.count, 0, capacity);
    case kSeaDamping1:
      return 2 * RowsInUse(setup, kSeaLeaf1);
    case kSeaDamping2:
      return 2 * RowsInUse(setup, kSeaLeaf2);
    case kCavity:
      return std::clamp(setup.cavity.layers.count, 0, capacity);
    case kResilient:
      return std::clamp(setup.resilient.count, 0, capacity);
    case kSeaCavityMass:
    case kSeaCavityDamping:
      return MassCount(setup.sea_cavity.type);
    case kSeaCavityFibre:
      return FibreCount(setup.sea_cavity.type);
    case kStratumSolid:
    case kStratumFibre:
      return setup.multilayer.Count();
  }
  return 0;
}

LayerRow<StructuralMaterial>& StructuralRow(Setup& setup, LayerGroup group, int index) {
  return AnyStructuralRow(setup, group, index);
}

const LayerRow<StructuralMaterial>& StructuralRow(const Setup& setup, LayerGroup group, int index) {
  return AnyStructuralRow(setup, group, index);
}

LayerRow<FibrousMaterial>& FibrousRow(Setup& setup, LayerGroup group, int index) {
  return AnyFibrousRow(setup, group, index);
}

const LayerRow<FibrousMaterial>& FibrousRow(const Setup& setup, LayerGroup group, int index) {
  return AnyFibrousRow(setup, group, index);
}

}  // namespace velmar::elements
