#pragma once

#include "presentation/texts/words.h"

class QMenu;
class QMenuBar;

namespace velmar::shell {

class CalculationActions;
class CommandSet;

/// The menus of a menu bar to which others add.
struct OpenMenus {
  QMenu* recent = nullptr;       ///< the recent projects, empty yet
  QMenu* calculation = nullptr;  ///< the run and what belongs to it
};

/// Fills the menu bar from the command table and the calculation tree. What leads nowhere in this
/// installation is not shown: a contact without an address, a maintenance program that is not there.
OpenMenus FillMenuBar(QMenuBar& bar, const CommandSet& commands, const CalculationActions& calculations,
                      const presentation::Words& words);

}  // namespace velmar::shell
