#pragma once

#include <string>

#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "elements/setup.h"

namespace velmar::calculation {

// What a page does to one layer row, whatever its group. A cavity follows its contents: it is never left
// thinner than what it holds.

/// What a layer row shows.
struct LayerText {
  std::string listed{};
  std::string thickness_text{};
  int multiplicity = 1;
  double slot_thickness_mm = 0.0;  ///< what counts while the box is empty
};

/// Row `index` of `group`. @throws std::out_of_range beyond the group's rows
LayerText LayerTextOf(const elements::Setup& setup, elements::LayerGroup group, int index);

/// The material `name` is put into row `index` of `group`.
/// @return false when no table row has that name; nothing has changed then
bool PutMaterial(elements::Setup& setup, elements::LayerGroup group, int index, const std::string& name,
                 const elements::MaterialLookup& materials);

/// The thickness box of row `index` holds `text` now.
void EnterLayerThickness(elements::Setup& setup, elements::LayerGroup group, int index,
                         const std::string& text);

/// The thickness box of row `index` is left: a number not above 0 becomes "10".
/// @return whether it did
bool LeaveLayerThickness(elements::Setup& setup, elements::LayerGroup group, int index);

/// The most equal sheets that a row takes.
inline constexpr int kMostSheets = 10;

/// The number of equal sheets of row `index` is `text` now, 1 to kMostSheets.
void EnterMultiplicity(elements::Setup& setup, elements::LayerGroup group, int index,
                       const std::string& text);

/// The damping layer `index` of `group` (kSeaDamping1, kSeaDamping2 or kSeaCavityDamping).
/// @throws std::out_of_range for another group
elements::DampingRow& DampingOf(elements::Setup& setup, elements::LayerGroup group, int index);
const elements::DampingRow& DampingOf(const elements::Setup& setup, elements::LayerGroup group, int index);

/// A damping check is clicked.
void TickDamping(elements::Setup& setup, elements::LayerGroup group, int index, bool ticked);

/// `ComboTipoIntercSEA` is set to `type`.
void ChooseSeaCavityType(elements::Setup& setup, elements::SeaCavityType type);

}  // namespace velmar::calculation
