#pragma once

#include "elements/fields.h"
#include "elements/keyed_values.h"
#include "elements/setup.h"

namespace velmar::storage {

/// The fields that a set-up has once and that have a place in the lines of a family part. No line is added to
/// those: older programs read them one by one. Every other field stands in the keyed block.
inline constexpr elements::FieldSet kFieldsOfLines = {
    elements::Field::kWidth,         elements::Field::kHeight,         elements::Field::kCavityDepth,
    elements::Field::kCavityKind,    elements::Field::kFibreThickness, elements::Field::kSeaCavityDepth,
    elements::Field::kSeaCavityType, elements::Field::kSupport,        elements::Field::kHanger,
    elements::Field::kDecoupling,    elements::Field::kSimplified,     elements::Field::kTracks,
    elements::Field::kBaseThickness};

/// What the keyed block of `setup` holds: its further values, and behind them the fields that its calculation
/// reads, that are not `of_lines` and differ from Setup{}.
elements::KeyedValues KeyedValuesOf(const elements::Setup& setup,
                                    elements::FieldSet of_lines = kFieldsOfLines);

/// Gives `setup` what the keyed block of its file holds: the fields that its calculation reads and that are
/// not `of_lines`, as in Setup{} where the block has none, and the rest as further values.
/// @return false when the text of a field is none of it
bool TakeKeyedValues(const elements::KeyedValues& values, elements::Setup& setup,
                     elements::FieldSet of_lines = kFieldsOfLines);

}  // namespace velmar::storage
