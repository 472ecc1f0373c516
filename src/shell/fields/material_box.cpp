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
#include <utility>

#include "shell/fields/pasted_bands.h"
#include "shell/fields/put_material.h"

namespace velmar::shell {
namespace {

constexpr int kNarrowestInLetters = 11;

}  // namespace

MaterialBox::MaterialBox(const QString& object_name, elements::MaterialFamily family,
                         QAbstractItemModel* names, QWidget* parent)
    : SearchedBox(object_name, names, {Correction::kNoHit, Correction::kUnknownMaterial}, parent),
      family_(family) {
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kNarrowestInLetters);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAcceptDrops(true);
  lineEdit()->setAcceptDrops(false);
}

void MaterialBox::Tell(FactsOf facts) { facts_ = std::move(facts); }

void MaterialBox::showPopup() {
  if (!IsTyped()) {
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
  SearchedBox::showPopup();
}

void MaterialBox::focusInEvent(QFocusEvent* event) {
  SearchedBox::focusInEvent(event);
  if (!facts_ || completer() == nullptr || std::exchange(hits_tell_, true)) return;
  QAbstractItemView* hits = completer()->popup();
  hits->setItemDelegate(new FactsDelegate(facts_, hits));
  hits->setMinimumWidth(width() + FactsDelegate::RoomFor(fontMetrics()));
}

bool MaterialBox::event(QEvent* event) {
  if (event->type() == PutMaterialEvent::Kind()) {
    event->setAccepted(Put(static_cast<PutMaterialEvent*>(event)->Material()));
    return true;
  }
  return SearchedBox::event(event);
}

void MaterialBox::keyPressEvent(QKeyEvent* event) {
  pasted_name_ = false;
  if (event->matches(QKeySequence::Paste)) {
    const QString text = QGuiApplication::clipboard()->text();
    pasted_name_ = !IsTableOfCells(text);
    if (!pasted_name_) {
      event->accept();
      emit TablePasted(text);
      return;
    }
    // A copied name takes the place of the one that is shown, wherever the cursor stands in it.
    if (findText(text.trimmed(), Qt::MatchFixedString) >= 0) lineEdit()->selectAll();
  }
  SearchedBox::keyPressEvent(event);
}

void MaterialBox::keyReleaseEvent(QKeyEvent* event) {
  SearchedBox::keyReleaseEvent(event);
  // The paste key: what was pasted counts at once.
  const bool paste = event->key() == Qt::Key_V && (event->modifiers() & Qt::ControlModifier);
  if (paste && pasted_name_ && findText(currentText(), Qt::MatchFixedString) >= 0) {
    MarkTyped();
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
