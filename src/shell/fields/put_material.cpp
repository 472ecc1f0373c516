#include "shell/fields/put_material.h"

#include <QApplication>
#include <QWidget>

namespace velmar::shell {

QEvent::Type PutMaterialEvent::Kind() {
  static const auto kind = static_cast<Type>(registerEventType());
  return kind;
}

bool PutIntoFocusedField(const QWidget* window, const DraggedMaterial& material) {
  QWidget* field = window != nullptr ? window->focusWidget() : nullptr;
  if (field == nullptr || !field->isVisible()) return false;
  PutMaterialEvent put(material);
  QApplication::sendEvent(field, &put);
  return put.isAccepted();
}

}  // namespace velmar::shell
