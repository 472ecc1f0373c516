#pragma once

#include <string_view>

#include "foundation/csv.h"
#include "foundation/message.h"

namespace velmar::storage {

/// velmar::ParseCsv() of a text that comes from outside.
/// @throws Failure with the line and what is wrong there; also when the bytes are not UTF-8
CsvTable ParseCsv(std::string_view text);

}  // namespace velmar::storage
