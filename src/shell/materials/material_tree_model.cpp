#include "shell/materials/material_tree_model.h"

#include <QCollator>
#include <QFont>
#include <QLocale>
#include <QMimeData>
#include <algorithm>

#include "shell/materials/material_texts.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

constexpr std::array kFamilies = {MaterialFamily::kStructural, MaterialFamily::kFibrous,
                                  MaterialFamily::kResilient};
constexpr std::array kRootKeys = {"Materiali strutturali", "Materiali fibrosi", "Materiali resilienti"};
constexpr std::array kPrefixes = {"MS", "MF", "MR"};
constexpr quintptr kRoot = 0;  // internal id of a root; a material has the number of its family and 1

std::size_t At(MaterialFamily family) { return static_cast<std::size_t>(family); }

}  // namespace

MaterialTreeModel::MaterialTreeModel(const WindowTools& tools, QObject* parent) : QAbstractItemModel(parent) {
  for (const MaterialFamily family : kFamilies) titles_.at(At(family)) = tools.Text(TitleOf(family));
}

void MaterialTreeModel::Fill(MaterialFamily family, const std::vector<storage::ListedMaterial>& materials) {
  QCollator collator{QLocale(QLocale::Italian)};
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  collator.setNumericMode(true);
  std::vector<std::pair<QCollatorSortKey, Node>> sorted;
  sorted.reserve(materials.size());
  for (const storage::ListedMaterial& material : materials) {
    const QString name = FromUtf8(material.name);
    const QString search = (name + QLatin1Char('\n') + FromUtf8(material.keyword)).toLower();
    sorted.emplace_back(collator.sortKey(name), Node{name, search});
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  beginResetModel();
  std::vector<Node>& nodes = nodes_.at(At(family));
  nodes.clear();
  nodes.reserve(sorted.size());
  for (auto& [key, node] : sorted) nodes.push_back(std::move(node));
  endResetModel();
}

QModelIndex MaterialTreeModel::RootOf(MaterialFamily family) const {
  return index(static_cast<int>(family), 0);
}

const MaterialTreeModel::Node* MaterialTreeModel::NodeAt(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kRoot) return nullptr;
  return &nodes_.at(index.internalId() - 1).at(static_cast<std::size_t>(index.row()));
}

std::optional<DraggedMaterial> MaterialTreeModel::MaterialAt(const QModelIndex& index) const {
  const Node* node = NodeAt(index);
  if (node == nullptr) return std::nullopt;
  return DraggedMaterial{kFamilies.at(index.internalId() - 1), node->name};
}

bool MaterialTreeModel::Holds(const QModelIndex& index, const QStringList& words) const {
  const Node* node = NodeAt(index);
  return node == nullptr || std::all_of(words.begin(), words.end(),
                                        [&](const QString& word) { return node->search.contains(word); });
}

QModelIndex MaterialTreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column != 0 || row >= rowCount(parent)) return {};
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kRoot);
}

QModelIndex MaterialTreeModel::parent(const QModelIndex& child) const {
  if (!child.isValid() || child.internalId() == kRoot) return {};
  return createIndex(static_cast<int>(child.internalId()) - 1, 0, kRoot);
}

int MaterialTreeModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(kFamilies.size());
  if (parent.internalId() != kRoot) return 0;
  return static_cast<int>(nodes_.at(static_cast<std::size_t>(parent.row())).size());
}

int MaterialTreeModel::columnCount(const QModelIndex& /*parent*/) const { return 1; }

QVariant MaterialTreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Node* node = NodeAt(index);
  const auto family = static_cast<std::size_t>(node == nullptr ? index.row() : index.parent().row());
  switch (role) {
    case Qt::DisplayRole:
      return node == nullptr ? titles_.at(family) : node->name;
    case Qt::ToolTipRole:
      return node == nullptr ? QVariant() : QStringLiteral("<span>%1</span>").arg(node->name.toHtmlEscaped());
    case kKeyRole:
      return node == nullptr ? QString::fromLatin1(kRootKeys.at(family))
                             : QString::fromLatin1(kPrefixes.at(family)) + node->name;
    case Qt::FontRole: {
      if (node != nullptr) return {};
      QFont bold;
      bold.setBold(true);
      return bold;
    }
    default:
      return {};
  }
}

Qt::ItemFlags MaterialTreeModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return NodeAt(index) == nullptr ? shown : shown | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

QStringList MaterialTreeModel::mimeTypes() const { return {QStringLiteral("text/plain")}; }

QMimeData* MaterialTreeModel::mimeData(const QModelIndexList& indexes) const {
  const auto material = indexes.isEmpty() ? std::nullopt : MaterialAt(indexes.first());
  return material ? ToMime(*material) : nullptr;
}

MaterialTreeSearch::MaterialTreeSearch(MaterialTreeModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setSourceModel(&model);
}

void MaterialTreeSearch::Search(const QString& text) {
  searched_ = text.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool MaterialTreeSearch::filterAcceptsRow(int row, const QModelIndex& parent) const {
  return model_.Holds(model_.index(row, 0, parent), searched_);
}

}  // namespace velmar::shell
