#include "shell/commands/tool_bar.h"

#include <QAction>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "foundation/message_rows.h"
#include "shell/commands/calculation_menu.h"
#include "shell/commands/command_set.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kIconPixels = 24;
/// The name of the group behind a separator, for screen readers: its place and row.
struct GroupName {
  int place = 0;
  MessageRow row{};
};
constexpr std::array kGroups = {GroupName{4, kPrintGroupRow}, GroupName{7, kExportGroupRow},
                                GroupName{10, kCalculationGroupRow}, GroupName{14, kDimensionsGroupRow},
                                GroupName{16, kElementGroupRow}};

const Command* CommandAt(int place) {
  for (const Command& command : Commands()) {
    if (command.button == place) return &command;
  }
  return nullptr;
}

}  // namespace

CommandToolBar::CommandToolBar(const CommandSet& commands, const CalculationActions& calculations,
                               const presentation::Words& words, QWidget* parent)
    : QToolBar(parent) {
  setObjectName("Toolbar1");
  setMovable(false);
  setIconSize({kIconPixels, kIconPixels});
  QString group;
  for (int place = 1; place <= kToolBarPlaces; ++place) {
    if (CommandAt(place) == nullptr) {
      for (const GroupName& name : kGroups) {
        if (name.place == place) group = Text(words, name.row);
      }
      addSeparator();
      continue;
    }
    QToolButton* button = AddCommand(commands, place);
    button->setAccessibleDescription(group);
    const auto kind = CommandAt(place)->Kind();
    if (!kind) continue;
    auto* menu = new QMenu(button);
    calculations.FillKind(*menu, *kind, words);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
  }
}

QToolButton* CommandToolBar::AddCommand(const CommandSet& commands, int place) {
  const Command& command = *CommandAt(place);
  QAction* action = commands.Of(command.id);
  auto* button = new QToolButton(this);
  button->setObjectName("Toolbar1_" + QString::number(place));
  button->setDefaultAction(action);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoRaise(true);
  button->setAccessibleName(action->toolTip());
  if (command.id == CommandId::kRun) {
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    run_ = button;
    ShowRunDue(false);
  }
  addWidget(button);
  buttons_.emplace(command.id, button);
  return button;
}

void CommandToolBar::AddBehindRun(QAction* action) {
  const QList<QAction*> places = actions();
  const auto run = std::ranges::find(places, run_, [this](QAction* place) { return widgetForAction(place); });
  auto* button = new QToolButton(this);
  button->setObjectName("Toolbar1_" + action->objectName());
  button->setDefaultAction(action);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoRaise(true);
  button->setAccessibleName(action->toolTip());
  insertWidget(run + 1 < places.end() ? *(run + 1) : nullptr, button);
}

void CommandToolBar::ShowRunDue(bool due) {
  run_->setIcon(due ? LightLineIcon("run") : LineIcon("run"));
  run_->setStyleSheet(
      due ? QStringLiteral("QToolButton { background: palette(highlight); color: palette(highlighted-text);"
                           " border: 1px solid palette(highlight); border-radius: 4px; padding: 4px 10px; }"
                           "QToolButton:pressed, QToolButton:focus { border: 1px solid palette(text); }")
          : QStringLiteral(
                "QToolButton { border: 1px solid palette(mid); border-radius: 4px; padding: 4px 10px; }"
                "QToolButton:focus { border: 1px solid palette(highlight); }"));
}

}  // namespace velmar::shell
