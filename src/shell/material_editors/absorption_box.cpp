#include "shell/material_editors/absorption_box.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include "shell/windows/window_tools.h"
#include "storage/materials/pasted_absorption.h"

namespace velmar::material_editors {
namespace {

constexpr int kWidthInDigits = 5;

bool IsColumn(const QString& text) { return storage::IsColumn(windows::FromQt(text)); }

}  // namespace

AbsorptionBox::AbsorptionBox(std::size_t band, QWidget* parent)
    : NumberBox(QStringLiteral("TextAlfa_%1").arg(band), parent) {
  setFixedWidth(fontMetrics().horizontalAdvance('0') * kWidthInDigits + fontMetrics().height());
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!IsColumn(text)) before_ = text;
  });
  // What was dropped, or pasted with the mouse.
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (!IsColumn(text)) return;
    setText(before_);
    if (on_column_) on_column_(text);
  });
}

void AbsorptionBox::Paste() {
  const QString cells = QGuiApplication::clipboard()->text();
  if (IsColumn(cells) && on_column_) {
    on_column_(cells);
  } else {
    paste();
  }
}

void AbsorptionBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->matches(QKeySequence::Paste)) {
    Paste();
  } else if (enter && next_ != nullptr) {
    next_->setFocus(Qt::TabFocusReason);
  } else {
    NumberBox::keyPressEvent(event);
  }
}

void AbsorptionBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* action = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
    action->disconnect(SIGNAL(triggered(bool)));
    connect(action, &QAction::triggered, this, [this] { Paste(); });
  }
  menu->popup(event->globalPos());
}

}  // namespace velmar::material_editors
