#pragma once

#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

class QCheckBox;
class QPushButton;

namespace velmar::shell {

class CountBox;
class StratumRow;

/// The free list of layers: up to sixteen rows, each a plate, a fill or something else, and what joins the
/// leaves on both sides of a cavity. Rows come, go and move by their buttons; Ctrl+Shift with an arrow moves
/// the row that the keyboard is in.
class MultilayerPage : public Page {
 public:
  explicit MultilayerPage(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  void AddFoot();
  void AddKeys();
  void MoveFocusedRow(int places);

  PageContext& context_;
  CountBox* count_ = nullptr;
  QCheckBox* tracks_ = nullptr;
  QPushButton* add_ = nullptr;
  std::vector<StratumRow*> rows_;
};

}  // namespace velmar::shell
