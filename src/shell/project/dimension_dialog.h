#pragma once

#include <QDialog>

#include "calculation/open/open_calculation.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

class NumberField;

/// The dimension dialog (`Form3`). OK takes over two numbers other than 0, else it stays open.
class DimensionDialog : public QDialog {
  Q_OBJECT
 public:
  DimensionDialog(calculation::OpenCalculation& open, const presentation::Words& words,
                  QWidget* parent = nullptr);

 private:
  void Confirm();

  calculation::OpenCalculation& open_;
  presentation::Words words_;
  NumberField* width_ = nullptr;
  NumberField* height_ = nullptr;
};

}  // namespace velmar::shell
