#pragma once

#include <string>

#include "elements/setup.h"

namespace velmar::calculation {

// What a page does to the free list of layers. Whatever comes or goes, the leaves on both sides of a cavity
// stay joined as they were: a row that becomes the first of a cavity takes the cavity's connection over.

/// `ComboStrati`: the number of rows, 1 to 16; an empty text becomes 1.
void EnterStratumCount(elements::Setup& setup, const std::string& text);
/// `ComboTipoStrato`: row `index` is of `kind` from now on. An interlayer that was none is 0,76 mm thick, air
/// that was an interlayer 50 mm. @throws std::out_of_range beyond the rows
void ChooseStratumKind(elements::Setup& setup, int index, elements::StratumKind kind);

/// A row comes before row `place`, 0 to the number of rows: air beside a leaf, a plate beside a fill.
/// @return false, and nothing has changed, when there are 16 rows, or `place` is none
bool InsertStratum(elements::Setup& setup, int place);
/// Row `index` comes once more, behind itself.
/// @return false, and nothing has changed, when there are 16 rows, or no row `index` in use
bool DuplicateStratum(elements::Setup& setup, int index);
/// Row `index` goes.
/// @return false, and nothing has changed, when it is the only one, or no row in use
bool RemoveStratum(elements::Setup& setup, int index);
/// Row `from` goes to place `to`, the rows between move up by one.
/// @return false, and nothing has changed, when one of them is no row in use
bool MoveStratum(elements::Setup& setup, int from, int to);
/// The rows stand in the other order; what is bonded stays bonded.
void TurnStrata(elements::Setup& setup);

}  // namespace velmar::calculation
