#pragma once

#include <compare>
#include <string>
#include <variant>
#include <vector>

namespace velmar {

/// A text of the message catalogue, named by its row: 1 to 419 are the catalogue proper, from 1001 on stand
/// the program's further texts. A row becomes words only in a window or on the command line.
struct MessageRow {
  int number = 0;
  auto operator<=>(const MessageRow&) const = default;
};

/// The first row of the program's further texts.
inline constexpr int kFirstFurtherRow = 1001;

/// A piece of a line: a row, or words that stand as they are (a name, a number, a literal).
using MessagePiece = std::variant<MessageRow, std::string>;

/// One line of a box; the pieces follow each other without a blank.
using MessageLine = std::vector<MessagePiece>;

/// What the user is to be told: the lines of one box.
using Message = std::vector<MessageLine>;

/// The row that names `line`: its first row piece, or row 0 when the line is words alone.
inline MessageRow LeadingRow(const MessageLine& line) {
  for (const MessagePiece& piece : line) {
    if (const auto* row = std::get_if<MessageRow>(&piece)) return *row;
  }
  return {};
}

}  // namespace velmar
