#pragma once

class QDialog;
class QWidget;

namespace velmar::shell {

/// Shows `dialog` beside what `window` shows. At a main window it is docked on the right: its room is taken
/// from the middle, so that it covers nothing, and it may be drawn off as a window of its own. It blocks
/// nothing; the dock goes with the dialog, however that is closed.
/// @param width that the dialog would like to have, pixels
void StandBeside(QDialog* dialog, QWidget* window, int width);

}  // namespace velmar::shell
