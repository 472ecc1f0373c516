#pragma once

#include <iosfwd>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `validate [--json]`: every calculation and model on the measured constructions.
struct ValidateCommand {
  bool json = false;
};

/// Predicts every measured construction anew and writes the table of errors, the coverage of the intervals
/// and what is not covered to `out`.
ExitCode Execute(const ValidateCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
