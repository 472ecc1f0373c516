#pragma once

#include <functional>

#include "access_reader/exit_code.h"

namespace velmar::access_reader {

/// Runs `work` in a child process and waits for it.
/// @return what `work` returned; kReaderDied when a signal ended it. The child does not outlive the caller.
ExitCode RunInChild(const std::function<ExitCode()>& work);

}  // namespace velmar::access_reader
