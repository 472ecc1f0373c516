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

#include "shell/fields/name_search.h"
#include "shell/fields/phrases.h"
#include "shell/fields/put_material.h"
#include "shell/fields/selection.h"

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
  SelectAllOnFocus(lineEdit(), this);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    typed_ = true;
    OfferHits(text);
  });
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
  emit Chosen(ToUtf8(name));
  ShowAgain();
  if (shown_ != name) emit Corrected(Correction::kUnknownMaterial, 0);
}

void MaterialBox::showPopup() {
  if (!typed_) {
    emit AboutToOffer();
    ShowAgain();
  }
  if (facts_) {
    auto* delegate = qobject_cast<FactsDelegate*>(view()->itemDelegate());
    if (delegate == nullptr) {
      delegate = new FactsDelegate(facts_, view());
      view()->setItemDelegate(delegate);
    }
    delegate->Forget();
    view()->setMinimumWidth(width() + FactsDelegate::RoomFor(fontMetrics()));
  }
  QuietBox::showPopup();
}

QStringList MaterialBox::Names() const {
  QStringList names;
  names.reserve(count());
  for (int i = 0; i < count(); ++i) names += itemText(i);
  return names;
}

// @return false when no material has what is typed in its name
bool MaterialBox::TakeTyped() {
  if (!typed_) return true;
  const QStringList hits = RankedHits(Names(), currentText());
  if (hits.isEmpty() || currentText().trimmed().isEmpty()) return false;
  Choose(hits.constFirst());
  return true;
}

void MaterialBox::Settle() {
  if (TakeTyped()) return;
  typed_ = false;
  ShowAgain();
  emit Corrected(Correction::kUnknownMaterial, 0);
}

void MaterialBox::OfferHits(const QString& typed) {
  if (completer() == nullptr || hits_ == nullptr) return;
  hits_->setStringList(typed.trimmed().isEmpty() ? QStringList() : RankedHits(Names(), typed));
  completer()->complete();
}

void MaterialBox::focusInEvent(QFocusEvent* event) {
  QuietBox::focusInEvent(event);
  if (completer() == nullptr) {
    hits_ = new QStringListModel(this);
    auto* finder = new QCompleter(hits_, this);
    finder->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    setCompleter(finder);
    if (facts_) {
      finder->popup()->setItemDelegate(new FactsDelegate(facts_, finder->popup()));
      finder->popup()->setMinimumWidth(width() + FactsDelegate::RoomFor(fontMetrics()));
    }
    connect(finder, qOverload<const QString&>(&QCompleter::activated), this, &MaterialBox::Choose);
  }
  // The arrow keys go on from the name that is shown.
  if (!typed_) ShowAgain();
}

void MaterialBox::focusOutEvent(QFocusEvent* event) {
  QuietBox::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  Settle();
  lineEdit()->setCursorPosition(0);
}

bool MaterialBox::event(QEvent* event) {
  if (event->type() == PutMaterialEvent::Kind()) {
    event->setAccepted(Put(static_cast<PutMaterialEvent*>(event)->Material()));
    return true;
  }
  // Tab would leave a text that means nothing behind.
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if ((key == Qt::Key_Tab || key == Qt::Key_Backtab) && !TakeTyped()) {
      emit Corrected(Correction::kNoHit, 0);
      return true;
    }
  }
  return QuietBox::event(event);
}

void MaterialBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !TakeTyped()) {
    event->accept();
    emit Corrected(Correction::kNoHit, 0);
    return;
  }
  if (event->key() == Qt::Key_Escape && typed_) {
    typed_ = false;
    ShowAgain();
    lineEdit()->selectAll();
    event->accept();
    return;
  }
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
