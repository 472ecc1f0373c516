#include "shell/main_window/continuous_switch.h"

#include "foundation/message_rows.h"
#include "shell/project/window_memory.h"
#include "shell/results/continuous_calculation.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

ContinuousSwitch::ContinuousSwitch(ContinuousCalculation& continuous, WindowMemory& memory,
                                   const presentation::Words& words, QObject* parent)
    : QAction(LineIcon("continuous"), Text(words, kContinuousRow), parent) {
  setObjectName("calcolo_continuo");
  setCheckable(true);
  setIconVisibleInMenu(false);
  setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F5));
  setToolTip(Text(words, kContinuousRow) + " (" + shortcut().toString(QKeySequence::NativeText) +
             "): " + Text(words, kContinuousTipRow));
  connect(this, &QAction::toggled, &continuous, &ContinuousCalculation::Switch);
  setChecked(memory.IsContinuous());
  connect(this, &QAction::toggled, this, [&memory](bool on) { memory.RememberContinuous(on); });
}

}  // namespace velmar::shell
