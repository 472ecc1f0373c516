#pragma once

namespace velmar::shell {

class DesktopApplication;

/// The way from the program's entry to a usable main window, and its life: configuration, messages, loader,
/// window. A start without data folder copies the defaults; damaged data are told and the window opens with
/// what there is; without a message catalogue there are no words and the program ends with a box of its own.
/// A project file named on the command line is opened.
/// @return the process's exit code
int RunDesktop(DesktopApplication& application);

}  // namespace velmar::shell
