#pragma once

#include "shell/pages/window_services.h"

namespace velmar::shell {

/// The commands that reach outside: manual, contact, about box, maintenance program. What is not there, and a
/// command whose window this program does not have, is told.
void ExecuteHelpCommand(CommandId id, const WindowServices& services, QWidget* parent);

}  // namespace velmar::shell
