#pragma once

#include <vector>

#include "foundation/message.h"
#include "storage/results/saved_result.h"

namespace velmar::storage {

/// A table of texts, row by row and field by field.
using CopiedTable = std::vector<std::vector<MessageLine>>;

/// What "Copia" gives of a stored result: name, description, rating and area with their headings (rows 371,
/// 94, 372 and 373), the 21 bands under theirs, and the adaptation terms. Numbers have a decimal comma; bands
/// one decimal; a null is empty.
CopiedTable CopyOf(ResultTable table, const SavedResult& result);

}  // namespace velmar::storage
