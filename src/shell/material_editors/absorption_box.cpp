#include "shell/material_editors/absorption_box.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include "materials/pasted_absorption.h"
#include "shell/windows/phrases.h"
#include "shell/windows/window_tools.h"

namespace velmar::material_editors {
namespace {

constexpr int kWidthInDigits = 5;

bool IsColumn(const QString& text) { return materials::IsColumn(shell::ToUtf8(text)); }

/// The cells that were pasted into a box that held `before` and now holds `text`. What was dropped counts
/// whole, whatever the clipboard holds.
QString Arrived(const QString& text, const QString& before) {
  for (const QClipboard::Mode mode : {QClipboard::Clipboard, QClipboard::Selection}) {
    const QString cells = QGuiApplication::clipboard()->text(mode);
    const bool rest_was_there = text.size() - cells.size() <= before.size();
    if (IsColumn(cells) && rest_was_there && text.contains(cells)) return cells;
  }
  return text;
}

}  // namespace

AbsorptionBox::AbsorptionBox(std::size_t band, QWidget* parent)
    : NumberBox(QStringLiteral("TextAlfa_%1").arg(band), parent) {
  setFixedWidth(fontMetrics().horizontalAdvance('0') * kWidthInDigits + fontMetrics().height());
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!IsColumn(text)) before_ = text;
  });
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (!IsColumn(text)) return;
    setText(before_);
    emit ColumnPasted(Arrived(text, before_));
  });
}

void AbsorptionBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && next_ != nullptr) {
    next_->setFocus(Qt::TabFocusReason);
  } else {
    NumberBox::keyPressEvent(event);
  }
}

}  // namespace velmar::material_editors
