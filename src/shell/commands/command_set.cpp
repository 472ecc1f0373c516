#include "shell/commands/command_set.h"

#include <QAction>
#include <QKeySequence>

#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

CommandSet::CommandSet(const Desk& desk, QObject* parent) : QObject(parent), desk_(desk) {
  const presentation::Words& words = desk.speech.words;
  for (const Command& command : Commands()) {
    auto* action = new QAction(Text(words, command.Caption()), parent);
    action->setObjectName(*command.control != '\0' ? QString(command.control)
                                                   : "Button_" + QString::number(command.button));
    const QKeySequence shortcut(command.shortcut, QKeySequence::PortableText);
    action->setShortcut(shortcut);
    QString tip = Text(words, command.tip != MessageRow{} ? command.tip : command.caption);
    if (!shortcut.isEmpty()) tip += " (" + shortcut.toString(QKeySequence::NativeText) + ')';
    action->setToolTip(tip);
    if (*command.icon != '\0')
      action->setIcon(command.id == CommandId::kRun ? LightLineIcon(command.icon) : LineIcon(command.icon));
    action->setIconVisibleInMenu(false);
    connect(action, &QAction::triggered, this, [this, &command] {
      emit AboutToAct();
      command.action(*this);
    });
    actions_.at(static_cast<std::size_t>(command.id)) = action;
  }
}

void CommandSet::Enable(Needs state, bool table_open) {
  for (const Command& command : Commands()) {
    const bool ready = command.needs == Needs::kTableToBeShown ? state == Needs::kSpectrum && !table_open
                                                               : command.needs <= state;
    Of(command.id)->setEnabled(ready);
  }
}

}  // namespace velmar::shell
