#pragma once

#include <filesystem>
#include <vector>

#include "validation/accuracy.h"

namespace velmar::application {

/// Where the shipped data hold the measured constructions and what the models make of them.
inline constexpr const char* kValidationFolder = "Validation";
inline constexpr const char* kPredictionsFile = "predictions.csv";

/// Writes what the models predict for the measured constructions, made while the program is built.
/// @throws StoreFailure when the file cannot be written
void WritePredictions(const std::filesystem::path& file,
                      const std::vector<validation::Prediction>& predictions);

/// What is known of the errors of the models: the table that came with the program. Without the file nothing
/// is known, and nothing is claimed.
/// @throws std::runtime_error that names the file when it is there and cannot be read
validation::Accuracy ReadAccuracy(const std::filesystem::path& file);

}  // namespace velmar::application
