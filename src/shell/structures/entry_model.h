#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <vector>

namespace velmar::structures {

/// Rows of texts under headings, for lists of thousands of entries.
class EntryModel : public QAbstractTableModel {
 public:
  explicit EntryModel(QStringList headings, QObject* parent = nullptr);

  /// @param rows as many texts each as there are headings
  void Fill(std::vector<QStringList> rows);
  /// `column` is headed `heading` from now on.
  void Name(int column, const QString& heading);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QStringList headings_;
  std::vector<QStringList> rows_;
};

/// Shows the rows in which every word searched for occurs, in whatever column and case.
class EntrySearch : public QSortFilterProxyModel {
 public:
  explicit EntrySearch(EntryModel& model, QObject* parent = nullptr);

  void Search(const QString& text);
  /// The row whose text in `column` answers `text` best: it is it, begins with it, or holds it as a word. The
  /// first row where none holds it as a whole; -1 without a row.
  int BestHit(const QString& text, int column) const;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  QStringList searched_;
};

}  // namespace velmar::structures
