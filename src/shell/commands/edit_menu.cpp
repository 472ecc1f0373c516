#include "shell/commands/edit_menu.h"

#include <QAction>

#include "calculation/edits/layer_moves.h"
#include "foundation/message_rows.h"
#include "shell/commands/step_words.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

EditMenu::EditMenu(calculation::OpenCalculation& open, const presentation::Words& words, QWidget* window)
    : QMenu(Text(words, kEditMenuRow), window), open_(open), words_(words) {
  const auto add = [&](const char* name, const QList<QKeySequence>& keys, auto act) {
    QAction* action = addAction(QString());
    action->setObjectName(name);
    action->setShortcuts(keys);
    // Shortcuts work whether or not the menu was ever open.
    window->addAction(action);
    connect(action, &QAction::triggered, this, act);
    return action;
  };
  undo_ = add("annulla", {QKeySequence::Undo}, [this] { open_.Undo(); });
  redo_ = add("ripeti", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)},
              [this] { open_.Redo(); });
  constexpr auto kShift = Qt::CTRL | Qt::SHIFT;
  addSeparator();
  mirror_ = add("specchia", {kShift | Qt::Key_M}, [this] {
    emit SettleAsked();
    if (calculation::CanMirror(open_.Setup()))
      open_.Edit(calculation::MirrorFirstLeaf, calculation::Step{calculation::StepKind::kLeafMirrored});
  });
  turn_ = add("gira", {kShift | Qt::Key_G}, [this] {
    emit SettleAsked();
    if (calculation::CanTurn(open_.Setup()))
      open_.Edit(calculation::TurnElement, calculation::Step{calculation::StepKind::kElementTurned});
  });
  addSeparator();
  fix_ = add("fissa_variante", {kShift | Qt::Key_F}, [this] { emit FixVariantWanted(); });
  mirror_->setText(Text(words, kMirrorRow));
  turn_->setText(Text(words, kTurnRow));
  fix_->setText(Text(words, kFixVariantRow));
  Follow();
}

void EditMenu::Follow() {
  const auto name = [this](QAction* action, MessageRow verb, const std::optional<calculation::Step>& step) {
    QString text = Text(words_, verb);
    if (step) text += ' ' + StepWords(*step, open_.Setup(), words_);
    action->setText(text);
    action->setEnabled(step.has_value());
  };
  name(undo_, kUndoRow, open_.Steps().ToUndo());
  name(redo_, kRedoRow, open_.Steps().ToRedo());
  mirror_->setEnabled(calculation::CanMirror(open_.Setup()));
  turn_->setEnabled(calculation::CanTurn(open_.Setup()));
  fix_->setEnabled(open_.Setup().calculation.has_value());
}

}  // namespace velmar::shell
