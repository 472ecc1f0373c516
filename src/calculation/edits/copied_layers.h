#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// A layer of a leaf, with the damping layers on its left and right where it lies in a SEA leaf.
struct CopiedLeafLayer {
  elements::LayerRow<elements::StructuralMaterial> row{};
  std::array<elements::DampingRow, 2> damping{};

  bool operator==(const CopiedLeafLayer&) const = default;
};
using CopiedFibrousLayer = elements::LayerRow<elements::FibrousMaterial>;
using CopiedResilientLayer = elements::LayerRow<elements::ResilientMaterial>;

/// Layers on their way to another table, tab, variant or project, with all values of their materials.
using CopiedLayers = std::variant<std::vector<CopiedLeafLayer>, std::vector<CopiedFibrousLayer>,
                                  std::vector<CopiedResilientLayer>>;

/// The number of layers in `layers`.
int CountOf(const CopiedLayers& layers);

/// The `count` rows of `group` from row `first` on.
/// @throws std::out_of_range for a group whose count is not free, or rows that are not in use
CopiedLayers CopyLayers(const elements::Setup& setup, elements::LayerGroup group, int first, int count);

/// Puts `layers` into `group`, the first of them as row `at`. A leaf takes ticked damping layers as layers of
/// their own, in the order in which they lie; a SEA leaf, which has no number of sheets, takes each sheet as
/// a layer.
/// @return false when they are of another family than the group, none at all, or more than it has room for;
///         nothing has changed then
/// @throws std::out_of_range for a group whose count is not free, or `at` beyond the rows in use
bool PasteLayers(elements::Setup& setup, elements::LayerGroup group, int at, const CopiedLayers& layers);

/// The same in place of all rows that are in use.
bool ReplaceLayers(elements::Setup& setup, elements::LayerGroup group, const CopiedLayers& layers);

/// `layers` as a text that gives them back exactly, as for the clipboard.
std::string WriteLayers(const CopiedLayers& layers);
/// The layers of which `text` was written; nothing when it is none.
std::optional<CopiedLayers> ReadLayers(std::string_view text);

}  // namespace velmar::calculation
