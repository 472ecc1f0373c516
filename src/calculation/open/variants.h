#pragma once

#include <optional>
#include <string>

#include "calculation/open/open_calculation.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "elements/variants.h"

namespace velmar::calculation {

// The variants of a project: set-ups fixed under a name, beside the open one. They stand in the set-up's
// further values, so that a change of them is a step like any other and goes into the project file.

/// The name that the next variant is offered: the first letter from A to Z that none of `setup` has.
std::string NextVariantName(const elements::Setup& setup);

/// Whether a variant of `setup` can be called `name`: not empty, and none but number `except` (from 0) is.
bool IsFreeVariantName(const elements::Setup& setup, const std::string& name, int except = -1);

/// Whether `setup` has room for another variant, and reads back exactly from the text of one.
bool CanFixVariant(const elements::Setup& setup);

/// The set-up as it is, with its result where there is one, is the last variant from now on.
/// @throws std::logic_error where CanFixVariant() or IsFreeVariantName() says no
void FixVariant(elements::Setup& setup, const std::string& name,
                const std::optional<elements::ResultSet>& result);
/// Variant `index` (from 0) is the set-up as it is from now on, under its old name.
/// @throws std::logic_error when the set-up does not read back; std::out_of_range for no variant
void FixVariantAgain(elements::Setup& setup, int index, const std::optional<elements::ResultSet>& result);
/// @throws std::logic_error when the name is not free; std::out_of_range for no variant
void RenameVariant(elements::Setup& setup, int index, const std::string& name);
/// Variant `from` stands in place `to`. @throws std::out_of_range for no variant
void MoveVariant(elements::Setup& setup, int from, int to);
/// @throws std::out_of_range for no variant
void RemoveVariant(elements::Setup& setup, int index);

/// The set-up of `variant`, with the information and the further values of `setup`; nothing when this program
/// cannot read it.
std::optional<elements::Setup> SetupOfVariant(const elements::Setup& setup, const elements::Variant& variant);

/// Whether the set-up is that of `variant`.
bool IsVariant(const elements::Setup& setup, const elements::Variant& variant);

/// The open calculation goes back to variant `index` in one step, and is run where that had a result: what is
/// shown is always what this program calculates. A range that was left then is left again without a question,
/// any other ends the run without a result.
/// @return false when there is no such variant, or this program cannot read it; nothing has changed then
bool GoToVariant(OpenCalculation& open, int index);

}  // namespace velmar::calculation
