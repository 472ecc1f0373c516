#pragma once

#include <filesystem>
#include <vector>

#include "calculation/runs/run.h"
#include "calculation/runs/totals.h"
#include "cli/output/exit_code.h"
#include "cli/output/outcome_json.h"
#include "elements/material_record.h"
#include "elements/setup.h"
#include "elements/single_numbers.h"

namespace velmar::cli {

/// A project file that was opened and run.
struct ProjectRun {
  CalculationTexts texts{};
  elements::Setup setup{};
  calculation::RunOutcome outcome{};  ///< "failed", with the message, when the file cannot be read
  std::vector<elements::SingleNumber> numbers{};  ///< every rating of the result's spectrum
  calculation::Totals totals{};
};

/// Opens the project `path` and runs it. @param go_on_outside_ranges the answer to every question
ProjectRun RunProject(const std::filesystem::path& path, const elements::MaterialLookup& materials,
                      bool go_on_outside_ranges);

/// What the shell is told of a run.
ExitCode CodeOf(calculation::RunStatus status);

}  // namespace velmar::cli
