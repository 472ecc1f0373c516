#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "cli/commands/project_run.h"
#include "cli/commands/services.h"
#include "manual_builder/directives.h"

namespace velmar::manual {

/// What the program computes today for the example projects.
///
/// Directives: "valore" (project, quantity as JSON names it, decimals), "banda" (project, centre in Hz),
/// "risultato", "dati" (what was entered), "bande" (the spectrum), "pareri" (what all models say),
/// "intervallo", "costruzioni" (all usual constructions with their ratings).
class ExampleFigures {
 public:
  /// @param folder of the example projects
  /// @param services words, materials and accuracy
  ExampleFigures(std::filesystem::path folder, const cli::Services& services)
      : folder_(std::move(folder)), services_(services) {}

  /// Adds the directives, which hold a reference to this object.
  void AddTo(Directives& directives);

 private:
  /// @throws std::runtime_error when the project has no result
  const cli::ProjectRun& Run(const std::string& project);

  std::string Value(const std::string& project, const std::string& quantity, int decimals);
  std::string Band(const std::string& project, double centre_hz);
  std::string Result(const std::string& project);
  std::string Inputs(const std::string& project);
  std::string Bands(const std::string& project);
  std::string Opinions(const std::string& project);
  std::string IntervalOf(const std::string& project);
  std::string UsualConstructions();

  std::filesystem::path folder_;
  const cli::Services& services_;
  std::map<std::string, cli::ProjectRun> runs_{};
};

}  // namespace velmar::manual
