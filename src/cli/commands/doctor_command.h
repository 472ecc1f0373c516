#pragma once

#include <iosfwd>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `doctor [--repair]`
struct DoctorCommand {
  bool repair = false;
  bool json = false;
};

/// Looks the databases of the data folder through, and repairs them when asked: what is wrong goes to `out`,
/// one line a finding, or as one object {"ok", "findings": [{"file", "problem", "detail", "repaired",
/// "copy"}]}, where "detail" and "copy" may be absent.
/// @return done when nothing is wrong, or nothing any more
ExitCode Execute(const DoctorCommand& command, const Services& services, std::ostream& out);

}  // namespace velmar::cli
