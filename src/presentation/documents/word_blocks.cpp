#include "presentation/documents/word_blocks.h"

#include <algorithm>
#include <string>
#include <vector>

#include "presentation/documents/paragraph_text.h"
#include "presentation/documents/placeholders.h"

namespace velmar::presentation {
namespace {

void NoPicture(pugi::xml_node, pugi::xml_node) {}

struct MarkedParagraph {
  pugi::xml_node paragraph{};
  FoundPlaceholder marker{};
};

void CutText(pugi::xml_node paragraph, std::size_t begin, std::size_t length) {
  ParagraphText text(paragraph);
  text.Cut(begin, length);
  text.WriteBack(NoPicture);
}

/// Empties a cell, which the table's grid needs.
void EmptyCell(pugi::xml_node cell) {
  for (pugi::xml_node node = cell.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    if (std::string_view(node.name()) != "w:tcPr") cell.remove_child(node);
    node = next;
  }
  cell.append_child("w:p");
}

bool IsStructure(pugi::xml_node node) {
  const std::string_view name = node.name();
  return name == "w:sectPr" || name.ends_with("Pr") || name == "w:tblGrid" || name == "w:tblPrEx";
}

void RemoveSiblings(pugi::xml_node first, pugi::xml_node end) {
  for (pugi::xml_node node = first; node && node != end;) {
    const pugi::xml_node next = node.next_sibling();
    if (std::string_view(node.name()) == "w:tc") {
      EmptyCell(node);
    } else if (!IsStructure(node)) {
      node.parent().remove_child(node);
    }
    node = next;
  }
}

std::vector<pugi::xml_node> PathTo(pugi::xml_node node, pugi::xml_node root) {
  std::vector<pugi::xml_node> path;
  for (; node && node != root; node = node.parent()) path.push_back(node);
  std::ranges::reverse(path);
  return path;
}

/// Removes what stands between two paragraphs that are not the same.
void RemoveBetween(pugi::xml_node root, pugi::xml_node first, pugi::xml_node last) {
  const std::vector<pugi::xml_node> from = PathTo(first, root);
  const std::vector<pugi::xml_node> to = PathTo(last, root);
  std::size_t fork = 0;
  while (fork < from.size() && fork < to.size() && from[fork] == to[fork]) ++fork;
  for (std::size_t i = from.size() - 1; i > fork; --i) RemoveSiblings(from[i].next_sibling(), {});
  if (fork < from.size() && fork < to.size()) RemoveSiblings(from[fork].next_sibling(), to[fork]);
  for (std::size_t i = to.size() - 1; i > fork; --i) RemoveSiblings(to[i].parent().first_child(), to[i]);
}

bool RemoveOneBlock(pugi::xml_node root, std::string_view start, std::string_view end) {
  MarkedParagraph open;
  for (const pugi::xml_node paragraph : ParagraphsOf(root)) {
    const std::string text = ParagraphText(paragraph).Text();
    if (!open.paragraph) {
      const auto found = FindMarker(text, start);
      if (!found) continue;
      open = {.paragraph = paragraph, .marker = *found};
    }
    const auto close = FindMarker(text, end);
    if (!close) continue;
    const std::size_t close_end = close->begin + close->length;
    if (paragraph == open.paragraph) {
      if (close->begin < open.marker.begin) return false;
      CutText(paragraph, open.marker.begin, close_end - open.marker.begin);
    } else {
      RemoveBetween(root, open.paragraph, paragraph);
      CutText(open.paragraph, open.marker.begin, std::string::npos / 2);
      CutText(paragraph, 0, close_end);
      if (IsEmptyParagraph(open.paragraph)) RemoveParagraph(open.paragraph);
    }
    if (IsEmptyParagraph(paragraph)) RemoveParagraph(paragraph);
    return true;
  }
  return false;
}

}  // namespace

bool RemoveBlocks(pugi::xml_node root, std::string_view start, std::string_view end) {
  bool removed = false;
  while (RemoveOneBlock(root, start, end)) removed = true;
  return removed;
}

bool RemoveMarkers(pugi::xml_node root, std::string_view marker) {
  bool removed = false;
  for (const pugi::xml_node paragraph : ParagraphsOf(root)) {
    while (const auto found = FindMarker(ParagraphText(paragraph).Text(), marker)) {
      CutText(paragraph, found->begin, found->length);
      removed = true;
      if (IsEmptyParagraph(paragraph)) {
        RemoveParagraph(paragraph);
        break;
      }
    }
  }
  return removed;
}

}  // namespace velmar::presentation
