#pragma once

#include <filesystem>

#include "elements/measured_construction.h"

namespace velmar::storage {

/// The measured constructions of `folder`: "constructions.csv" with what was measured, "setups.csv" with each
/// construction as the calculations are given it, "sources.csv", "fibres.csv" and "not_covered.csv".
/// `data/validation/README.md` says what each column holds.
/// @throws std::runtime_error that names file and text when something is missing or cannot be read
elements::MeasuredData ReadMeasuredData(const std::filesystem::path& folder);

}  // namespace velmar::storage
