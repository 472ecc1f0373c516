#pragma once

#include "shell/pages/window_services.h"

class QWidget;

namespace velmar::shell {

/// "Esegui il calcolo": runs the open calculation under the busy pointer. Questions about a relation's range
/// are asked, refusals and failures told; nothing that happens in a run ends the program.
/// After a refusal the field of `window` that is to be corrected has the focus, with the reason beside it.
void RunOpenCalculation(const WindowServices& services, const QWidget& window);

}  // namespace velmar::shell
