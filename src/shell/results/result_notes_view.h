#pragma once

#include <QWidget>

#include "elements/result_set.h"
#include "elements/setup.h"
#include "shell/windows/boxes.h"
#include "validation/accuracy.h"

class QLabel;

namespace velmar::shell {

/// What belongs beside the rating (`FrameNote`): the element that a lining makes, the interval of 90 % or why
/// there is none, and in words where the result lies outside of it or outside the range of a relation. Takes
/// no room without a result.
class ResultNotesView : public QWidget {
 public:
  explicit ResultNotesView(const Speech& speech, QWidget* parent = nullptr);

  /// Shows what is to be told of `result`; nothing without one.
  void Show(const elements::Setup& setup, const elements::ResultSet* result,
            const validation::Accuracy& accuracy);

 private:
  QLabel* Add(const char* name);

  const Speech& speech_;
  QLabel* resulting_ = nullptr;
  QLabel* interval_ = nullptr;
  QLabel* outside_interval_ = nullptr;
  QLabel* ranges_ = nullptr;
};

}  // namespace velmar::shell
