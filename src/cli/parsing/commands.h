#pragma once

#include <optional>
#include <string>

#include <CLI/App.hpp>

#include "cli/commands/catalogue_command.h"
#include "cli/commands/doctor_command.h"
#include "cli/commands/facade_command.h"
#include "cli/commands/import_command.h"
#include "cli/commands/library_command.h"
#include "cli/commands/materials_command.h"
#include "cli/commands/models_command.h"
#include "cli/commands/own_measurements_command.h"
#include "cli/commands/profile_command.h"
#include "cli/commands/rate_command.h"
#include "cli/commands/references_command.h"
#include "cli/commands/report_command.h"
#include "cli/commands/results_command.h"
#include "cli/commands/run_command.h"
#include "cli/commands/save_command.h"
#include "cli/commands/save_result_command.h"
#include "cli/commands/services.h"
#include "cli/commands/validate_command.h"

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
  OwnMeasurementsCommand own_measurements{};
  bool changes_own_measurements = false;  ///< of `library`: one of those commands was given
  ImportCommand import{};
  ReferencesCommand references{};
  ReportCommand report{};
  SaveResultCommand save_result{};
  FacadeCommand facade{};
  DoctorCommand doctor{};
  ModelsCommand models{};
  ProfileCommand profile{};
  ValidateCommand validate{};
};

/// The command that looks after the stores: it works where they are damaged or missing.
inline constexpr const char* kDoctorCommand = "doctor";

/// Tells `app` every command with its arguments and options; what is typed goes into `parsed`, which
/// outlives the parsing.
void AddCommands(CLI::App& app, Parsed& parsed, const Services& services);

}  // namespace velmar::cli
