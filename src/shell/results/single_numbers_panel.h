#pragma once

#include <QWidget>
#include <vector>

#include "elements/single_numbers.h"
#include "presentation/texts/words.h"

class QGridLayout;
class QLabel;

namespace velmar::shell {

/// Every single number of a result (`FrameIndici`): name and value in columns, what each of them is and its
/// standard in its tip. Shows numbers and calculates none.
class SingleNumbersPanel : public QWidget {
 public:
  explicit SingleNumbersPanel(presentation::Words words, QWidget* parent = nullptr);

  /// Shows `numbers` in place of those before. @param lined they are those of a base element with its lining
  void Show(const std::vector<elements::SingleNumber>& numbers, bool lined);

 private:
  QLabel* Add(const QString& name, const QString& text, const QString& tip);

  presentation::Words words_;
  QLabel* heading_ = nullptr;
  QGridLayout* grid_ = nullptr;
  std::vector<QLabel*> labels_{};
};

}  // namespace velmar::shell
