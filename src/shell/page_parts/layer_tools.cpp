#include "shell/page_parts/layer_tools.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <utility>

#include "calculation/edits/copied_layers.h"
#include "calculation/edits/layer_edits.h"
#include "calculation/edits/layer_moves.h"
#include "foundation/message_rows.h"
#include "shell/fields/dragged_material.h"
#include "shell/page_parts/copied_layers_mime.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using calculation::StepKind;
using elements::Setup;

constexpr const char* kDraggedRow = "application/x-velmar-layer-row";
constexpr Qt::KeyboardModifiers kModifiers = Qt::ControlModifier | Qt::ShiftModifier;

QByteArray RowCode(elements::LayerGroup group, int index) {
  return QByteArray::number(static_cast<int>(group)) + ':' + QByteArray::number(index);
}

/// The row of `group` that is dragged; -1 for none.
int DraggedRow(const QMimeData& mime, elements::LayerGroup group) {
  const QList<QByteArray> code = mime.data(kDraggedRow).split(':');
  bool known = false;
  if (code.size() != 2 || code[0].toInt(&known) != static_cast<int>(group) || !known) return -1;
  const int index = code[1].toInt(&known);
  return known ? index : -1;
}

}  // namespace

LayerTools::LayerTools(elements::LayerGroup group, int index, PageContext& context, QLabel* number,
                       QWidget* page)
    : QObject(page), group_(group), index_(index), context_(context), number_(number), page_(page) {
  number_->setAcceptDrops(true);
  number_->setToolTip(Text(context.Words(), kDragLayerTipRow));
  number_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(number_, &QWidget::customContextMenuRequested, this, &LayerTools::OpenMenu);
  number_->installEventFilter(this);
  connect(&context_, &PageContext::RowFocusAsked, this,
          [this](elements::LayerGroup wanted, int row, int place) {
            if (wanted != group_ || row != index_) return;
            QWidget* field = served_.at(static_cast<std::size_t>(place));
            if (field->isVisible()) field->setFocus(Qt::ShortcutFocusReason);
          });
}

QToolButton* LayerTools::MakeButton() {
  const QString caption = Text(context_.Words(), kLayerActionsRow) + ' ' + QString::number(index_ + 1);
  button_ = new QToolButton(page_);
  button_->setObjectName(ArrayName("Azioni" + std::string(RowOf(group_).list), index_));
  button_->setText(QStringLiteral("⋮"));
  button_->setAutoRaise(true);
  // The fields follow each other as without it; Ctrl+Shift+A opens it by keys.
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setToolTip(caption);
  button_->setAccessibleName(caption);
  connect(button_, &QToolButton::clicked, this, &LayerTools::OpenMenu);
  return button_;
}

void LayerTools::Serve(QWidget* field) {
  field->installEventFilter(this);
  served_.push_back(field);
}

void LayerTools::LeaveMenuTo(QToolButton* button) {
  button_ = button;
  is_left_ = true;
  QMenu* menu = button->menu();
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    qDeleteAll(std::exchange(of_material_, {}));
    if (!number_->isVisible()) return;
    const qsizetype own = menu->actions().size();
    AddMaterialActions(*menu);
    of_material_ = menu->actions().mid(own);
  });
}

int LayerTools::RowsInUse() const { return elements::RowsInUse(context_.open.Setup(), group_); }

void LayerTools::OpenMenu() {
  const QPoint place = button_->mapToGlobal(QPoint(0, button_->height()));
  if (is_left_) return button_->menu()->popup(place);
  const Setup& setup = context_.open.Setup();
  const bool free = calculation::HasFreeCount(group_);
  const bool room = calculation::CanInsertLayer(setup, group_);
  const bool moves = calculation::CanMoveLayers(setup, group_);
  const bool copied = LayersFromMime(QApplication::clipboard()->mimeData()).has_value();
  auto* menu = new QMenu(button_);
  menu->setObjectName("AzioniStrato");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](MessageRow row, const char* name, int key, bool enabled, auto act) {
    QAction* action = menu->addAction(Text(context_.Words(), row), this, act);
    action->setObjectName(name);
    action->setEnabled(enabled);
    if (key != 0) action->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | static_cast<Qt::Key>(key)));
  };
  if (free) {
    add(kInsertAboveRow, "inserisci_sopra", 0, room, [this] { Insert(index_); });
    add(kInsertBelowRow, "inserisci_sotto", Qt::Key_I, room, [this] { Insert(index_ + 1); });
    add(kDuplicateLayerRow, "duplica_strato", Qt::Key_D, room, [this] { Duplicate(); });
    add(kRemoveLayerRow, "elimina_strato", Qt::Key_Delete, calculation::CanRemoveLayer(setup, group_),
        [this] { Remove(); });
    menu->addSeparator();
  }
  add(kMoveLayerUpRow, "sposta_su", Qt::Key_Up, moves && index_ > 0, [this] { Move(index_ - 1); });
  add(kMoveLayerDownRow, "sposta_giu", Qt::Key_Down, moves && index_ + 1 < RowsInUse(),
      [this] { Move(index_ + 1); });
  if (free) {
    menu->addSeparator();
    add(kCopyLayerRow, "copia_strato", Qt::Key_C, true, [this] { Copy(index_, 1); });
    add(kCopyAllLayersRow, "copia_strati", 0, true, [this] { Copy(0, RowsInUse()); });
    add(kPasteLayersBelowRow, "incolla_sotto", Qt::Key_V, copied, [this] { Paste(false); });
    add(kPasteLayersInsteadRow, "incolla_tutti", 0, copied, [this] { Paste(true); });
  }
  AddMaterialActions(*menu);
  menu->popup(place);
}

void LayerTools::AddMaterialActions(QMenu& menu) {
  const QString name = FromUtf8(calculation::LayerTextOf(context_.open.Setup(), group_, index_).listed);
  if (name.isEmpty()) return;
  const elements::MaterialFamily family = RowOf(group_).family;
  menu.addSeparator();
  QAction* favourite = menu.addAction(Text(context_.Words(), kFavouriteMaterialRow));
  favourite->setObjectName("preferito");
  favourite->setCheckable(true);
  favourite->setChecked(context_.materials.Known().IsFavourite(family, name));
  connect(favourite, &QAction::toggled, this,
          [this, family, name](bool on) { context_.materials.Known().SetFavourite(family, name, on); });
  if (!context_.services.duplicate_material) return;
  menu.addAction(Text(context_.Words(), kDuplicateMaterialRow), this,
                 [this] {
                   emit context_.SettleAsked();
                   context_.services.duplicate_material(page_->window(), {group_, index_});
                 })
      ->setObjectName("duplica_materiale");
}

template <typename Change>
void LayerTools::Do(StepKind kind, int row, Change&& change) {
  // A text that is being typed belongs to the row where it was typed.
  emit context_.SettleAsked();
  context_.Edit(
      std::forward<Change>(change),
      calculation::Step{kind, {.field = elements::Field::kMaterial, .group = group_, .index = row}});
}

void LayerTools::Insert(int at) {
  if (!calculation::CanInsertLayer(context_.open.Setup(), group_)) return;
  Do(StepKind::kLayerInserted, at, [&](Setup& setup) { calculation::InsertLayer(setup, group_, at); });
}

void LayerTools::Duplicate() {
  if (!calculation::CanInsertLayer(context_.open.Setup(), group_)) return;
  Do(StepKind::kLayerDuplicated, index_,
     [&](Setup& setup) { calculation::DuplicateLayer(setup, group_, index_); });
}

void LayerTools::Remove() {
  if (!calculation::CanRemoveLayer(context_.open.Setup(), group_)) return;
  Do(StepKind::kLayerRemoved, index_, [&](Setup& setup) { calculation::RemoveLayer(setup, group_, index_); });
}

void LayerTools::Move(int to) {
  const bool known = to >= 0 && to < RowsInUse();
  if (!known || to == index_ || !calculation::CanMoveLayers(context_.open.Setup(), group_)) return;
  Do(StepKind::kLayerMoved, to, [&](Setup& setup) { calculation::MoveLayer(setup, group_, index_, to); });
}

void LayerTools::Copy(int first, int count) {
  emit context_.SettleAsked();
  QApplication::clipboard()->setMimeData(
      ToMime(calculation::CopyLayers(context_.open.Setup(), group_, first, count)));
}

void LayerTools::Paste(bool in_place_of_all) {
  const auto layers = LayersFromMime(QApplication::clipboard()->mimeData());
  if (!layers || !calculation::HasFreeCount(group_)) return;
  emit context_.SettleAsked();
  Setup pasted = context_.open.Setup();
  const bool fits = in_place_of_all ? calculation::ReplaceLayers(pasted, group_, *layers)
                                    : calculation::PasteLayers(pasted, group_, index_ + 1, *layers);
  if (!fits) {
    context_.speech.boxes.tell(Tone::kInformation, Text(context_.Words(), kPasteTooManyRow));
    return;
  }
  Do(StepKind::kLayersPasted, index_, [&](Setup& setup) { setup = std::move(pasted); });
}

void LayerTools::Follow(const QWidget* field, int row) {
  const auto here = std::ranges::find(served_, field);
  if (here == served_.end()) return;
  emit context_.RowFocusAsked(group_, row, static_cast<int>(here - served_.begin()));
}

bool LayerTools::TakeKey(const QWidget* field, int key) {
  const int rows = RowsInUse();
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
      const int to = key == Qt::Key_Up ? index_ - 1 : index_ + 1;
      Move(to);
      if (to >= 0 && to < rows) Follow(field, to);
      return true;
    }
    case Qt::Key_I:
      Insert(index_ + 1);
      if (RowsInUse() > rows) Follow(field, index_ + 1);
      return true;
    case Qt::Key_D:
      Duplicate();
      if (RowsInUse() > rows) Follow(field, index_ + 1);
      return true;
    case Qt::Key_Delete:
      Remove();
      Follow(field, std::min(index_, RowsInUse() - 1));
      return true;
    case Qt::Key_C:
      if (calculation::HasFreeCount(group_)) Copy(index_, 1);
      return true;
    case Qt::Key_V:
      Paste(/*in_place_of_all=*/false);
      return true;
    case Qt::Key_A:
      OpenMenu();
      return true;
    default:
      return false;
  }
}

bool LayerTools::TakeDrop(QEvent* event) {
  auto* drop = static_cast<QDropEvent*>(event);
  const int from = DraggedRow(*drop->mimeData(), group_);
  if (from < 0 || from >= RowsInUse() || !calculation::CanMoveLayers(context_.open.Setup(), group_))
    return false;
  drop->setDropAction(Qt::MoveAction);
  drop->accept();
  if (event->type() != QEvent::Drop || from == index_) return true;
  Do(StepKind::kLayerMoved, index_,
     [&](Setup& setup) { calculation::MoveLayer(setup, group_, from, index_); });
  return true;
}

bool LayerTools::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
      auto* key = static_cast<QKeyEvent*>(event);
      // The keypad's modifier says nothing here.
      if ((key->modifiers() & ~Qt::KeypadModifier) != kModifiers) return false;
      constexpr std::array kKeys = {Qt::Key_Up,     Qt::Key_Down, Qt::Key_I, Qt::Key_D,
                                    Qt::Key_Delete, Qt::Key_C,    Qt::Key_V, Qt::Key_A};
      if (std::ranges::find(kKeys, key->key()) == kKeys.end()) return false;
      if (is_left_ && key->key() != Qt::Key_A) return false;
      event->accept();
      if (event->type() == QEvent::ShortcutOverride) return true;
      return TakeKey(static_cast<QWidget*>(watched), key->key());
    }
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return watched == number_ && TakeDrop(event);
    default:
      return QObject::eventFilter(watched, event);
  }
}

void LayerTools::Drag(const QString& material) {
  auto* drag = new QDrag(number_);
  QMimeData* mime = ToMime(DraggedMaterial{RowOf(group_).family, material});
  mime->setData(kDraggedRow, RowCode(group_, index_));
  drag->setMimeData(mime);
  drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
}

TurningButtons::TurningButtons(QHBoxLayout& line, PageContext& context, const char* table, QWidget* page)
    : QObject(page) {
  const auto add = [&](MessageRow caption, MessageRow tip, const char* name, auto act) {
    auto* button = new QToolButton(page);
    button->setObjectName(QString(name) + table);
    button->setText(Text(context.Words(), caption));
    button->setToolTip(Text(context.Words(), tip));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [&context, act] {
      emit context.SettleAsked();
      act(context.open);
    });
    line.addWidget(button);
    return button;
  };
  mirror_ = add(kMirrorButtonRow, kMirrorTipRow, "Specchia", [](calculation::OpenCalculation& open) {
    if (calculation::CanMirror(open.Setup()))
      open.Edit(calculation::MirrorFirstLeaf, calculation::Step{StepKind::kLeafMirrored});
  });
  turn_ = add(kTurnButtonRow, kTurnTipRow, "Gira", [](calculation::OpenCalculation& open) {
    if (calculation::CanTurn(open.Setup()))
      open.Edit(calculation::TurnElement, calculation::Step{StepKind::kElementTurned});
  });
}

void TurningButtons::Show(const Setup& setup) {
  mirror_->setVisible(calculation::CanMirror(setup));
  turn_->setVisible(calculation::CanTurn(setup));
}

}  // namespace velmar::shell
