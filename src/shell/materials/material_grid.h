#pragma once

#include <QTableView>
#include <string>

#include "shell/materials/material_model.h"

namespace velmar::shell {

/// The grid of one family (`DataGrid1`): columns as wide as their contents, the name takes what is left.
class MaterialGrid : public QTableView {
  Q_OBJECT

 public:
  MaterialGrid(MaterialModel& model, MaterialSearch& shown, QWidget* parent);

  /// The table has other columns now. `widths` is what Widths() gave once; empty or of another program: the
  /// columns are as wide as their contents, and the rows stand as in the table.
  void BeginTable(const QByteArray& widths, bool all_columns);
  QByteArray Widths() const;
  /// Shows the columns that a choice is made by, or all of the table.
  void ShowColumns(bool all);

  /// Empty when no row is selected.
  std::string SelectedName() const;
  int SelectedRow() const { return currentIndex().row(); }
  /// Selects the row called `name`. @return false when no row that is shown has that name
  bool SelectName(const std::string& name);
  /// Selects the row whose name answers `text` best. @return false when no name holds it
  bool SelectBest(const QString& text);
  /// Selects row `row`, or the last one.
  void SelectRow(int row);

 signals:
  /// Enter or a double click on the selected row.
  void Chosen();
  /// Del on the selected row.
  void RemoveWanted();
  /// A letter, which a search takes.
  void Typed(QKeyEvent* key);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int ContentWidth(int column) const;
  void SizeToContents(bool main);
  void FitName();

  MaterialModel& model_;
  MaterialSearch& shown_;
  int viewport_width_ = 0;
  bool fit_due_ = false;
};

}  // namespace velmar::shell
