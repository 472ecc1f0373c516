#include "calculation/edits/copied_layers.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <type_traits>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/layer_moves.h"
#include "elements/named_texts.h"
#include "elements/setup_text.h"

namespace velmar::calculation {
namespace {

using elements::LayerGroup;
using elements::SeaLeaf;
using elements::Setup;

bool IsSeaLeaf(LayerGroup group) { return group == LayerGroup::kSeaLeaf1 || group == LayerGroup::kSeaLeaf2; }

CopiedLeafLayer LeafLayerOf(const Setup& setup, LayerGroup group, int index) {
  CopiedLeafLayer layer{.row = StructuralRow(setup, group, index)};
  if (IsSeaLeaf(group)) {
    const SeaLeaf& leaf = group == LayerGroup::kSeaLeaf1 ? setup.sea_leaf1 : setup.sea_leaf2;
    const auto left = static_cast<std::size_t>(2 * index);
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
        if (count == 0 || in_use - replaced + count > RowOf(group).capacity) return false;
        SetLayerCount(setup, group, in_use);
        for (int i = 0; i < count; ++i) {
          if (i >= replaced) InsertLayer(setup, group, first + i);
          Put(setup, group, first + i, fitting.at(static_cast<std::size_t>(i)));
        }
        for (int i = count; i < replaced; ++i) RemoveLayer(setup, group, first + count);
        if (group == LayerGroup::kCavity) RaiseCavityDepthToLayers(setup);
        return true;
      },
      layers);
}

// The text: the family, then a line for each row; of a leaf's layer the row and its two damping layers.
constexpr const char* kFamilyName = "famiglia";
constexpr const char* kRowName = "strato";
constexpr const char* kLeftName = "sx";
constexpr const char* kRightName = "dx";

void AddRows(elements::NamedTexts& texts, const CopiedLeafLayer& layer) {
  texts.emplace_back(kRowName, elements::WriteRowText(layer.row));
  if (layer.damping[0].ticked) texts.emplace_back(kLeftName, elements::WriteRowText(layer.damping[0].row));
  if (layer.damping[1].ticked) texts.emplace_back(kRightName, elements::WriteRowText(layer.damping[1].row));
}
template <typename Material>
void AddRows(elements::NamedTexts& texts, const elements::LayerRow<Material>& row) {
  texts.emplace_back(kRowName, elements::WriteRowText(row));
}

bool TakeRow(const std::string& name, const std::string& text, std::vector<CopiedLeafLayer>& layers) {
  if (name == kRowName) return ReadRowText(text, layers.emplace_back().row);
  if (layers.empty() || (name != kLeftName && name != kRightName)) return false;
  elements::DampingRow& damping = layers.back().damping.at(name == kLeftName ? 0 : 1);
  damping.ticked = true;
  return ReadRowText(text, damping.row);
}
template <typename Material>
bool TakeRow(const std::string& name, const std::string& text,
             std::vector<elements::LayerRow<Material>>& layers) {
  return name == kRowName && ReadRowText(text, layers.emplace_back());
}

template <typename Layer>
std::optional<CopiedLayers> TakeLayers(const elements::NamedTexts& texts) {
  std::vector<Layer> layers;
  for (std::size_t i = 1; i < texts.size(); ++i) {
    if (!TakeRow(texts[i].first, texts[i].second, layers)) return std::nullopt;
  }
  return layers;
}

}  // namespace

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

std::string WriteLayers(const CopiedLayers& layers) {
  elements::NamedTexts texts = {{kFamilyName, std::to_string(layers.index())}};
  std::visit(
      [&](const auto& rows) {
        for (const auto& row : rows) AddRows(texts, row);
      },
      layers);
  return elements::WriteNamedTexts(texts);
}

std::optional<CopiedLayers> ReadLayers(std::string_view text) {
  const auto texts = elements::ReadNamedTexts(text);
  if (!texts || texts->empty() || texts->front().first != kFamilyName) return std::nullopt;
  const std::string& family = texts->front().second;
  if (family == "0") return TakeLayers<CopiedLeafLayer>(*texts);
  if (family == "1") return TakeLayers<CopiedFibrousLayer>(*texts);
  if (family == "2") return TakeLayers<CopiedResilientLayer>(*texts);
  return std::nullopt;
}

}  // namespace velmar::calculation
