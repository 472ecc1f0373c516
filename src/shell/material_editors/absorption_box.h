#pragma once

#include "shell/material_editors/number_box.h"

namespace velmar::material_editors {

/// The box of one absorption coefficient. A paste or drop of several cells of a spreadsheet is handed on
/// instead of being entered; Enter goes to the next band, from the last one it saves.
class AbsorptionBox : public NumberBox {
  Q_OBJECT

 public:
  AbsorptionBox(std::size_t band, QWidget* parent);

  void SetNext(QWidget* next) { next_ = next; }

 signals:
  /// Several cells of a spreadsheet arrived.
  void ColumnPasted(const QString& cells);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString before_;
  QWidget* next_ = nullptr;
};

}  // namespace velmar::material_editors
