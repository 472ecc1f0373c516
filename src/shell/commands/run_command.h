#pragma once

#include "shell/commands/desk.h"

namespace velmar::shell {

/// "Esegui il calcolo": runs the open calculation under the busy pointer. Questions about a relation's range
/// are asked, refusals and failures told; nothing that happens in a run ends the program.
/// After a refusal the field of the window that is to be corrected has the focus, with the reason beside it.
void RunOpenCalculation(const Desk& desk);

}  // namespace velmar::shell
