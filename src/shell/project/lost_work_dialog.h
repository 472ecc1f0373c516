#pragma once

#include <QDialog>
#include <vector>

#include "presentation/texts/words.h"
#include "shell/project/lost_work.h"

class QTreeWidget;

namespace velmar::shell {

/// Asks what is to become of unsaved work that earlier runs left behind: name, folder and time of each, and
/// three answers. Esc, like closing the window, is "later".
class LostWorkDialog : public QDialog {
  Q_OBJECT
 public:
  /// @param works at least one; the first is proposed
  LostWorkDialog(const std::vector<LostWork>& works, const presentation::Words& words,
                 QWidget* parent = nullptr);

  /// What was answered; "later" as long as nothing was.
  const LostWorkAnswer& Answer() const { return answer_; }

 private:
  void Finish(LostWorkChoice choice);
  QTreeWidget* MakeList(const std::vector<LostWork>& works, const presentation::Words& words);

  QTreeWidget* list_ = nullptr;
  LostWorkAnswer answer_;
};

}  // namespace velmar::shell
