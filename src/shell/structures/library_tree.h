#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace velmar::structures {

/// A node of the tree: the files of its branches are its children.
struct TreeNode {
  QString caption{};
  std::vector<Branch> branches{};
  std::vector<TreeNode> children{};  ///< nodes before the files
};

/// Fills `tree` with `nodes` and the files that `source` names for them, all unfolded. A branch without files
/// is a node without children, or with one that says `empty` where that is not empty; one that cannot be read
/// is told of and left without.
void FillTree(QTreeWidget& tree, const std::vector<TreeNode>& nodes, const LibrarySource& source,
              const shell::WindowTools& tools, const QString& empty = {});

/// The file that `item` stands for; nothing for a node that only holds others.
std::optional<LibraryFile> FileOf(const QTreeWidgetItem* item);

/// The branch without files that `item` speaks of; nothing for every other item.
std::optional<Branch> EmptyBranchOf(const QTreeWidgetItem* item);

}  // namespace velmar::structures
