#include "shell/structures/tree_nodes.h"

#include "foundation/message_rows.h"

namespace velmar::structures {
namespace {

struct NodeRow {
  MessageRow caption{};
  Branch branch{};
};

/// The branches of the library window, in the order in which its tree shows them.
std::vector<NodeRow> RowsFor(LibraryPurpose purpose) {
  switch (purpose) {
    case LibraryPurpose::kOpaquePart:
      return {{kStandardWallsRow, Branch::kWalls},
              {kCalculatedDataRow, Branch::kCalculatedWalls},
              {kFieldDataRow, Branch::kFieldWalls}};
    case LibraryPurpose::kComponents:
      return {{kWindowsAndDoorsRow, Branch::kOpenings},
              {kSmallElementsRow, Branch::kSmallElements},
              {kCalculatedDataRow, Branch::kCalculatedWalls},
              {kFieldDataRow, Branch::kFieldWalls}};
    case LibraryPurpose::kAirborneData:
      return {{kStandardWallsRow, Branch::kWalls},
              {kStandardLiningsRow, Branch::kLinings},
              {kWindowsAndDoorsRow, Branch::kOpenings},
              {kSmallElementsRow, Branch::kSmallElements},
              {kCalculatedDataRow, Branch::kCalculatedWalls},
              {kFieldDataRow, Branch::kFieldWalls}};
    case LibraryPurpose::kImpactData:
      return {{kStandardFloorsRow, Branch::kFloors},
              {kStandardCoveringsRow, Branch::kCoverings},
              {kCalculatedDataRow, Branch::kCalculatedFloors},
              {kFieldDataRow, Branch::kFieldFloors}};
  }
  return {};
}

}  // namespace

std::vector<TreeNode> LibraryNodes(LibraryPurpose purpose, const shell::WindowTools& tools) {
  TreeNode root{tools.Text(kCustomRow), {}, {}};
  for (const NodeRow& row : RowsFor(purpose))
    root.children.push_back({tools.Text(row.caption), {row.branch}, {}});
  return {root};
}

std::vector<TreeNode> LaboratoryNodes(elements::Family family, const shell::WindowTools& tools) {
  TreeNode theoretical{tools.Text(kTheoreticalRow), {Branch::kCalculatedWalls}, {}};
  TreeNode custom{tools.Text(kCustomRow), {}, {}};
  if (family == elements::Family::kImpact) {
    theoretical.branches = {Branch::kCalculatedFloors};
    custom.children.push_back({tools.Text(kStandardFloorsRow), {Branch::kFloors}, {}});
    custom.children.push_back({tools.Text(kStandardCoveringsRow), {Branch::kCoverings}, {}});
    return {theoretical, custom};
  }
  custom.children.push_back({tools.Text(kStandardWallsRow), {Branch::kWalls, Branch::kOpenings}, {}});
  if (IsLining(family)) {
    theoretical.branches.clear();
    theoretical.children.push_back({tools.Text(kLiningRow), {Branch::kCalculatedLinings}, {}});
    theoretical.children.push_back({tools.Text(kAirborneResultsRow), {Branch::kCalculatedWalls}, {}});
    custom.children.push_back({tools.Text(kStandardLiningsRow), {Branch::kLinings}, {}});
    custom.children.push_back({tools.Text(kStandardCoveringsRow), {Branch::kCoverings}, {}});
  }
  return {theoretical, custom};
}

std::vector<TreeNode> InSituNodes(elements::Family family, const shell::WindowTools& tools) {
  if (family == elements::Family::kImpact) {
    return {{tools.Text(kFieldFloorsRow), {Branch::kFieldFloors}, {}}};
  }
  return {{tools.Text(kFieldWallsRow), {Branch::kFieldWalls}, {}}};
}

}  // namespace velmar::structures
