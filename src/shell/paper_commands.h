#pragma once

#include "shell/window_services.h"

namespace velmar::shell {

/// Print preview and print, as windows of `services`. They show the open calculation, with its result where
/// there is one, and keep the chosen printer while the program runs.
void AddPaperCommands(WindowServices& services);

}  // namespace velmar::shell
