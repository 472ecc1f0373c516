#pragma once

#include <optional>
#include <vector>

#include "foundation/message.h"
#include "storage/results/saved_result.h"

namespace velmar::storage {

/// A field of a table that is copied: what it says, and its value when it is a number.
struct CopiedField {
  MessageLine text{};
  std::optional<double> number{};

  bool operator==(const CopiedField&) const = default;
};

/// A heading or another text.
CopiedField TextField(MessageLine text);
/// `value` in its shortest form with a decimal comma; empty for nothing.
CopiedField NumberField(const std::optional<double>& value);

/// Row by row and field by field.
using CopiedTable = std::vector<std::vector<CopiedField>>;

/// What "Copia" gives of a stored result: name, description, rating and area with their headings, the 21
/// bands under theirs, and the adaptation terms; last what its run told, where it told anything. Numbers have
/// a decimal comma; bands are written with one decimal; a null is empty.
CopiedTable CopyOf(ResultTable table, const SavedResult& result);

}  // namespace velmar::storage
