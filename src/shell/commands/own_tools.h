#pragma once

#include <QSettings>
#include <filesystem>
#include <memory>

#include "shell/windows/boxes.h"
#include "shell/windows/window_tools.h"

namespace velmar::shell {

/// The tools of the windows on one database: the program's words and boxes, and sizes in a file of their own.
struct OwnTools {
  /// @param settings file of the main window's sizes, beside which `file` is kept; empty: nothing is
  ///                 remembered
  OwnTools(const Speech& speech, const std::filesystem::path& settings, const char* file);

  std::unique_ptr<QSettings> memory{};
  WindowTools tools{};
};

}  // namespace velmar::shell
