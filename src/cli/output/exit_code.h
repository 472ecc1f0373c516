#pragma once

namespace velmar::cli {

/// What a command tells the shell.
enum class ExitCode {
  kDone = 0,
  kFailed = 1,      ///< a file cannot be read or written, or a calculation failed
  kWrongUsage = 2,  ///< the command line is not understood
  kNoResult = 3,    ///< a calculation was refused or declined
  kSomeFailed = 4,  ///< a document of several projects was written that names some without a result
};

}  // namespace velmar::cli
