#pragma once

#include <string_view>

namespace velmar::storage {

/// What must hold of any bytes: they are refused with a ProjectFileFailure, or read to a set-up that is
/// written to a file which reads back to itself.
/// @return whether they were read
/// @throws std::logic_error when it does not hold
bool ReadAnyProject(std::string_view bytes);

}  // namespace velmar::storage
