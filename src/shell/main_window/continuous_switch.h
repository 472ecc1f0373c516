#pragma once

#include <QAction>

#include "presentation/texts/words.h"

namespace velmar::shell {

class ContinuousCalculation;
class WindowMemory;

/// The switch of the continuous calculation, in menu and tool bar: off at first, remembered from one start to
/// the next.
class ContinuousSwitch : public QAction {
  Q_OBJECT
 public:
  /// @param continuous and `memory` outlive the switch
  ContinuousSwitch(ContinuousCalculation& continuous, WindowMemory& memory, const presentation::Words& words,
                   QObject* parent);
};

}  // namespace velmar::shell
