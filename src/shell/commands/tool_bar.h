#pragma once

#include <QToolBar>
#include <map>

#include "presentation/texts/words.h"
#include "shell/commands/command_table.h"

class QToolButton;

namespace velmar::shell {

class CalculationActions;
class CommandSet;

/// The tool bar of 23 places. The buttons of the element kinds begin with a kind's first calculation and
/// unfold all of them; the run button is the one strong button.
class CommandToolBar : public QToolBar {
  Q_OBJECT
 public:
  CommandToolBar(const CommandSet& commands, const CalculationActions& calculations,
                 const presentation::Words& words, QWidget* parent = nullptr);

  /// The run button stands out while a calculation waits for its run.
  void ShowRunDue(bool due);

  /// The button of a command that has one.
  QToolButton* ButtonOf(CommandId id) const { return buttons_.at(id); }
  /// `action` stands behind the run button from now on.
  void AddBehindRun(QAction* action);

 private:
  QToolButton* AddCommand(const CommandSet& commands, int place);

  std::map<CommandId, QToolButton*> buttons_;
  QToolButton* run_ = nullptr;
};

}  // namespace velmar::shell
