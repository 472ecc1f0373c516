#include "acoustics/range_left.h"

#include <cmath>
#include <string>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::acoustics {
namespace {

constexpr int kFewestDecimals = 1;
constexpr int kMostDecimals = 12;

bool LiesInside(const RangeLeft& range, double value) {
  return value >= range.lowest && value <= range.highest;
}

std::string ValueText(const RangeLeft& range) {
  int decimals = kFewestDecimals;
  // In metres one decimal says nothing of a wall.
  if (range.unit == "m") decimals = 3;
  while (decimals < kMostDecimals && LiesInside(range, RoundToEven(range.value, decimals))) ++decimals;
  return FormatShortest(RoundToEven(range.value, decimals));
}

void AddEnds(const RangeLeft& range, MessageLine& line) {
  const std::string highest = FormatShortest(range.highest);
  if (std::isinf(range.lowest)) {
    line.insert(line.end(), {kRangeUpToRow, " " + highest});
  } else if (std::isinf(range.highest)) {
    line.insert(line.end(), {kRangeAtLeastRow, " " + FormatShortest(range.lowest)});
  } else {
    line.insert(line.end(),
                {kRangeFromRow, " " + FormatShortest(range.lowest) + " ", kRangeToRow, " " + highest});
  }
}

}  // namespace

MessageLine RangeText(const RangeLeft& range) {
  MessageLine line = {range.quantity};
  if (range.unit.empty()) return line;
  line.emplace_back(" = " + ValueText(range) + " " + std::string(range.unit) + " (");
  AddEnds(range, line);
  line.emplace_back(std::string(")"));
  return line;
}

}  // namespace velmar::acoustics
