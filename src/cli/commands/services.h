#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/output/report_format.h"
#include "elements/material_record.h"
#include "presentation/texts/words.h"
#include "validation/accuracy.h"

namespace velmar::cli {

/// What the commands are given of the data folder.
struct Services {
  presentation::Words words{};
  elements::MaterialLookup materials{};
  std::filesystem::path material_database{};
  std::filesystem::path result_database{};
  std::filesystem::path library_folder{};  ///< below which every kind of measured structure has its own
  std::filesystem::path data_folder{};
  std::optional<std::filesystem::path> shipped_data{};
  std::filesystem::path access_reader{};      ///< the program that reads genuine Access files; may be empty
  std::filesystem::path validation_folder{};  ///< the measured constructions that came with the program
  /// What is known of the errors of calculations and models.
  std::function<validation::Accuracy()> accuracy = [] { return validation::Accuracy(); };
  /// Whether the bytes of a picture file can be drawn.
  std::function<bool(const std::string& bytes)> readable_picture = [](const std::string&) { return true; };
  std::vector<ReportFormat> report_formats{};  ///< each an option of `report`
  /// What is wrong with a document template, a line each; empty where nothing draws. @throws Failure when no
  /// report can be made of it
  std::function<Message(const std::filesystem::path&)> check_template{};
  TogetherReports together{};  ///< of `report --together`; without formats where nothing draws
};

}  // namespace velmar::cli
