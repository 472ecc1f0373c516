#pragma once

#include <iosfwd>
#include <string>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

enum class LibraryAction { kList, kShow };

/// `library list [KIND [SERIES]]`, `library show KIND SERIES TEST`
struct LibraryCommand {
  LibraryAction action = LibraryAction::kList;
  std::string kind{};    ///< "Rw", "Infissi", "Piccoli elementi", ...; empty: all
  std::string series{};  ///< a file without its ending; empty: the files are listed
  std::string test{};    ///< of show; case ignored
  bool json = false;
};

/// Reads the library of measured structures. Results to `out`, every message to `errors`.
ExitCode Execute(const LibraryCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
