#include "shell/structures/library_tree.h"

#include <QTreeWidget>

#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

constexpr int kBranchRole = Qt::UserRole;
constexpr int kFileRole = Qt::UserRole + 1;
constexpr int kPathRole = Qt::UserRole + 2;

void AddFiles(QTreeWidgetItem& node, Branch branch, const LibrarySource& source, const QString& empty) {
  const std::vector<LibraryFile> files = source.files(branch);
  if (files.empty() && !empty.isEmpty()) {
    auto* item = new QTreeWidgetItem(&node, {empty});
    item->setToolTip(0, empty);
    item->setData(0, kBranchRole, static_cast<int>(branch));
    QFont font = item->font(0);
    font.setItalic(true);
    item->setFont(0, font);
  }
  for (const LibraryFile& file : files) {
    auto* item = new QTreeWidgetItem(&node, {shell::FromUtf8(file.name)});
    item->setToolTip(0, shell::FromUtf8(file.path.empty() ? file.name : file.path.string()));
    item->setData(0, kBranchRole, static_cast<int>(file.branch));
    item->setData(0, kFileRole, shell::FromUtf8(file.name));
    item->setData(0, kPathRole, shell::FromUtf8(file.path.string()));
  }
}

void AddNode(QTreeWidgetItem& parent, const TreeNode& node, const LibrarySource& source,
             const shell::WindowTools& tools, const QString& empty) {
  auto* item = new QTreeWidgetItem({node.caption});
  parent.addChild(item);
  for (const TreeNode& child : node.children) AddNode(*item, child, source, tools, empty);
  for (const Branch branch : node.branches) tools.Try([&] { AddFiles(*item, branch, source, empty); });
}

}  // namespace

void FillTree(QTreeWidget& tree, const std::vector<TreeNode>& nodes, const LibrarySource& source,
              const shell::WindowTools& tools, const QString& empty) {
  tree.clear();
  for (const TreeNode& node : nodes) AddNode(*tree.invisibleRootItem(), node, source, tools, empty);
  tree.expandAll();
}

std::optional<LibraryFile> FileOf(const QTreeWidgetItem* item) {
  if (item == nullptr || !item->data(0, kFileRole).isValid()) return std::nullopt;
  return LibraryFile{static_cast<Branch>(item->data(0, kBranchRole).toInt()),
                     shell::ToUtf8(item->data(0, kFileRole).toString()),
                     shell::ToUtf8(item->data(0, kPathRole).toString())};
}

std::optional<Branch> EmptyBranchOf(const QTreeWidgetItem* item) {
  const bool names_branch =
      item != nullptr && item->data(0, kBranchRole).isValid() && !item->data(0, kFileRole).isValid();
  if (!names_branch) return std::nullopt;
  return static_cast<Branch>(item->data(0, kBranchRole).toInt());
}

}  // namespace velmar::structures
