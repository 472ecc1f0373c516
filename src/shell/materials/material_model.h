#pragma once

#include <QAbstractTableModel>
#include <QCollator>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <map>
#include <vector>

#include "shell/materials/material_columns.h"
#include "shell/materials/material_source.h"

namespace velmar::shell {

/// The rows of a material table under the columns of its grid.
class MaterialModel : public QAbstractTableModel {
 public:
  explicit MaterialModel(WindowTools tools, QObject* parent = nullptr);

  void Fill(elements::MaterialFamily family, std::vector<MaterialCells> rows);

  const std::vector<MaterialColumn>& Columns() const { return columns_; }
  /// The widest of the texts in `column`, with as many letters as any.
  QString LongestText(int column) const;
  /// The words that a search looks through, in small letters.
  const QString& SearchText(int row) const { return search_.at(static_cast<std::size_t>(row)); }
  /// Whether row `a` stands before row `b`: numbers as numbers, texts as in a dictionary.
  bool IsBefore(int a, int b, int column) const;
  bool IsEmpty(int row, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const storage::Cell& CellAt(int row, int column) const;
  const std::vector<QCollatorSortKey>& SortKeys(int column) const;
  void FormSearchTexts();

  WindowTools tools_;
  std::vector<MaterialColumn> columns_;
  std::vector<MaterialCells> rows_;
  std::vector<QString> search_;
  QCollator collator_;
  mutable std::map<int, std::vector<QCollatorSortKey>> sort_keys_;  ///< made when a column is sorted by
};

/// Shows the rows in which every word searched for occurs, in name, description or keyword, whatever the
/// case. Rows without a value stand last in either direction of sorting.
class MaterialSearch : public QSortFilterProxyModel {
 public:
  explicit MaterialSearch(MaterialModel& model, QObject* parent = nullptr);

  void Search(const QString& text);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  MaterialModel& model_;
  QStringList searched_;
};

}  // namespace velmar::shell
