#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "cli/output/exit_code.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// `rate --airborne|--impact [--json] -- V1 ... V16|V21`
struct RateCommand {
  bool impact = false;
  bool json = false;
  std::vector<std::string> values{};  ///< decimal comma or point; 16 are 100 Hz to 3150 Hz, 21 are all bands
};

/// Rates a given spectrum after ISO 717-1 or 717-2: the result to `out`, every message to `errors`.
ExitCode Execute(const RateCommand& command, const presentation::Words& words, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
