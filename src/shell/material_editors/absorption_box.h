#pragma once

#include <functional>

#include "shell/material_editors/number_box.h"

namespace velmar::material_editors {

/// The box of one absorption coefficient. A paste or drop of several cells of a spreadsheet is handed on
/// instead of being entered; Enter goes to the next band, from the last one it saves.
class AbsorptionBox : public NumberBox {
 public:
  AbsorptionBox(std::size_t band, QWidget* parent);

  void OnColumn(std::function<void(const QString& cells)> on_column) { on_column_ = std::move(on_column); }
  void SetNext(QWidget* next) { next_ = next; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString before_;
  QWidget* next_ = nullptr;
  std::function<void(const QString&)> on_column_;
};

}  // namespace velmar::material_editors
