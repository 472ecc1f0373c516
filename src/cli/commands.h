#pragma once

#include <optional>
#include <string>

#include <CLI/App.hpp>

#include "cli/catalogue_command.h"
#include "cli/facade_command.h"
#include "cli/import_command.h"
#include "cli/library_command.h"
#include "cli/materials_command.h"
#include "cli/rate_command.h"
#include "cli/report_command.h"
#include "cli/results_command.h"
#include "cli/run_command.h"
#include "cli/save_command.h"
#include "cli/save_result_command.h"
#include "cli/services.h"

namespace velmar::cli {

/// Everything that the command line can say, filled by the parser.
struct Parsed {
  std::optional<std::string> data_folder{};

  std::string answer = "no";
  bool airborne = false;
  RunCommand run{};
  SaveCommand save{};
  RateCommand rate{};
  CatalogueCommand catalogue{};
  MaterialsCommand materials{};
  ResultsCommand results{};
  LibraryCommand library{};
  ImportCommand import{};
  ReportCommand report{};
  SaveResultCommand save_result{};
  FacadeCommand facade{};
};

/// Tells `app` every command with its arguments and options; what is typed goes into `parsed`, which
/// outlives the parsing.
void AddCommands(CLI::App& app, Parsed& parsed, const Services& services);

}  // namespace velmar::cli
