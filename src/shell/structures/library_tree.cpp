#include "shell/structures/library_tree.h"

#include <QTreeWidget>

namespace velmar::structures {
namespace {

constexpr int kBranchRole = Qt::UserRole;
constexpr int kFileRole = Qt::UserRole + 1;

constexpr MessageRow kCalculatedDataRow{286};
constexpr MessageRow kCustomRow{379};
constexpr MessageRow kStandardWallsRow{381};
constexpr MessageRow kOpeningsRow{382};
constexpr MessageRow kFieldDataRow{391};
constexpr MessageRow kSmallElementsRow{392};

void AddFiles(QTreeWidgetItem& node, Branch branch, const LibrarySource& source) {
  for (const std::string& name : source.files(branch)) {
    auto* file = new QTreeWidgetItem(&node, {windows::ToQt(name)});
    file->setToolTip(0, windows::ToQt(name));
    file->setData(0, kBranchRole, static_cast<int>(branch));
    file->setData(0, kFileRole, windows::ToQt(name));
  }
}

void AddNode(QTreeWidgetItem& parent, const TreeNode& node, const LibrarySource& source,
             const windows::WindowTools& tools) {
  auto* item = new QTreeWidgetItem(&parent, {node.caption});
  for (const TreeNode& child : node.children) AddNode(*item, child, source, tools);
  for (const Branch branch : node.branches) tools.Try([&] { AddFiles(*item, branch, source); });
}

}  // namespace

void FillTree(QTreeWidget& tree, const std::vector<TreeNode>& nodes, const LibrarySource& source,
              const windows::WindowTools& tools) {
  tree.clear();
  for (const TreeNode& node : nodes) AddNode(*tree.invisibleRootItem(), node, source, tools);
  tree.expandAll();
}

std::optional<LibraryFile> FileOf(const QTreeWidgetItem* item) {
  if (item == nullptr || !item->data(0, kFileRole).isValid()) return std::nullopt;
  return LibraryFile{static_cast<Branch>(item->data(0, kBranchRole).toInt()),
                     windows::FromQt(item->data(0, kFileRole).toString())};
}

std::vector<TreeNode> LibraryNodes(bool components, const windows::WindowTools& tools) {
  TreeNode root{tools.Text(kCustomRow), {}, {}};
  if (components) {
    root.children.push_back({tools.Text(kOpeningsRow), {Branch::kOpenings}, {}});
    root.children.push_back({tools.Text(kSmallElementsRow), {Branch::kSmallElements}, {}});
  } else {
    root.children.push_back({tools.Text(kStandardWallsRow), {Branch::kWalls}, {}});
  }
  root.children.push_back({tools.Text(kCalculatedDataRow), {Branch::kCalculatedWalls}, {}});
  root.children.push_back({tools.Text(kFieldDataRow), {Branch::kFieldWalls}, {}});
  return {root};
}

}  // namespace velmar::structures
