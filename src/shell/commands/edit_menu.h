#pragma once

#include <QMenu>

#include "calculation/open/open_calculation.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

/// The menu "Modifica": a step back and a step forth, named; what is done to the element as a whole.
class EditMenu : public QMenu {
  Q_OBJECT

 public:
  EditMenu(calculation::OpenCalculation& open, const presentation::Words& words, QWidget* window);

  /// Names what can be undone and redone now.
  void Follow();

 signals:
  /// Whatever was typed and is not yet taken is to be taken now.
  void SettleAsked();
  /// The set-up is to be kept as a variant.
  void FixVariantWanted();

 private:
  calculation::OpenCalculation& open_;
  presentation::Words words_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  QAction* mirror_ = nullptr;
  QAction* turn_ = nullptr;
  QAction* fix_ = nullptr;
};

}  // namespace velmar::shell
