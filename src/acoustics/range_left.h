#pragma once

#include <string_view>

#include "foundation/message.h"

namespace velmar::acoustics {

/// A range of a regression that an element lies outside of: a calculation goes on only where the user wants
/// it to, and its result then tells so.
struct RangeLeft {
  MessagePiece check{};     ///< the words of the check, a row or words of its own
  double value = 0.0;       ///< what the element has
  double lowest = 0.0;      ///< the range, both ends inside; an infinity where it has no such end
  double highest = 0.0;     ///< the other end
  std::string_view unit{};  ///< of the three numbers; empty for a check of a choice, which has none

  bool operator==(const RangeLeft&) const = default;
};

}  // namespace velmar::acoustics
