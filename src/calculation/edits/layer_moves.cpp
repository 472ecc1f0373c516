#include "calculation/edits/layer_moves.h"

#include <algorithm>
#include <stdexcept>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/multilayer_edits.h"
#include "elements/catalogue.h"

namespace velmar::calculation {
namespace {

using elements::LayerGroup;
using elements::SeaLeaf;
using elements::Setup;
using elements::Stack;

/// Calls `visit(rows, each)` for the arrays that hold the layers of `group`, of which a layer takes `each`
/// places.
template <typename Visit>
void VisitRows(Setup& setup, LayerGroup group, Visit&& visit) {
  const auto leaf = [&](SeaLeaf& side) {
    visit(side.rows, 1);
    visit(side.damping, 2);
  };
  switch (group) {
    case LayerGroup::kLeaf1:
      return visit(setup.leaf1.rows, 1);
    case LayerGroup::kLeaf2:
      return visit(setup.leaf2.rows, 1);
    case LayerGroup::kSeaLeaf1:
      return leaf(setup.sea_leaf1);
    case LayerGroup::kSeaLeaf2:
      return leaf(setup.sea_leaf2);
    case LayerGroup::kCavity:
      return visit(setup.cavity.layers.rows, 1);
    case LayerGroup::kResilient:
      return visit(setup.resilient.rows, 1);
    case LayerGroup::kSeaCavityFibre:
      return visit(setup.sea_cavity.fibres, 1);
    case LayerGroup::kSeaCavityMass:
      visit(setup.sea_cavity.masses, 1);
      return visit(setup.sea_cavity.mass_damping, 1);
    default:
      throw std::out_of_range("damping layers go with the layer they lie on");
  }
}

/// The layers [first, last) turn so that the one in place `middle` comes first.
void Rotate(Setup& setup, LayerGroup group, int first, int middle, int last) {
  VisitRows(setup, group, [&](auto& rows, int each) {
    std::rotate(rows.begin() + first * each, rows.begin() + middle * each, rows.begin() + last * each);
  });
}

/// The rows in use stand in the other order; of damping layers the left one becomes the right one.
void Reverse(Setup& setup, LayerGroup group) {
  const int count = RowsInUse(setup, group);
  VisitRows(setup, group,
            [&](auto& rows, int each) { std::reverse(rows.begin(), rows.begin() + count * each); });
}

void Follow(Setup& setup, LayerGroup group) {
  if (group == LayerGroup::kCavity) RaiseCavityDepthToLayers(setup);
}

void RequireRow(int row, int rows) {
  if (row < 0 || row >= rows) throw std::out_of_range("no layer in row " + std::to_string(row));
}

bool HasStacks(const Setup& setup, std::initializer_list<Stack> wanted) {
  if (!setup.calculation) return false;
  const elements::Stacks& stacks = elements::RowOf(*setup.calculation).stacks;
  return stacks.size() == wanted.size() &&
         std::ranges::all_of(wanted, [&](Stack stack) { return stacks.Has(stack); });
}

bool IsDoubleWall(const Setup& setup) {
  return HasStacks(setup, {Stack::kLeaf1, Stack::kLeaf2, Stack::kCavity});
}
bool IsDoubleSeaWall(const Setup& setup) {
  return HasStacks(setup, {Stack::kSeaLeaf1, Stack::kSeaLeaf2, Stack::kSeaCavity});
}

bool StandsUpright(const Setup& setup) {
  return setup.calculation && !IsHorizontal(elements::RowOf(*setup.calculation).orientation);
}

/// Whether what a cavity holds reads the same from both sides.
bool IsSymmetrical(elements::SeaCavityType type) {
  return type != elements::SeaCavityType::kFibreMass && type != elements::SeaCavityType::kFibreMassFibreMass;
}

template <std::size_t N>
void MirrorRows(const elements::LayerTable<elements::StructuralMaterial, N>& from,
                elements::LayerTable<elements::StructuralMaterial, N>& to) {
  to.count = from.count;
  std::reverse_copy(from.rows.begin(), from.rows.begin() + from.count, to.rows.begin());
}

void MirrorRows(const SeaLeaf& from, SeaLeaf& to) {
  to.count = from.count;
  std::reverse_copy(from.rows.begin(), from.rows.begin() + from.count, to.rows.begin());
  std::reverse_copy(from.damping.begin(), from.damping.begin() + 2 * from.count, to.damping.begin());
}

}  // namespace

bool HasFreeCount(LayerGroup group) {
  switch (group) {
    case LayerGroup::kLeaf1:
    case LayerGroup::kLeaf2:
    case LayerGroup::kSeaLeaf1:
    case LayerGroup::kSeaLeaf2:
    case LayerGroup::kCavity:
    case LayerGroup::kResilient:
      return true;
    default:
      return false;
  }
}

void SetLayerCount(Setup& setup, LayerGroup group, int count) {
  switch (group) {
    case LayerGroup::kLeaf1:
      setup.leaf1.count = count;
      return;
    case LayerGroup::kLeaf2:
      setup.leaf2.count = count;
      return;
    case LayerGroup::kSeaLeaf1:
      setup.sea_leaf1.count = count;
      return;
    case LayerGroup::kSeaLeaf2:
      setup.sea_leaf2.count = count;
      return;
    case LayerGroup::kCavity:
      setup.cavity.layers.count = count;
      return;
    case LayerGroup::kResilient:
      setup.resilient.count = count;
      return;
    default:
      throw std::out_of_range("the number of these layers is not free");
  }
}

bool CanInsertLayer(const Setup& setup, LayerGroup group) {
  return HasFreeCount(group) && RowsInUse(setup, group) < RowOf(group).capacity;
}

bool CanRemoveLayer(const Setup& setup, LayerGroup group) {
  const int fewest = group == LayerGroup::kResilient ? 0 : 1;
  return HasFreeCount(group) && RowsInUse(setup, group) > fewest;
}

bool CanMoveLayers(const Setup& setup, LayerGroup group) {
  const bool damping = group == LayerGroup::kSeaDamping1 || group == LayerGroup::kSeaDamping2 ||
                       group == LayerGroup::kSeaCavityDamping;
  const bool listed = group == LayerGroup::kStratumSolid || group == LayerGroup::kStratumFibre;
  return !damping && !listed && RowsInUse(setup, group) > 1;
}

void InsertLayer(Setup& setup, LayerGroup group, int at) {
  if (!CanInsertLayer(setup, group)) throw std::out_of_range("no place for one more layer");
  const int count = RowsInUse(setup, group);
  RequireRow(at, count + 1);
  Rotate(setup, group, at, count, count + 1);
  SetLayerCount(setup, group, count + 1);
  Follow(setup, group);
}

void DuplicateLayer(Setup& setup, LayerGroup group, int index) {
  RequireRow(index, RowsInUse(setup, group));
  InsertLayer(setup, group, index + 1);
  VisitRows(setup, group, [&](auto& rows, int each) {
    std::copy_n(rows.begin() + index * each, each, rows.begin() + (index + 1) * each);
  });
  Follow(setup, group);
}

void RemoveLayer(Setup& setup, LayerGroup group, int index) {
  if (!CanRemoveLayer(setup, group)) throw std::out_of_range("no layer to spare");
  const int count = RowsInUse(setup, group);
  RequireRow(index, count);
  Rotate(setup, group, index, index + 1, count);
  SetLayerCount(setup, group, count - 1);
}

void MoveLayer(Setup& setup, LayerGroup group, int from, int to) {
  if (!CanMoveLayers(setup, group)) throw std::out_of_range("no layers that change places");
  RequireRow(from, RowsInUse(setup, group));
  RequireRow(to, RowsInUse(setup, group));
  if (from < to) {
    Rotate(setup, group, from, from + 1, to + 1);
  } else if (to < from) {
    Rotate(setup, group, to, from, from + 1);
  }
}

bool CanMirror(const Setup& setup) { return IsDoubleWall(setup) || IsDoubleSeaWall(setup); }

void MirrorFirstLeaf(Setup& setup) {
  if (!CanMirror(setup)) throw std::logic_error("no leaf to mirror");
  IsDoubleWall(setup) ? MirrorRows(setup.leaf1, setup.leaf2) : MirrorRows(setup.sea_leaf1, setup.sea_leaf2);
}

void MirrorSecondLeaf(Setup& setup) {
  if (!CanMirror(setup)) throw std::logic_error("no leaf to mirror");
  IsDoubleWall(setup) ? MirrorRows(setup.leaf2, setup.leaf1) : MirrorRows(setup.sea_leaf2, setup.sea_leaf1);
}

bool CanTurn(const Setup& setup) {
  if (!StandsUpright(setup)) return false;
  if (IsDoubleSeaWall(setup)) return IsSymmetrical(setup.sea_cavity.type);
  return IsDoubleWall(setup) || HasStacks(setup, {Stack::kMultilayer}) || HasStacks(setup, {Stack::kLeaf1}) ||
         HasStacks(setup, {Stack::kSeaLeaf1});
}

void TurnElement(Setup& setup) {
  if (!CanTurn(setup)) throw std::logic_error("no element to turn");
  if (IsDoubleWall(setup)) std::swap(setup.leaf1, setup.leaf2);
  if (IsDoubleSeaWall(setup)) std::swap(setup.sea_leaf1, setup.sea_leaf2);
  for (const Stack stack : elements::RowOf(*setup.calculation).stacks) {
    switch (stack) {
      case Stack::kLeaf1:
        Reverse(setup, LayerGroup::kLeaf1);
        break;
      case Stack::kLeaf2:
        Reverse(setup, LayerGroup::kLeaf2);
        break;
      case Stack::kSeaLeaf1:
        Reverse(setup, LayerGroup::kSeaLeaf1);
        break;
      case Stack::kSeaLeaf2:
        Reverse(setup, LayerGroup::kSeaLeaf2);
        break;
      case Stack::kCavity:
        if (setup.cavity.kind == elements::CavityKind::kGenericMaterial) Reverse(setup, LayerGroup::kCavity);
        break;
      case Stack::kSeaCavity:
        Reverse(setup, LayerGroup::kSeaCavityFibre);
        Reverse(setup, LayerGroup::kSeaCavityMass);
        break;
      case Stack::kMultilayer:
        TurnStrata(setup);
        break;
      default:
        break;
    }
  }
}

}  // namespace velmar::calculation
