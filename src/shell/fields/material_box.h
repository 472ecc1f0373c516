#pragma once

#include "elements/layer_groups.h"
#include "shell/fields/dragged_material.h"
#include "shell/fields/facts_delegate.h"
#include "shell/fields/searched_box.h"

class QMimeData;

namespace velmar::shell {

/// The material list of a layer row. A name is chosen from the list, found by typing any part of it, dropped,
/// or pasted. A pasted table of layers is handed on.
class MaterialBox : public SearchedBox {
  Q_OBJECT

 public:
  MaterialBox(const QString& object_name, elements::MaterialFamily family, QAbstractItemModel* names,
              QWidget* parent = nullptr);

  /// Chooses `material` as if it were dropped here. @return false when it is of another family
  bool Put(const DraggedMaterial& material);
  /// The list tells `facts` beside each name from now on.
  void Tell(FactsOf facts);

  void showPopup() override;

 signals:
  /// The list is about to open: its names may take another order now.
  void AboutToOffer();
  /// A table was pasted: lines of cells, as a spreadsheet copies them.
  void TablePasted(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  bool Takes(const QMimeData& mime) const;

  elements::MaterialFamily family_;
  FactsOf facts_{};
  bool hits_tell_ = false;    ///< the hits of what is typed tell their facts
  bool pasted_name_ = false;  ///< with the key that is still down
};

}  // namespace velmar::shell
