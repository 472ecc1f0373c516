#pragma once

#include "presentation/texts/words.h"

class QMenu;
class QMenuBar;

namespace velmar::shell {

class CalculationActions;
class CommandSet;

/// Fills the menu bar from the command table and the calculation tree. What leads nowhere in this
/// installation is not shown: a contact without an address, a maintenance program that is not there.
/// @return the menu of the recent projects, empty yet
QMenu* FillMenuBar(QMenuBar& bar, const CommandSet& commands, const CalculationActions& calculations,
                   const presentation::Words& words);

}  // namespace velmar::shell
