#pragma once

#include "shell/pages/window_services.h"
#include "shell/printing/printing_dialogs.h"

class QWidget;

namespace velmar::shell {

/// The page of the open calculation, with its result where there is one. Its chart is the one that `window`
/// shows, with the scale and the overlays of the screen; a curve that leaves the scale is printed whole.
/// @param window the main window; none: the chart is made of the result
printing::PrintedDocument DocumentOf(const WindowServices& services, const QWidget* window);

/// Print preview, print and the choice of a printer, as windows of `services`. The chosen printer is kept
/// while the program runs. @param boxes how the user is asked and told
void AddPaperCommands(WindowServices& services, const printing::PrintingBoxes& boxes);

/// The boxes of the screen, in the words and with the message boxes of `services`.
printing::PrintingBoxes PaperBoxes(const WindowServices& services);

}  // namespace velmar::shell
