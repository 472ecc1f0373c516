#pragma once

#include <QWidget>

#include "calculation/open/open_calculation.h"
#include "presentation/texts/words.h"

class QLabel;

namespace velmar::shell {

class NumberField;

/// The field of the required rating, and how the result stands to it: "limite 50: mancano 4".
class RequirementLine : public QWidget {
  Q_OBJECT
 public:
  /// @param open outlives the line
  RequirementLine(calculation::OpenCalculation& open, const presentation::Words& words,
                  QWidget* parent = nullptr);

  void Show();

 public slots:
  /// What was typed and is not yet taken is taken now.
  void Settle();

 private:
  void Enter(const std::string& text);

  calculation::OpenCalculation& open_;
  presentation::Words words_;
  NumberField* required_ = nullptr;
  QLabel* verdict_ = nullptr;
};

}  // namespace velmar::shell
