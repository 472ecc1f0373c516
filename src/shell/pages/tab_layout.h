#pragma once

#include <span>
#include <vector>

#include "elements/catalogue.h"
#include "foundation/message.h"

namespace velmar::shell {

/// The tabs of `SSTab1`, by index: one a stack.
using TabId = elements::Stack;
inline constexpr int kTabCount = elements::kStackCount;

/// A tab that a calculation shows.
struct ShownTab {
  TabId tab{};
  MessageRow caption{};
  const char* picture = "";  ///< name of its icon

  bool operator==(const ShownTab&) const = default;
};

/// The tabs of `calculation`, the first one first, what lies between two others last; all others are hidden.
std::vector<ShownTab> TabsOf(elements::Calculation calculation);

}  // namespace velmar::shell
