#pragma once

#include <QTabWidget>
#include <array>
#include <optional>

#include "shell/page_parts/page_context.h"
#include "shell/pages/tab_layout.h"

namespace velmar::shell {

class BaseElementPage;
class Page;

/// The tab strip with the input pages (`SSTab1`). Each calculation shows its own tabs; Ctrl+1 to Ctrl+9 reach
/// their first fields, in their order.
class InputTabs : public QTabWidget {
  Q_OBJECT

 public:
  explicit InputTabs(PageContext& context, QWidget* parent = nullptr);

  /// Shows the pages of the calculation that is chosen, and `setup` in them.
  void Show(const elements::Setup& setup);
  /// The next Show() begins at the first tab, as after a choice of calculation.
  void LayOutAnew() { laid_out_.reset(); }
  void ShowFirst();
  /// Puts the keys into the first field of the page that is shown.
  void FocusFirst();
  /// Shows the row at `place` and puts the keys into its material; into the first field of its page where it
  /// has no row of its own.
  void GoTo(const velmar::presentation::LayerPlace& place);

 private:
  void AddKeys();
  void LayOut(elements::Calculation calculation);

  PageContext& context_;
  BaseElementPage* base_;
  std::array<Page*, kTabCount> pages_{};
  std::optional<elements::Calculation> laid_out_;
};

}  // namespace velmar::shell
