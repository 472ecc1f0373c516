#include "shell/materials/material_model.h"

#include <QLocale>
#include <algorithm>

namespace velmar::shell {
namespace {

bool IsNumber(const MaterialColumn& column) {
  return column.type == storage::ColumnType::kNumber || column.type == storage::ColumnType::kWhole;
}

QCollator Dictionary() {
  QCollator collator{QLocale(QLocale::Italian)};
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  collator.setNumericMode(true);
  return collator;
}

}  // namespace

MaterialModel::MaterialModel(WindowTools tools, QObject* parent)
    : QAbstractTableModel(parent), tools_(std::move(tools)), collator_(Dictionary()) {}

void MaterialModel::Fill(elements::MaterialFamily family, std::vector<MaterialCells> rows) {
  beginResetModel();
  columns_ = ColumnsOf(family, tools_);
  rows_ = std::move(rows);
  sort_keys_.clear();
  FormSearchTexts();
  endResetModel();
}

void MaterialModel::FormSearchTexts() {
  search_.clear();
  search_.reserve(rows_.size());
  for (const MaterialCells& row : rows_) {
    QString text;
    for (const MaterialColumn& column : columns_) {
      if (!column.main || column.type != storage::ColumnType::kText) continue;
      text += Shown(row.at(column.cell), tools_) + QLatin1Char('\n');
    }
    search_.push_back(text.toLower());
  }
}

const storage::Cell& MaterialModel::CellAt(int row, int column) const {
  return rows_.at(static_cast<std::size_t>(row)).at(columns_.at(static_cast<std::size_t>(column)).cell);
}

QString MaterialModel::LongestText(int column) const {
  QString longest;
  for (int row = 0; row < rowCount(); ++row) {
    const storage::Cell& cell = CellAt(row, column);
    // A text of fewer bytes has no more letters: it need not be converted.
    const auto* text = std::get_if<std::string>(&cell);
    if (text != nullptr && static_cast<qsizetype>(text->size()) <= longest.size()) continue;
    const QString shown = Shown(cell, tools_);
    if (shown.size() > longest.size()) longest = shown;
  }
  return longest;
}

bool MaterialModel::IsEmpty(int row, int column) const {
  const storage::Cell& cell = CellAt(row, column);
  const auto* text = std::get_if<std::string>(&cell);
  return std::holds_alternative<std::monostate>(cell) || (text != nullptr && text->empty());
}

const std::vector<QCollatorSortKey>& MaterialModel::SortKeys(int column) const {
  auto& keys = sort_keys_[column];
  if (keys.empty()) {
    keys.reserve(rows_.size());
    for (int row = 0; row < rowCount(); ++row)
      keys.push_back(collator_.sortKey(Shown(CellAt(row, column), tools_)));
  }
  return keys;
}

bool MaterialModel::IsBefore(int a, int b, int column) const {
  const auto* left = std::get_if<double>(&CellAt(a, column));
  const auto* right = std::get_if<double>(&CellAt(b, column));
  if (left != nullptr && right != nullptr) return *left < *right;
  const auto& keys = SortKeys(column);
  return keys.at(static_cast<std::size_t>(a)) < keys.at(static_cast<std::size_t>(b));
}

int MaterialModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int MaterialModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant MaterialModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const MaterialColumn& column = columns_[static_cast<std::size_t>(index.column())];
  if (role == Qt::DisplayRole) return Shown(CellAt(index.row(), index.column()), tools_);
  if (role == Qt::TextAlignmentRole && IsNumber(column)) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  // Plain text: a name may hold what looks like markup.
  if (role == Qt::ToolTipRole && column.type == storage::ColumnType::kText)
    return QStringLiteral("<span>%1</span>")
        .arg(Shown(CellAt(index.row(), index.column()), tools_).toHtmlEscaped());
  return {};
}

QVariant MaterialModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columnCount()) return {};
  const MaterialColumn& column = columns_[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return column.heading;
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return column.tip;
  if (role == Qt::TextAlignmentRole)
    return QVariant((IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  return {};
}

MaterialSearch::MaterialSearch(MaterialModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setSourceModel(&model);
}

void MaterialSearch::Search(const QString& text) {
  searched_ = text.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool MaterialSearch::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  const QString& text = model_.SearchText(row);
  return std::all_of(searched_.begin(), searched_.end(),
                     [&text](const QString& word) { return text.contains(word); });
}

bool MaterialSearch::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const bool left_empty = model_.IsEmpty(left.row(), left.column());
  const bool right_empty = model_.IsEmpty(right.row(), right.column());
  if (left_empty || right_empty) {
    if (left_empty == right_empty) return false;
    return sortOrder() == Qt::AscendingOrder ? right_empty : left_empty;
  }
  return model_.IsBefore(left.row(), right.row(), left.column());
}

}  // namespace velmar::shell
