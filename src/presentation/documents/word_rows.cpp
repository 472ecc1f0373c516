#include "presentation/documents/word_rows.h"

#include <algorithm>
#include <string>
#include <vector>

#include "presentation/documents/paragraph_text.h"

namespace velmar::presentation {
namespace {

bool IsRow(pugi::xml_node node) { return std::string_view(node.name()) == "w:tr"; }

void CollectRows(pugi::xml_node parent, std::vector<pugi::xml_node>& rows) {
  for (const pugi::xml_node node : parent.children()) {
    CollectRows(node, rows);
    if (IsRow(node)) rows.push_back(node);
  }
}

/// The text of a row without the tables nested in it.
std::string RowText(pugi::xml_node row) {
  std::string text;
  for (const pugi::xml_node paragraph : ParagraphsOf(row)) {
    pugi::xml_node owner = paragraph.parent();
    while (owner && !IsRow(owner)) owner = owner.parent();
    if (owner == row) text += ParagraphText(paragraph).Text() + "\n";
  }
  return text;
}

bool HoldsOneOf(const std::string& text, const std::vector<std::string_view>& keys) {
  return std::ranges::any_of(keys, [&](std::string_view key) { return HoldsPlaceholder(text, key); });
}

void FillRow(pugi::xml_node row, const Placeholders& values) {
  for (const pugi::xml_node paragraph : ParagraphsOf(row)) {
    ParagraphText text(paragraph);
    FillPlaceholders(text, values);
    if (text.Changed()) text.WriteBack([](pugi::xml_node, pugi::xml_node) {});
  }
}

pugi::xml_node HeadingBefore(pugi::xml_node row, std::string_view key) {
  pugi::xml_node before = row.previous_sibling();
  while (before && !IsRow(before)) before = before.previous_sibling();
  return before && !key.empty() && HoldsPlaceholder(RowText(before), key) ? before : pugi::xml_node();
}

/// Removes a table without rows; its container needs a paragraph then.
void RemoveTable(pugi::xml_node table) {
  pugi::xml_node container = table.parent();
  if (!container.child("w:p")) container.insert_child_after("w:p", table);
  container.remove_child(table);
}

}  // namespace

bool RepeatPatternRows(pugi::xml_node root, const RowPattern& pattern) {
  std::vector<pugi::xml_node> rows;
  CollectRows(root, rows);
  bool found = false;
  for (const pugi::xml_node row : rows) {
    if (!HoldsOneOf(RowText(row), pattern.keys)) continue;
    found = true;
    pugi::xml_node table = row.parent();
    const pugi::xml_node heading = HeadingBefore(row, pattern.heading_key);
    for (const PatternRow& content : pattern.rows) {
      if (content.heading && !heading) continue;
      FillRow(table.insert_copy_before(content.heading ? heading : row, row), content.values);
    }
    if (heading) table.remove_child(heading);
    if (table.find_child([&](pugi::xml_node node) { return IsRow(node) && node != row; })) {
      table.remove_child(row);
    } else {
      RemoveTable(table);
    }
  }
  return found;
}

}  // namespace velmar::presentation
