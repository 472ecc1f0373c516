#pragma once

#include "elements/keyed_values.h"
#include "storage/project/line_cursor.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

/// The heading line of the keyed block, which may follow the last line of a project's family part. Older
/// programs ignore what stands there.
inline constexpr const char* kKeyedBlockHeading = "[VELMARpro]";

/// Writes the heading line and one line "name = value" for each of `values`; nothing when there are none.
///
/// A value is written so that every text comes back, although the file is Windows-1252 and a line holds no
/// line break: "\\" is a backslash, "\n" and "\r" are line breaks, and "\u{1F600}" is the character of that
/// hexadecimal number: every other control character, every one that the code page lacks, and a blank at an
/// end of the value.
void WriteKeyedBlock(LineWriter& out, const elements::KeyedValues& values);

/// The values of the block at which `lines` stands; none, and nothing is read, where its heading line does
/// not come next. Empty lines behind the last value do not count.
/// @throws ProjectFileFailure when a line is not "name = value" with a valid name, a name comes twice, or an
///         escape is none
elements::KeyedValues ReadKeyedBlock(LineCursor& lines);

}  // namespace velmar::storage
