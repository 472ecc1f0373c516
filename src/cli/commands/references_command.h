#pragma once

#include <iosfwd>

#include "cli/output/exit_code.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// `references [--json]`
struct ReferencesCommand {
  bool json = false;
};

/// Lists what documents cite: the relations by their marks, the models and the standards of rating, each with
/// the calculations that rest on it.
ExitCode Execute(const ReferencesCommand& command, const presentation::Words& words, std::ostream& out);

}  // namespace velmar::cli
