#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"
#include "storage/results/saved_result.h"

namespace velmar::cli {

enum class ResultsAction { kList, kShow, kDelete };

/// `results list|show|delete`
struct ResultsCommand {
  ResultsAction action = ResultsAction::kList;
  std::optional<storage::ResultTable> table{};  ///< of list and show it may be left open: all three
  std::string name{};                           ///< of show (case ignored) and delete (exactly so spelt)
  bool json = false;
};

/// Carries the command out on the results database. Results to `out`, every message to `errors`.
ExitCode Execute(const ResultsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
