#pragma once

#include <iosfwd>
#include <string>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

enum class ProfileAction { kShow, kSet, kClear };

/// `profile show | set KEY VALUE | clear [--json]`
struct ProfileCommand {
  ProfileAction action = ProfileAction::kShow;
  std::string key{};
  std::string value{};  ///< of a picture: the file, which is copied; empty: the entry goes
  bool json = false;
};

/// Shows or changes the studio profile of the data folder: a line "key: value" an entry, or one JSON object
/// with the entries that are set, pictures as the files that the profile keeps. After a change the profile is
/// shown as it is then. A damaged profile is not changed by `set`; `clear` keeps it under another name.
ExitCode Execute(const ProfileCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
