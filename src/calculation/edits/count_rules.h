#pragma once

#include <optional>
#include <string>

#include "elements/setup.h"
#include "foundation/decimal.h"

namespace velmar::calculation {

// What happens to a number that is typed into a count list or a thickness box.

/// The text that stands in a count list after `text` was typed there: an empty text becomes "1", a number
/// above `cap` becomes `cap`.
std::string CappedCount(const std::string& text, int cap);

/// `Combo1`: the count of the first leaf, 1 to 10.
void EnterLeaf1Count(elements::Setup& setup, const std::string& text);
/// `Combo5`: the count of the second leaf, 1 to 10.
void EnterLeaf2Count(elements::Setup& setup, const std::string& text);
/// `Combo12`: the count of the resilient layers. The list offers 0 to 10; typing an empty text gives 1.
void EnterResilientCount(elements::Setup& setup, const std::string& text);
/// `ComboMatSEA1` or `ComboMatSEA2`: the count of a SEA side, 1 to 3.
void EnterSeaCount(elements::SeaLeaf& leaf, const std::string& text);
/// `Combo18`: the count of the cavity layers. A number above 7 stays as typed, and caps the count of the
/// second leaf at 7 instead; seven rows are shown and calculated.
void EnterCavityCount(elements::Setup& setup, const std::string& text);
/// `Combo15`: the number of facade components. A number above 9 leaves "9 ", with a blank behind it.
void EnterComponentCount(elements::Setup& setup, const std::string& text);

/// A thickness box holds `text` now. An empty box, or one that holds no number, leaves the layer as it was.
template <typename Material>
void EnterThickness(elements::LayerRow<Material>& row, const std::string& text) {
  row.thickness_text = text;
  if (const std::optional<double> thickness_mm = ParseDecimal(text)) row.slot.thickness_mm = *thickness_mm;
}

/// A thickness box is left: a number not above 0 becomes "10". While it is typed it stays, since "0" may be
/// the beginning of "0,5".
/// @return whether it did
template <typename Material>
bool LeaveThickness(elements::LayerRow<Material>& row) {
  const std::optional<double> thickness_mm = ParseDecimal(row.thickness_text);
  if (!thickness_mm || *thickness_mm > 0.0) return false;
  EnterThickness(row, "10");
  return true;
}

}  // namespace velmar::calculation
