#include "calculation/edits/layer_edits.h"

#include <stdexcept>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/count_rules.h"
#include "calculation/edits/material_choice.h"

namespace velmar::calculation {
namespace {

using elements::LayerGroup;
using elements::MaterialFamily;
using elements::Setup;

template <typename AnySetup, typename Visit>
auto VisitRow(AnySetup& setup, LayerGroup group, int index, Visit&& visit) {
  switch (RowOf(group).family) {
    case MaterialFamily::kStructural:
      return visit(StructuralRow(setup, group, index));
    case MaterialFamily::kFibrous:
      return visit(FibrousRow(setup, group, index));
    case MaterialFamily::kResilient:
      return visit(setup.resilient.rows.at(static_cast<std::size_t>(index)));
  }
  throw std::out_of_range("no layer group");
}

void FollowContents(Setup& setup, LayerGroup group) {
  switch (group) {
    case LayerGroup::kCavity:
      RaiseCavityDepthToLayers(setup);
      return;
    case LayerGroup::kSeaCavityFibre:
    case LayerGroup::kSeaCavityMass:
    case LayerGroup::kSeaCavityDamping:
      LeaveSeaCavityDepth(setup);
      return;
    default:
      return;
  }
}

template <typename AnySetup>
auto& AnyDamping(AnySetup& setup, LayerGroup group, int index) {
  const auto i = static_cast<std::size_t>(index);
  switch (group) {
    case LayerGroup::kSeaDamping1:
      return setup.sea_leaf1.damping.at(i);
    case LayerGroup::kSeaDamping2:
      return setup.sea_leaf2.damping.at(i);
    case LayerGroup::kSeaCavityDamping:
      return setup.sea_cavity.mass_damping.at(i);
    default:
      throw std::out_of_range("no damping layers");
  }
}

}  // namespace

LayerText LayerTextOf(const Setup& setup, LayerGroup group, int index) {
  return VisitRow(setup, group, index, [](const auto& row) {
    return LayerText{row.listed, row.thickness_text, row.multiplicity, row.slot.thickness_mm};
  });
}

bool PutMaterial(Setup& setup, LayerGroup group, int index, const std::string& name,
                 const elements::MaterialLookup& materials) {
  if (!ChooseMaterial(setup, group, index, name, materials)) return false;
  FollowContents(setup, group);
  return true;
}

void EnterLayerThickness(Setup& setup, LayerGroup group, int index, const std::string& text) {
  if (group == LayerGroup::kCavity) {
    EnterCavityLayerThickness(setup, index, text);
    return;
  }
  VisitRow(setup, group, index, [&text](auto& row) { EnterThickness(row, text); });
  FollowContents(setup, group);
}

bool LeaveLayerThickness(Setup& setup, LayerGroup group, int index) {
  const bool corrected = VisitRow(setup, group, index, [](auto& row) { return LeaveThickness(row); });
  if (corrected) FollowContents(setup, group);
  return corrected;
}

void EnterMultiplicity(Setup& setup, LayerGroup group, int index, const std::string& text) {
  const int sheets = elements::CountOf(CappedCount(text, kMostSheets), 1, kMostSheets);
  VisitRow(setup, group, index, [sheets](auto& row) { row.multiplicity = sheets; });
  FollowContents(setup, group);
}

elements::DampingRow& DampingOf(Setup& setup, LayerGroup group, int index) {
  return AnyDamping(setup, group, index);
}

const elements::DampingRow& DampingOf(const Setup& setup, LayerGroup group, int index) {
  return AnyDamping(setup, group, index);
}

void TickDamping(Setup& setup, LayerGroup group, int index, bool ticked) {
  DampingOf(setup, group, index).ticked = ticked;
  FollowContents(setup, group);
}

void ChooseSeaCavityType(Setup& setup, elements::SeaCavityType type) {
  setup.sea_cavity.type = type;
  LeaveSeaCavityDepth(setup);
}

}  // namespace velmar::calculation
