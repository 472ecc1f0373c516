#pragma once

#include <QEvent>
#include <utility>

#include "shell/fields/dragged_material.h"

class QWidget;

namespace velmar::shell {

/// Hands a material to a field. The list that takes it accepts the event; all others leave it ignored.
class PutMaterialEvent : public QEvent {
 public:
  explicit PutMaterialEvent(DraggedMaterial material) : QEvent(Kind()), material_(std::move(material)) {
    ignore();
  }
  static Type Kind();

  const DraggedMaterial& Material() const { return material_; }

 private:
  DraggedMaterial material_;
};

/// Hands `material` to the field that had the focus last in `window`. @return whether it took it
bool PutIntoFocusedField(const QWidget* window, const DraggedMaterial& material);

}  // namespace velmar::shell
