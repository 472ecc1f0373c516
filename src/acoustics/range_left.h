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
  MessageRow quantity{};    ///< name of what has the value; of a choice, what was chosen

  bool operator==(const RangeLeft&) const = default;
};

/// What lies outside, and of what: "m' = 504 kg/m² (from 80 to 400)", "thickness = 34 cm (up to 30)"; of a
/// choice what was chosen, "cavity not empty". The value is rounded as far as it still shows that it lies
/// outside.
MessageLine RangeText(const RangeLeft& range);

}  // namespace velmar::acoustics
