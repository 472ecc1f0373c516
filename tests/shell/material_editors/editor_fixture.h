#pragma once

#include <QSettings>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "materials/keywords.h"
#include "shell/windows/window_tools.h"
#include "storage/materials/material_store.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::material_editors {

/// The one child of `window` called `name`.
template <typename Widget>
Widget& Child(QWidget& window, const char* name) {
  auto* child = window.findChild<Widget*>(QLatin1String(name));
  if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *child;
}

/// A material database of its own in a temporary folder, and boxes that answer themselves.
class EditorFixture : public testing::Test {
 protected:
  EditorFixture();

  shell::WindowTools Tools();

  /// Shows `window` as the active one.
  static void Show(QWidget& window);
  /// Clicks into `box`, types `text` over what it holds, and leaves it with Tab.
  static void Type(QWidget& window, const char* box, const char* text);
  /// Puts a text with accents or line breaks into the line `box`, as an input method does.
  static void Insert(QWidget& window, const char* box, const QString& text);
  /// What the line `box` shows.
  static QString Shown(QWidget& window, const char* box);
  static void Press(QWidget& window, const char* button);

  /// Runs `work` while another program holds the database.
  void WhileLocked(const std::function<void()>& work) const;

  storage::TemporaryFolder folder_;
  storage::MaterialStore store_;
  materials::KeywordTexts texts_{"tutti", "non specificata"};
  std::unique_ptr<QSettings> memory_{};
  bool answer_ = true;
  QStringList questions_{};
  QStringList told_{};
};

/// Saves what `window` looks like into the folder VELMAR_PICTURES, when that is set.
void Picture(QWidget& window, const QString& name);

}  // namespace velmar::material_editors
