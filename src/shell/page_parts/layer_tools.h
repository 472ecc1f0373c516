#pragma once

#include <QList>
#include <QObject>
#include <vector>

#include "calculation/open/history.h"
#include "elements/layer_groups.h"
#include "shell/page_parts/page_context.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QMenu;
class QToolButton;
class QWidget;

namespace velmar::shell {

/// What a hand does to one layer row as a whole: a menu behind a button at the row's end, keys while one of
/// the row's fields has the focus, and the row's number, which is dragged to where the layer shall stand.
///
/// Ctrl+Shift with Up and Down moves the layer, with I puts one in below, with D doubles it, with Delete
/// takes it out, with C copies it and with V pastes below it; with A it
/// opens the menu.
class LayerTools : public QObject {
  Q_OBJECT

 public:
  /// @param number what shows the row's number; takes dropped layers
  LayerTools(elements::LayerGroup group, int index, PageContext& context, QLabel* number, QWidget* page);

  /// Keys in `field` of the row act on the row from now on. All rows of a table hand in their fields in the
  /// same order.
  void Serve(QWidget* field);
  // One of the two follows.
  /// Makes the button that opens the menu.
  QToolButton* MakeButton();
  /// The menu of `button` is that of the row, with what is done with the material at its end; what has that
  /// menu has the keys too, except the one that opens it.
  void LeaveMenuTo(QToolButton* button);
  /// Drags the layer from its number: a number of the same table takes the layer, a list its material.
  void Drag(const QString& material);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OpenMenu();
  void AddMaterialActions(QMenu& menu);
  bool TakeKey(const QWidget* field, int key);
  bool TakeDrop(QEvent* event);

  void Insert(int at);
  void Duplicate();
  void Remove();
  void Move(int to);
  void Copy(int first, int count);
  void Paste(bool in_place_of_all);
  /// Does `change` as the step `kind` on row `row`.
  template <typename Change>
  void Do(calculation::StepKind kind, int row, Change&& change);
  /// The keys follow the layer: what `field` is here has the focus in row `row`.
  void Follow(const QWidget* field, int row);
  int RowsInUse() const;

  elements::LayerGroup group_;
  int index_;
  PageContext& context_;
  QLabel* number_;
  QWidget* page_;
  QToolButton* button_ = nullptr;
  bool is_left_ = false;         ///< the button and its menu are another's
  QList<QAction*> of_material_;  ///< at the end of that menu
  std::vector<QWidget*> served_;
};

/// The buttons "Specchia" and "Gira" over the layers of a leaf.
class TurningButtons : public QObject {
 public:
  /// @param table control name of the table's count, behind the names of the buttons
  TurningButtons(QHBoxLayout& line, PageContext& context, const char* table, QWidget* page);
  /// Shows those that `setup` can do.
  void Show(const elements::Setup& setup);

 private:
  QToolButton* mirror_ = nullptr;
  QToolButton* turn_ = nullptr;
};

}  // namespace velmar::shell
