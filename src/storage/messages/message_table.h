#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "foundation/message.h"

namespace velmar::storage {

/// How many texts the catalogue proper holds.
inline constexpr int kCatalogueRows = 419;

/// The texts of one language: the catalogue, rows 1 to 419, and the program's further texts. An empty one
/// stands for "no catalogue yet": every row is empty, and only literal words are shown.
class MessageTable {
 public:
  MessageTable() = default;
  /// @param catalogue the texts of rows 1, 2, ...; rows beyond its end are empty
  /// @param further the texts from row 1001 on, by their number
  MessageTable(const std::vector<std::string>& catalogue, std::map<int, std::string> further);

  /// `Mess(row)`; empty for a number outside 1 to 419.
  const std::string& Mess(int row) const;

  /// The text of `row`. Empty for an empty row of the catalogue; a further text that is missing shows its
  /// number, so that no box is ever blank.
  std::string Text(MessageRow row) const;
  /// The pieces of `line`, one behind the other.
  std::string Text(const MessageLine& line) const;
  /// The lines of a box.
  std::vector<std::string> Text(const Message& message) const;

 private:
  std::array<std::string, kCatalogueRows> catalogue_{};
  std::map<int, std::string> further_{};
};

}  // namespace velmar::storage
