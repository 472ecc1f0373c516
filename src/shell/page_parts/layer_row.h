#pragma once

#include <QObject>
#include <vector>

#include "elements/layer_groups.h"
#include "shell/page_parts/page_context.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QToolButton;
class QWidget;

namespace velmar::shell {

class CountBox;
class LayerTools;
class MaterialBox;
class NumberField;

/// Where and as what a layer row stands.
struct LayerRowPlan {
  elements::LayerGroup group{};
  int index = 0;                    ///< row of the group, from 0
  const char* count_box = nullptr;  ///< control name of the number of sheets; none: the row has no such box
  const char* check = nullptr;      ///< control name of the damping check; none: no check
  QString label{};                  ///< what stands before the list behind the row's number
  int shift = 0;                    ///< columns between the lead and the material
  bool has_menu = true;             ///< false: LeaveMenuTo() follows
};

/// One row of a layer table, in one line of a grid: number or check, material, thickness, sheets, button of
/// the material list, tools of the row. Columns: kLeadColumn to kToolsColumn.
class LayerRow : public QObject {
  Q_OBJECT

 public:
  static constexpr int kLeadColumn = 0;
  static constexpr int kMaterialColumn = 1;
  static constexpr int kThicknessColumn = 2;
  static constexpr int kSheetsColumn = 3;
  static constexpr int kChooserColumn = 4;
  static constexpr int kToolsColumn = 5;

  LayerRow(const LayerRowPlan& plan, PageContext& context, QGridLayout& grid, int line, QWidget* page);

  /// Stands in `line` of `grid` from now on.
  void MoveTo(QGridLayout& grid, int line);

  /// The row is part of another, whose menu is that of `button`: it has none of its own from now on.
  void LeaveMenuTo(QToolButton* button);

  /// Shows the row, or hides it.
  void Show(const elements::Setup& setup, bool visible);

  /// Whether `widget` is one of the row's fields.
  bool Holds(const QWidget* widget) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeLead(QWidget* page);
  void MakeFields(QWidget* page);
  void PutMaterial(const std::string& name);
  /// A table was pasted over this row and those below it.
  void PutTable(const QString& text);
  void LeaveThickness();
  void Light(bool lit);
  template <typename Visit>
  void ForEachWidget(Visit&& visit) const;

  LayerRowPlan plan_;
  PageContext& context_;
  QCheckBox* check_ = nullptr;
  QLabel* number_ = nullptr;
  MaterialBox* material_ = nullptr;
  NumberField* thickness_ = nullptr;
  CountBox* sheets_ = nullptr;
  QToolButton* chooser_ = nullptr;
  QToolButton* menu_ = nullptr;  ///< of the tools; none where the menu is another's
  LayerTools* tools_ = nullptr;  ///< of rows that stand for themselves, not of damping
};

/// The heads over the columns of layer rows: material, thickness, and sheets where the rows have them.
/// @param shift as the rows have it
/// @return the heads, to be hidden where there is no row
std::vector<QWidget*> AddLayerHeads(QGridLayout& grid, int line, const PageContext& context, bool with_sheets,
                                    QWidget* page, int shift = 0);

}  // namespace velmar::shell
