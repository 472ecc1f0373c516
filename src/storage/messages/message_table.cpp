#include "storage/messages/message_table.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace velmar::storage {

MessageTable::MessageTable(const std::vector<std::string>& catalogue, std::map<int, std::string> further)
    : further_(std::move(further)) {
  std::copy_n(catalogue.begin(), std::min(catalogue.size(), catalogue_.size()), catalogue_.begin());
}

const std::string& MessageTable::Mess(int row) const {
  static const std::string kNone;
  if (row < 1 || row > kCatalogueRows) return kNone;
  return catalogue_.at(static_cast<std::size_t>(row - 1));
}

std::string MessageTable::Text(MessageRow row) const {
  if (row.number < kFirstFurtherRow) return Mess(row.number);
  const auto text = further_.find(row.number);
  return text == further_.end() ? "[" + std::to_string(row.number) + "]" : text->second;
}

std::string MessageTable::Text(const MessageLine& line) const {
  std::string text;
  for (const MessagePiece& piece : line) {
    const auto* row = std::get_if<MessageRow>(&piece);
    text += row != nullptr ? Text(*row) : std::get<std::string>(piece);
  }
  return text;
}

std::vector<std::string> MessageTable::Text(const Message& message) const {
  std::vector<std::string> lines;
  for (const MessageLine& line : message) lines.push_back(Text(line));
  return lines;
}

}  // namespace velmar::storage
