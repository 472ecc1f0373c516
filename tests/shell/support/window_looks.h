#pragma once

#include <QApplication>
#include <QPalette>

#include "shell/windows/dark_outlines.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// The look of pictures: the same style everywhere, light or dark.
inline void SetLooks(bool dark) {
  QApplication::setStyle("Fusion");
  AddDarkOutlines(*qApp);
  if (!dark) return;
  QPalette palette(QColor(0x2b, 0x2d, 0x31), QColor(0x24, 0x26, 0x2a));
  palette.setColor(QPalette::Base, QColor(0x1c, 0x1e, 0x21));
  palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xd6));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  QApplication::setPalette(palette);
}

}  // namespace velmar::shell
