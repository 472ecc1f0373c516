#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace velmar::platform {

/// How a program ended that was started and waited for.
struct ProcessEnd {
  int start_error = 0;  ///< the number of the system's error when it could not be started
  bool well = false;    ///< it ended by itself, in time, and said so (exit code 0)
};

/// Starts `program` with `arguments`, in the plain locale, without our files, input or output, and waits for
/// it; after `time_limit` it is ended, with all that it has started. Throws nothing but what strings throw.
ProcessEnd RunProgram(const std::filesystem::path& program, std::vector<std::string> arguments,
                      std::chrono::milliseconds time_limit);

}  // namespace velmar::platform
