#pragma once

#include <QAbstractItemModel>
#include <functional>

#include "elements/layer_groups.h"
#include "shell/fields/dragged_material.h"
#include "shell/fields/list_boxes.h"

class QMimeData;

namespace velmar::shell {

/// The material list of a layer row. A name is chosen from the list, found by typing any part of it, dropped,
/// or pasted; a name that no material has changes nothing.
class MaterialBox : public QuietBox {
 public:
  MaterialBox(const QString& object_name, elements::MaterialFamily family, QAbstractItemModel* names,
              QWidget* parent = nullptr);

  void OnChoice(std::function<void(const std::string& name)> on_choice) { on_choice_ = std::move(on_choice); }
  void ReportCorrections(OnCorrection on_correction) { on_correction_ = std::move(on_correction); }
  void Show(const std::string& name);
  /// Chooses `material` as if it were dropped here. @return false when it is of another family
  bool Put(const DraggedMaterial& material);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Choose(const QString& name);
  void TakeTyped();
  void ShowAgain();
  bool Takes(const QMimeData& mime) const;

  elements::MaterialFamily family_;
  QString shown_;
  bool typed_ = false;
  std::function<void(const std::string&)> on_choice_;
  OnCorrection on_correction_;
};

}  // namespace velmar::shell
