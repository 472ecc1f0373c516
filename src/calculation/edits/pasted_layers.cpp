#include "calculation/edits/pasted_layers.h"

#include <algorithm>
#include <string_view>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/layer_edits.h"
#include "calculation/edits/layer_moves.h"
#include "calculation/edits/material_choice.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::LayerGroup;
using elements::MaterialFamily;
using elements::Setup;

/// A line of the table.
struct TypedLayer {
  std::string material{};
  std::string thickness{};  ///< mm; empty: that of the material
  int sheets = 1;
};

std::string WithoutUnit(std::string text) {
  constexpr std::string_view kUnit = "mm";
  if (!text.ends_with(kUnit)) return text;
  text.resize(text.size() - kUnit.size());
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

const std::string& CellAt(const std::vector<std::string>& cells, std::size_t column) {
  static const std::string kNone;
  return column < cells.size() ? cells[column] : kNone;
}

/// Takes away what is no layer: empty lines, the headings, the numbers before the materials.
void StripTable(TableCells& lines, MaterialFamily family, const elements::MaterialLookup& materials) {
  std::erase_if(lines, [](const std::vector<std::string>& cells) {
    return std::ranges::all_of(cells, [](const std::string& cell) { return cell.empty(); });
  });
  for (std::vector<std::string>& cells : lines) {
    const bool numbered = cells.size() > 1 && ParseDecimal(cells[0]) && !ParseDecimal(WithoutUnit(cells[1]));
    if (numbered) cells.erase(cells.begin());
  }
  if (lines.size() < 2) return;
  const std::vector<std::string>& head = lines.front();
  const bool headings = !IsMaterial(materials, family, head[0]) && !CellAt(head, 1).empty() &&
                        !ParseDecimal(WithoutUnit(CellAt(head, 1)));
  if (headings) lines.erase(lines.begin());
}

MessageLine Quoting(MessageRow row, const std::string& cell) { return {row, " \"" + cell + "\"."}; }

/// Reads one line. @return why it is refused
std::optional<MessageLine> Read(const std::vector<std::string>& cells, MaterialFamily family,
                                const elements::MaterialLookup& materials, TypedLayer& layer) {
  layer.material = cells[0];
  if (!IsMaterial(materials, family, layer.material))
    return Quoting(kPasteUnknownMaterialRow, layer.material);
  layer.thickness = WithoutUnit(CellAt(cells, 1));
  if (!layer.thickness.empty() && !(ParseDecimal(layer.thickness).value_or(0.0) > 0.0))
    return Quoting(kPasteBadThicknessRow, CellAt(cells, 1));
  const std::string& sheets = CellAt(cells, 2);
  if (sheets.empty()) return std::nullopt;
  const double count = ParseDecimal(sheets).value_or(0.0);
  layer.sheets = static_cast<int>(std::clamp(count, 0.0, static_cast<double>(kMostSheets)));
  if (layer.sheets < 1 || layer.sheets != count) return Quoting(kPasteBadSheetsRow, sheets);
  return std::nullopt;
}

bool HasSheets(LayerGroup group) {
  return group == LayerGroup::kLeaf1 || group == LayerGroup::kLeaf2 || group == LayerGroup::kCavity ||
         group == LayerGroup::kResilient;
}

/// How many lines the rows from `first` on take. Damping layers lie apart, each beside a layer of its own.
int RoomFrom(const Setup& setup, LayerGroup group, int first) {
  if (HasFreeCount(group)) return RowOf(group).capacity - first;
  const bool damping = group == LayerGroup::kSeaDamping1 || group == LayerGroup::kSeaDamping2 ||
                       group == LayerGroup::kSeaCavityDamping;
  return damping ? 1 : RowsInUse(setup, group) - first;
}

}  // namespace

std::optional<MessageLine> PutTable(Setup& setup, LayerGroup group, int first, TableCells lines,
                                    const elements::MaterialLookup& tables) {
  const elements::MaterialLookup materials = elements::ForOneOperation(tables);
  const MaterialFamily family = RowOf(group).family;
  StripTable(lines, family, materials);
  if (lines.empty()) return MessageLine{kPasteNoLayersRow};
  const int room = RoomFrom(setup, group, first);
  const int needed = static_cast<int>(lines.size());
  if (needed > room) return MessageLine{kPasteTooManyLayersRow, " " + std::to_string(room) + "."};
  std::vector<TypedLayer> layers(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (auto refusal = Read(lines[i], family, materials, layers[i])) return refusal;
    if (layers[i].sheets > 1 && !HasSheets(group)) return Quoting(kPasteBadSheetsRow, lines[i][2]);
  }
  if (HasFreeCount(group)) SetLayerCount(setup, group, std::max(RowsInUse(setup, group), first + needed));
  const std::string cavity_depth = setup.cavity.depth_text;
  const std::string sea_cavity_depth = setup.sea_cavity.depth_text;
  for (int i = 0; i < needed; ++i) {
    const TypedLayer& layer = layers[static_cast<std::size_t>(i)];
    PutMaterial(setup, group, first + i, layer.material, materials);
    if (!layer.thickness.empty()) EnterLayerThickness(setup, group, first + i, layer.thickness);
    if (HasSheets(group)) EnterMultiplicity(setup, group, first + i, std::to_string(layer.sheets));
  }
  // The default thickness of a material, which its row passed through, raises no cavity.
  setup.cavity.depth_text = cavity_depth;
  RaiseCavityDepthToLayers(setup);
  const bool in_sea_cavity = group == LayerGroup::kSeaCavityFibre || group == LayerGroup::kSeaCavityMass ||
                             group == LayerGroup::kSeaCavityDamping;
  if (in_sea_cavity) {
    setup.sea_cavity.depth_text = sea_cavity_depth;
    LeaveSeaCavityDepth(setup);
  }
  return std::nullopt;
}

}  // namespace velmar::calculation
