#include "calculation/layer_moves.h"

#include <algorithm>
#include <stdexcept>
#include <type_traits>

#include "calculation/cavity_rules.h"
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

void SetCount(Setup& setup, LayerGroup group, int count) {
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

const SeaLeaf& SeaLeafOf(const Setup& setup, LayerGroup group) {
  return group == LayerGroup::kSeaLeaf1 ? setup.sea_leaf1 : setup.sea_leaf2;
}

bool IsSeaLeaf(LayerGroup group) { return group == LayerGroup::kSeaLeaf1 || group == LayerGroup::kSeaLeaf2; }

CopiedLeafLayer LeafLayerOf(const Setup& setup, LayerGroup group, int index) {
  CopiedLeafLayer layer{.row = StructuralRow(setup, group, index)};
  if (IsSeaLeaf(group)) {
    const auto left = static_cast<std::size_t>(2 * index);
    const SeaLeaf& leaf = SeaLeafOf(setup, group);
    layer.damping = {leaf.damping.at(left), leaf.damping.at(left + 1)};
  }
  return layer;
}

/// The layers as a SEA leaf holds them: one sheet each, damping on the outer sheets.
std::vector<CopiedLeafLayer> AsSeaLayers(const std::vector<CopiedLeafLayer>& layers) {
  std::vector<CopiedLeafLayer> sheets;
  for (const CopiedLeafLayer& layer : layers) {
    for (int sheet = 0; sheet < layer.row.multiplicity; ++sheet) {
      CopiedLeafLayer one = layer;
      one.row.multiplicity = 1;
      if (sheet > 0) one.damping[0].ticked = false;
      if (sheet + 1 < layer.row.multiplicity) one.damping[1].ticked = false;
      sheets.push_back(std::move(one));
    }
  }
  return sheets;
}

/// The layers as a leaf holds them: damping that is there is a layer like any other.
std::vector<CopiedLeafLayer> AsLeafLayers(const std::vector<CopiedLeafLayer>& layers) {
  std::vector<CopiedLeafLayer> flat;
  const auto add_damping = [&](const elements::DampingRow& damping) {
    if (damping.ticked) flat.push_back({.row = damping.row});
  };
  for (const CopiedLeafLayer& layer : layers) {
    add_damping(layer.damping[0]);
    flat.push_back({.row = layer.row});
    add_damping(layer.damping[1]);
  }
  return flat;
}

void Put(Setup& setup, LayerGroup group, int index, const CopiedLeafLayer& layer) {
  StructuralRow(setup, group, index) = layer.row;
  if (!IsSeaLeaf(group)) return;
  SeaLeaf& leaf = group == LayerGroup::kSeaLeaf1 ? setup.sea_leaf1 : setup.sea_leaf2;
  const auto left = static_cast<std::size_t>(2 * index);
  leaf.damping.at(left) = layer.damping[0];
  leaf.damping.at(left + 1) = layer.damping[1];
}
void Put(Setup& setup, LayerGroup group, int index, const CopiedFibrousLayer& layer) {
  FibrousRow(setup, group, index) = layer;
}
void Put(Setup& setup, LayerGroup /*group*/, int index, const CopiedResilientLayer& layer) {
  setup.resilient.rows.at(static_cast<std::size_t>(index)) = layer;
}

template <typename Layer>
constexpr elements::MaterialFamily FamilyOf() {
  if (std::is_same_v<Layer, CopiedFibrousLayer>) return elements::MaterialFamily::kFibrous;
  if (std::is_same_v<Layer, CopiedResilientLayer>) return elements::MaterialFamily::kResilient;
  return elements::MaterialFamily::kStructural;
}

/// Puts `layers` in place of the rows [first, first + replaced) of `group`.
bool PutIn(Setup& setup, LayerGroup group, int first, int replaced, const CopiedLayers& layers) {
  if (!HasFreeCount(group)) throw std::out_of_range("the number of these layers is not free");
  const int in_use = RowsInUse(setup, group);
  if (first < 0 || first + replaced > in_use) throw std::out_of_range("no layers to put others there");
  return std::visit(
      [&](auto fitting) {
        using Layer = typename decltype(fitting)::value_type;
        if (RowOf(group).family != FamilyOf<Layer>()) return false;
        if constexpr (std::is_same_v<Layer, CopiedLeafLayer>)
          fitting = IsSeaLeaf(group) ? AsSeaLayers(fitting) : AsLeafLayers(fitting);
        const int count = static_cast<int>(fitting.size());
        if (count == 0) return false;
        if (in_use - replaced + count > RowOf(group).capacity) return false;
        for (int i = 0; i < replaced; ++i) Rotate(setup, group, first, first + 1, in_use - i);
        int now = in_use - replaced;
        for (int i = 0; i < count; ++i, ++now) {
          Rotate(setup, group, first + i, now, now + 1);
          Put(setup, group, first + i, fitting.at(static_cast<std::size_t>(i)));
        }
        SetCount(setup, group, now);
        Follow(setup, group);
        return true;
      },
      layers);
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
  return !damping && RowsInUse(setup, group) > 1;
}

void InsertLayer(Setup& setup, LayerGroup group, int at) {
  if (!CanInsertLayer(setup, group)) throw std::out_of_range("no place for one more layer");
  const int count = RowsInUse(setup, group);
  RequireRow(at, count + 1);
  Rotate(setup, group, at, count, count + 1);
  SetCount(setup, group, count + 1);
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
  SetCount(setup, group, count - 1);
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
  return IsDoubleWall(setup) || HasStacks(setup, {Stack::kLeaf1}) || HasStacks(setup, {Stack::kSeaLeaf1});
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
      default:
        break;
    }
  }
}

int CountOf(const CopiedLayers& layers) {
  return std::visit([](const auto& rows) { return static_cast<int>(rows.size()); }, layers);
}

CopiedLayers CopyLayers(const Setup& setup, LayerGroup group, int first, int count) {
  if (!HasFreeCount(group)) throw std::out_of_range("the number of these layers is not free");
  if (count < 0 || first < 0 || first + count > RowsInUse(setup, group))
    throw std::out_of_range("no layers to copy");
  const auto collect = [&](auto layers, auto layer_of) -> CopiedLayers {
    for (int i = first; i < first + count; ++i) layers.push_back(layer_of(i));
    return layers;
  };
  switch (RowOf(group).family) {
    case elements::MaterialFamily::kStructural:
      return collect(std::vector<CopiedLeafLayer>(), [&](int i) { return LeafLayerOf(setup, group, i); });
    case elements::MaterialFamily::kFibrous:
      return collect(std::vector<CopiedFibrousLayer>(), [&](int i) { return FibrousRow(setup, group, i); });
    case elements::MaterialFamily::kResilient:
      return collect(std::vector<CopiedResilientLayer>(),
                     [&](int i) { return setup.resilient.rows.at(static_cast<std::size_t>(i)); });
  }
  throw std::out_of_range("no layer group");
}

bool PasteLayers(Setup& setup, LayerGroup group, int at, const CopiedLayers& layers) {
  return PutIn(setup, group, at, 0, layers);
}

bool ReplaceLayers(Setup& setup, LayerGroup group, const CopiedLayers& layers) {
  return PutIn(setup, group, 0, RowsInUse(setup, group), layers);
}

}  // namespace velmar::calculation
