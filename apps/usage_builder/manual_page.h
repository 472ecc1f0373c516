#pragma once

#include <string>

#include "usage_builder/usage_tree.h"

namespace velmar::usage_builder {

/// Where the commands go in the text of a manual page: a line of its own.
inline constexpr const char* kCommandsMark = ".\\\" COMMANDS";

/// The commands of `program` as sections of a manual page (man(7)): each with its arguments and options; the
/// options that every command repeats (help) are left out.
std::string CommandSections(const UsageCommand& program);

/// `page` with the commands of `program` in the place of kCommandsMark.
/// @throws std::invalid_argument when `page` has no such line
std::string ManualPage(const std::string& page, const UsageCommand& program);

}  // namespace velmar::usage_builder
