#include "shell/structures/entry_model.h"

#include <algorithm>

#include "shell/fields/name_search.h"

namespace velmar::structures {

EntryModel::EntryModel(QStringList headings, QObject* parent)
    : QAbstractTableModel(parent), headings_(std::move(headings)) {}

void EntryModel::Fill(std::vector<QStringList> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

void EntryModel::Name(int column, const QString& heading) {
  headings_[column] = heading;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

int EntryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int EntryModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  return rows_[static_cast<std::size_t>(index.row())].value(index.column());
}

QVariant EntryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? QVariant(headings_.value(section)) : QVariant();
}

EntrySearch::EntrySearch(EntryModel& model, QObject* parent) : QSortFilterProxyModel(parent) {
  setSortCaseSensitivity(Qt::CaseInsensitive);
  setSortLocaleAware(true);
  setSourceModel(&model);
}

void EntrySearch::Search(const QString& text) {
  searched_ = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

int EntrySearch::BestHit(const QString& text, int column) const {
  QStringList names;
  for (int row = 0; row < rowCount(); ++row) names << index(row, column).data().toString();
  const QStringList hits = shell::RankedHits(names, text);
  if (hits.isEmpty()) return names.isEmpty() ? -1 : 0;
  return static_cast<int>(names.indexOf(hits.constFirst()));
}

bool EntrySearch::filterAcceptsRow(int row, const QModelIndex& parent) const {
  return std::all_of(searched_.begin(), searched_.end(), [&](const QString& word) {
    for (int column = 0; column < sourceModel()->columnCount(); ++column) {
      const QString text = sourceModel()->index(row, column, parent).data().toString();
      if (text.contains(word, Qt::CaseInsensitive)) return true;
    }
    return false;
  });
}

}  // namespace velmar::structures
