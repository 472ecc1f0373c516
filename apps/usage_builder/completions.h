#pragma once

#include <string>

#include "usage_builder/usage_tree.h"

namespace velmar::usage_builder {

/// The completion of `program` for bash: commands, options and the values of options that have a choice; file
/// names everywhere else. Options of `program` itself are offered with every command.
std::string BashCompletion(const UsageCommand& program);

/// The same for zsh, with the help texts.
std::string ZshCompletion(const UsageCommand& program);

/// The same for fish, with the help texts.
std::string FishCompletion(const UsageCommand& program);

}  // namespace velmar::usage_builder
