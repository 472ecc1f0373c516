#pragma once

#include <filesystem>
#include <string>

#include "usage_builder/usage_tree.h"

namespace velmar::usage_builder {

/// The command line of this product as a tree.
/// @param language of the catalogue: "Italiano"
/// @param share the shipped data folder, whose catalogue has the words
UsageCommand UsageOfVelmar(const std::string& language, const std::filesystem::path& share);

}  // namespace velmar::usage_builder
