#pragma once

#include <iosfwd>

#include "cli/output/exit_code.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// `catalogue [--json]`
struct CatalogueCommand {
  bool json = false;
};

/// Lists the calculations with family, variant, orientation, relation and the labels of the main window.
ExitCode Execute(const CatalogueCommand& command, const presentation::Words& words, std::ostream& out);

}  // namespace velmar::cli
