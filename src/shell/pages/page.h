#pragma once

#include <QWidget>

#include "elements/setup.h"

namespace velmar::shell {

/// An input page: a view of the set-up that reports edits.
class Page : public QWidget {
 public:
  using QWidget::QWidget;

  /// Shows `setup`.
  virtual void Show(const elements::Setup& setup) = 0;

  /// A click on the page's tab: no list keeps its text highlighted.
  void RemoveHighlights();
};

}  // namespace velmar::shell
