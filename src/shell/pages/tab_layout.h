#pragma once

#include <span>
#include <vector>

#include "elements/catalogue.h"
#include "foundation/message.h"

namespace velmar::shell {

/// The tabs of `SSTab1`, by index.
enum class TabId {
  kLeaf1 = 0,
  kLeaf2 = 1,
  kCavity = 2,
  kResilient = 3,
  kBase = 4,
  kComponents = 5,
  kSeaLeaf1 = 6,
  kSeaLeaf2 = 7,
  kSeaCavity = 8,
};
inline constexpr int kTabCount = 9;

/// A tab that a calculation shows.
struct ShownTab {
  TabId tab{};
  MessageRow caption{};
  const char* picture = "";  ///< name of its icon

  bool operator==(const ShownTab&) const = default;
};

/// The tabs of `calculation`, the first one first; all others are hidden.
std::vector<ShownTab> TabsOf(elements::Calculation calculation);

}  // namespace velmar::shell
