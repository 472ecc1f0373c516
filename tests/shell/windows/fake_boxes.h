#pragma once

#include <QLineEdit>
#include <QSettings>
#include <QStringList>
#include <QWidget>
#include <memory>
#include <string>

#include "shell/windows/window_tools.h"

namespace velmar::shell {

/// Answers every box, and keeps what was said.
class FakeBoxes {
 public:
  WindowTools Tools();

  bool answer = true;
  QStringList questions{};
  QStringList told{};
  std::unique_ptr<QSettings> memory{};
};

}  // namespace velmar::shell
