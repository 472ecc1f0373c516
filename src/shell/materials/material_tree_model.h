#pragma once

#include <QAbstractItemModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

#include "elements/layer_groups.h"
#include "shell/fields/dragged_material.h"
#include "shell/windows/window_tools.h"
#include "storage/materials/material_row.h"

namespace velmar::shell {

/// The materials of the three families as children of three bold roots, in the order of a dictionary; a
/// material can be dragged from it.
class MaterialTreeModel : public QAbstractItemModel {
 public:
  /// The key of a node: "Materiali strutturali" and the like for a root, "MS", "MF" or "MR" and the name for
  /// a material. It stays Italian in every language.
  static constexpr int kKeyRole = Qt::UserRole;

  explicit MaterialTreeModel(const WindowTools& tools, QObject* parent = nullptr);

  void Fill(elements::MaterialFamily family, const std::vector<storage::ListedMaterial>& materials);

  QModelIndex RootOf(elements::MaterialFamily family) const;
  /// The material that `index` stands for; nothing for a root.
  std::optional<DraggedMaterial> MaterialAt(const QModelIndex& index) const;
  /// Whether every one of `words`, in small letters, occurs in the name or keyword at `index`.
  bool Holds(const QModelIndex& index, const QStringList& words) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

 private:
  struct Node {
    QString name{};
    QString search{};
  };
  const Node* NodeAt(const QModelIndex& index) const;

  std::array<QString, 3> titles_;
  std::array<std::vector<Node>, 3> nodes_;  ///< by MaterialFamily
};

/// Shows the materials in whose name or keyword every word searched for occurs, and always the three roots.
class MaterialTreeSearch : public QSortFilterProxyModel {
 public:
  explicit MaterialTreeSearch(MaterialTreeModel& model, QObject* parent = nullptr);

  void Search(const QString& text);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  MaterialTreeModel& model_;
  QStringList searched_;
};

}  // namespace velmar::shell
