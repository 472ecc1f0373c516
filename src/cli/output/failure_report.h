#pragma once

#include <exception>
#include <filesystem>
#include <iosfwd>

#include "cli/output/exit_code.h"
#include "foundation/failure.h"
#include "foundation/message.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// The command that converts `file`, when it is a genuine Access file; else nothing. No command converts one
/// without being asked.
Message ConversionAdvice(const std::filesystem::path& file);

/// Writes what failed to `errors`, and for a database in Access format the command that converts it.
/// @return the exit code of a command that failed
ExitCode TellFailure(const Failure& failure, const presentation::Words& words, std::ostream& errors);

/// The same for anything that was thrown. What comes from the system is told in the user's language.
ExitCode TellException(const std::exception& exception, const presentation::Words& words,
                       std::ostream& errors);

}  // namespace velmar::cli
