#pragma once

#include <QObject>
#include <array>

#include "shell/commands/command_table.h"
#include "shell/commands/desk.h"

class QAction;

namespace velmar::shell {

/// The actions of the command table. Menu, tool bar and shortcuts share them, so that a command is enabled in
/// one place.
class CommandSet : public QObject {
  Q_OBJECT
 public:
  CommandSet(const Desk& desk, QObject* parent);

  QAction* Of(CommandId id) const { return actions_.at(static_cast<std::size_t>(id)); }
  const Desk& At() const { return desk_; }

  /// Enables what `state` allows: a command that needs a result is off without one, and so on.
  /// @param table_open the results table is open and so cannot be asked for again
  void Enable(Needs state, bool table_open);

 signals:
  /// A command is about to act: what is being typed counts from now on.
  void AboutToAct();
  /// A kind of element is to be begun, or shown when one of it is open.
  void KindChosen(velmar::elements::ElementButton kind);
  /// The program is to end. @param asking whether unsaved work is asked about
  void ExitWanted(bool asking);

 private:
  Desk desk_;
  std::array<QAction*, kCommandCount> actions_{};
};

}  // namespace velmar::shell
