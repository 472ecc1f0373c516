#pragma once

#include "shell/window_services.h"

namespace velmar::shell {

/// "Esegui il calcolo": runs the open calculation under the busy pointer. Questions about a relation's range
/// are asked, refusals and failures told; nothing that happens in a run ends the program.
/// @return whether there is a result
bool RunOpenCalculation(const WindowServices& services);

}  // namespace velmar::shell
