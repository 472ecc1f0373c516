#include "shell/fields/material_box.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QCompleter>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>

#include "shell/fields/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kNarrowestInLetters = 14;

}  // namespace

MaterialBox::MaterialBox(const QString& object_name, elements::MaterialFamily family,
                         QAbstractItemModel* names, QWidget* parent)
    : QuietBox(object_name, parent), family_(family) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kNarrowestInLetters);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setCompleter(nullptr);
  setModel(names);
  setEditText({});
  setAcceptDrops(true);
  lineEdit()->setAcceptDrops(false);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { typed_ = true; });
  connect(this, &QComboBox::textActivated, this, [this](const QString& name) { Choose(name); });
  // A change of the keyword filter resets the model, which would show its first name.
  connect(
      names, &QAbstractItemModel::modelReset, this, [this] { setEditText(shown_); }, Qt::QueuedConnection);
}

void MaterialBox::Show(const std::string& name) {
  const QString wanted = FromUtf8(name);
  if (typed_ && wanted == shown_) return;
  typed_ = false;
  shown_ = wanted;
  ShowAgain();
  setToolTip(wanted);
}

void MaterialBox::ShowAgain() {
  // The list's own position follows only where it matters: looking it up costs, and there are many lists.
  if (hasFocus()) setCurrentIndex(findText(shown_));
  if (currentText() != shown_) setEditText(shown_);
  lineEdit()->setCursorPosition(0);
}

void MaterialBox::Choose(const QString& name) {
  typed_ = false;
  if (on_choice_) on_choice_(ToUtf8(name));
  ShowAgain();
  if (shown_ != name && on_correction_) on_correction_(Correction::kUnknownMaterial, 0);
}

void MaterialBox::TakeTyped() {
  if (!typed_) return;
  const int index = findText(currentText().trimmed(), Qt::MatchFixedString);
  Choose(index >= 0 ? itemText(index) : currentText().trimmed());
}

void MaterialBox::focusInEvent(QFocusEvent* event) {
  QuietBox::focusInEvent(event);
  if (completer() == nullptr) {
    auto* finder = new QCompleter(model(), this);
    finder->setFilterMode(Qt::MatchContains);
    finder->setCaseSensitivity(Qt::CaseInsensitive);
    finder->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(finder);
    connect(finder, qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& name) { Choose(name); });
  }
  if (!typed_) {
    // The arrow keys go on from the name that is shown.
    ShowAgain();
    if (event->reason() == Qt::TabFocusReason) lineEdit()->selectAll();
  }
}

void MaterialBox::focusOutEvent(QFocusEvent* event) {
  QuietBox::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  TakeTyped();
  lineEdit()->setCursorPosition(0);
}

void MaterialBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) TakeTyped();
  // A copied name takes the place of the one that is shown, wherever the cursor stands in it.
  if (event->matches(QKeySequence::Paste) &&
      findText(QGuiApplication::clipboard()->text().trimmed(), Qt::MatchFixedString) >= 0)
    lineEdit()->selectAll();
  QuietBox::keyPressEvent(event);
}

void MaterialBox::keyReleaseEvent(QKeyEvent* event) {
  QuietBox::keyReleaseEvent(event);
  // The paste key: what was pasted counts at once.
  const bool paste = event->key() == Qt::Key_V && (event->modifiers() & Qt::ControlModifier);
  if (paste && findText(currentText(), Qt::MatchFixedString) >= 0) {
    typed_ = true;
    TakeTyped();
  }
}

bool MaterialBox::Takes(const QMimeData& mime) const {
  const auto material = FromMime(mime);
  return material && material->family == family_;
}

void MaterialBox::dragEnterEvent(QDragEnterEvent* event) {
  if (Takes(*event->mimeData())) event->acceptProposedAction();
}

void MaterialBox::dragMoveEvent(QDragMoveEvent* event) {
  if (Takes(*event->mimeData())) event->acceptProposedAction();
}

void MaterialBox::dropEvent(QDropEvent* event) {
  const auto material = FromMime(*event->mimeData());
  if (material && Put(*material)) event->acceptProposedAction();
}

bool MaterialBox::Put(const DraggedMaterial& material) {
  if (material.family != family_ || !isEnabled()) return false;
  Choose(material.name);
  return true;
}

}  // namespace velmar::shell
