#pragma once

#include <functional>

namespace velmar::shell {

/// Runs `job`, which may have to wait for a file that another program holds, beside the window: the window
/// goes on painting itself and takes no input until `job` is done. `job` touches no widget. What it throws is
/// thrown here.
/// @param say called once when it takes long; without it the pointer says so
void RunBeside(const std::function<void()>& job, const std::function<void()>& say = {});

}  // namespace velmar::shell
