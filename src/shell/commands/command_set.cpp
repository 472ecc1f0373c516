#include "shell/commands/command_set.h"

#include <QAction>
#include <QKeySequence>

#include "shell/fields/icons.h"
#include "shell/fields/phrases.h"

namespace velmar::shell {

CommandSet::CommandSet(const presentation::Words& words, QObject* parent,
                       const std::function<void(CommandId)>& execute) {
  for (const Command& command : Commands()) {
    const MessageRow caption = command.caption != MessageRow{} ? command.caption : command.tip;
    auto* action = new QAction(Text(words, caption), parent);
    action->setObjectName(*command.control != '\0' ? QString(command.control)
                                                   : "Button_" + QString::number(command.button));
    const QKeySequence shortcut(command.shortcut, QKeySequence::PortableText);
    action->setShortcut(shortcut);
    QString tip = Text(words, command.tip != MessageRow{} ? command.tip : caption);
    if (!shortcut.isEmpty()) tip += " (" + shortcut.toString(QKeySequence::NativeText) + ')';
    action->setToolTip(tip);
    if (*command.icon != '\0')
      action->setIcon(command.id == CommandId::kRun ? LightLineIcon(command.icon) : LineIcon(command.icon));
    action->setIconVisibleInMenu(false);
    const CommandId id = command.id;
    QObject::connect(action, &QAction::triggered, parent, [execute, id] { execute(id); });
    actions_.emplace(id, action);
  }
}

void CommandSet::Enable(Needs state, bool table_open) {
  for (const Command& command : Commands()) {
    const bool ready = command.needs <= state;
    Of(command.id)->setEnabled(ready && !(command.id == CommandId::kShowTable && table_open));
  }
}

}  // namespace velmar::shell
