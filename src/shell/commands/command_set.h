#pragma once

#include <functional>
#include <map>

#include "presentation/texts/words.h"
#include "shell/commands/command_table.h"

class QAction;
class QObject;

namespace velmar::shell {

/// The actions of the command table. Menu, tool bar and shortcuts share them, so that a command is enabled in
/// one place.
class CommandSet {
 public:
  CommandSet(const presentation::Words& words, QObject* parent,
             const std::function<void(CommandId)>& execute);

  QAction* Of(CommandId id) const { return actions_.at(id); }

  /// Enables what `state` allows: a command that needs a result is off without one, and so on.
  /// @param table_open the results table is open and so cannot be asked for again
  void Enable(Needs state, bool table_open);

 private:
  std::map<CommandId, QAction*> actions_;
};

}  // namespace velmar::shell
