#pragma once

#include <QMenu>

#include "calculation/open_calculation.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

/// The menu "Modifica": a step back and a step forth, named.
class EditMenu : public QMenu {
  Q_OBJECT

 public:
  EditMenu(calculation::OpenCalculation& open, const presentation::Words& words, QWidget* window);

  /// Names what can be undone and redone now.
  void Follow();

 private:
  calculation::OpenCalculation& open_;
  presentation::Words words_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
};

}  // namespace velmar::shell
