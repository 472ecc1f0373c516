#pragma once

#include <filesystem>

#include "calculation/runs/run.h"
#include "calculation/runs/totals.h"
#include "elements/material_record.h"
#include "elements/setup.h"
#include "storage/project/project_reader.h"

namespace velmar::application {

/// A project file that was opened and run.
struct ProjectRun {
  storage::StoredCalculation stored{};  ///< as the file names it
  elements::Setup setup{};
  calculation::RunOutcome outcome{};  ///< "failed", with the message, when the file cannot be read
  calculation::Totals totals{};
};

/// Opens the project `path` and runs it. @param go_on_outside_ranges the answer to every question
ProjectRun RunProject(const std::filesystem::path& path, const elements::MaterialLookup& materials,
                      bool go_on_outside_ranges);

}  // namespace velmar::application
