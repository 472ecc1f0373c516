#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "elements/fields.h"
#include "elements/named_texts.h"
#include "elements/setup.h"

namespace velmar::elements {

/// `setup` as a text that gives it back exactly: every field and row, also those that its calculation does
/// not read and the rows that are not in use. A project file holds only what its calculation has. The
/// project's information and further values are left out: they belong to the project, not to a set-up of it.
///
/// One line "name=value" for each field that differs from Setup{}, one "@n=..." for each material, to which
/// the rows refer, and at the end the number of lines, so that a text that was cut off is none. UTF-8;
/// numbers in the fewest digits that give them back.
std::string WriteSetupText(const Setup& setup);

/// The set-up that `text` was written of, without information and further values; nothing when it is none, or
/// has a field that this program does not know.
std::optional<Setup> ReadSetupText(std::string_view text);

/// The texts of those of `fields` that `setup` has once and that differ from Setup{}, under their names in
/// the text of a set-up.
NamedTexts SingleFieldTexts(const Setup& setup, FieldSet fields);
/// Sets those of `fields` that a set-up has once to what `texts` hold under their names, and to what Setup{}
/// has where there is no such name. @return false when a text is none of its field
bool TakeSingleFields(const NamedTexts& texts, FieldSet fields, Setup& setup);

/// One row with all values of its material as a text that gives it back exactly.
template <typename Material>
std::string WriteRowText(const LayerRow<Material>& row);
/// Takes the row of which `text` was written. @return false when it is none; `row` is then of no use
template <typename Material>
bool ReadRowText(std::string_view text, LayerRow<Material>& row);

}  // namespace velmar::elements
