#pragma once

#include <optional>
#include <string>

#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::calculation {

// What a change of one cavity field forces on others, so that a cavity is never thinner than what it holds.

/// `CheckSpessoreIntercapedine`: thickness in mm of all that a SEA cavity shows: fills, masses and their
/// ticked damping layers.
double CavityContentThickness(const elements::SeaCavity& cavity);

/// Raises `TextSpessoreIntercSEA` to the thickness of the contents when it is empty or below it, as the field
/// does when it is left: to a whole number, ties to even.
void LeaveSeaCavityDepth(elements::Setup& setup);

/// The same before a run: the depth takes the exact sum, and an empty cavity leaves an empty field as it is.
void RaiseSeaCavityDepth(elements::Setup& setup);

/// `Text9` is left. A depth that is no number above 0 becomes "10" and is reported; a depth below the fibre
/// (`Text31`) or below the generic layers takes their thickness.
/// @return what the user is to be told, if anything
std::optional<Message> LeaveCavityDepth(elements::Setup& setup);

/// `Text31` holds `text` now: a depth below it is raised.
void EnterFibreThickness(elements::Setup& setup, const std::string& text);

/// `Text31` is left: an empty field becomes "0".
void LeaveFibreThickness(elements::Setup& setup);

/// `Text26`(`index`) holds `text` now: the layer takes it, and with "Materiale generico" a depth below the
/// layers' sum is raised. Empty, "," and "." are passed over.
void EnterCavityLayerThickness(elements::Setup& setup, int index, const std::string& text);

/// `Option2`(`kind`) is chosen; the one that is chosen already changes nothing.
void ChooseCavityKind(elements::Setup& setup, elements::CavityKind kind);

/// With "Materiale generico": a depth below the sum of the layers in use takes the sum. Otherwise nothing.
/// @return whether the depth was raised
bool RaiseCavityDepthToLayers(elements::Setup& setup);

/// Whether `Text31` is open for entry: the calculation reads it and the cavity is fibrous.
bool FibreThicknessEnabled(const elements::Setup& setup);

}  // namespace velmar::calculation
