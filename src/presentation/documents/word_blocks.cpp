#include "presentation/documents/word_blocks.h"

#include <algorithm>
#include <string>
#include <vector>

#include "presentation/documents/paragraph_text.h"
#include "presentation/documents/placeholders.h"

namespace velmar::presentation {
namespace {

void NoPicture(pugi::xml_node, pugi::xml_node) {}

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

/// A marker of a block, in the order of the text.
struct Marker {
  bool is_start = false;
  pugi::xml_node paragraph{};
  std::size_t begin = 0;
  std::size_t length = 0;
};

std::vector<Marker> MarkersOf(pugi::xml_node root, std::string_view start, std::string_view end) {
  std::vector<Marker> markers;
  for (const pugi::xml_node paragraph : ParagraphsOf(root)) {
    const std::string text = ParagraphText(paragraph).Text();
    const std::size_t first = markers.size();
    for (const bool is_start : {true, false}) {
      const std::string_view name = is_start ? start : end;
      for (std::size_t from = 0;;) {
        const auto found = FindMarker(std::string_view(text).substr(from), name);
        if (!found) break;
        markers.push_back({is_start, paragraph, from + found->begin, found->length});
        from += found->begin + found->length;
      }
    }
    std::sort(markers.begin() + static_cast<std::ptrdiff_t>(first), markers.end(),
              [](const Marker& a, const Marker& b) { return a.begin < b.begin; });
  }
  return markers;
}

struct Block {
  Marker start{};
  Marker end{};
};

/// The blocks with both ends, and into `unpaired` the markers that have no other half.
std::vector<Block> BlocksOf(const std::vector<Marker>& markers, std::vector<Marker>* unpaired) {
  std::vector<Block> blocks;
  const Marker* open = nullptr;
  for (const Marker& marker : markers) {
    if (marker.is_start) {
      if (open != nullptr && unpaired != nullptr) unpaired->push_back(*open);
      open = &marker;
    } else if (open != nullptr) {
      blocks.push_back({*open, marker});
      open = nullptr;
    } else if (unpaired != nullptr) {
      unpaired->push_back(marker);
    }
  }
  if (open != nullptr && unpaired != nullptr) unpaired->push_back(*open);
  return blocks;
}

void RemoveBlock(pugi::xml_node root, const Block& block) {
  const pugi::xml_node first = block.start.paragraph;
  const pugi::xml_node last = block.end.paragraph;
  const std::size_t close_end = block.end.begin + block.end.length;
  if (first == last) {
    CutText(last, block.start.begin, close_end - block.start.begin);
  } else {
    RemoveBetween(root, first, last);
    CutText(first, block.start.begin, std::string::npos / 2);
    CutText(last, 0, close_end);
    if (IsEmptyParagraph(first)) RemoveParagraph(first);
  }
  if (IsEmptyParagraph(last)) RemoveParagraph(last);
}

}  // namespace

bool RemoveBlocks(pugi::xml_node root, std::string_view start, std::string_view end) {
  const std::vector<Block> blocks = BlocksOf(MarkersOf(root, start, end), nullptr);
  // From the last to the first, so that what was found before keeps its place.
  for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) RemoveBlock(root, *block);
  return !blocks.empty();
}

std::set<std::string> UnpairedMarkers(pugi::xml_node root, std::string_view start, std::string_view end) {
  std::vector<Marker> unpaired;
  BlocksOf(MarkersOf(root, start, end), &unpaired);
  std::set<std::string> names;
  for (const Marker& marker : unpaired) names.emplace(marker.is_start ? start : end);
  return names;
}

bool RemoveMarkers(pugi::xml_node root, std::string_view marker) {
  bool removed = false;
  for (const pugi::xml_node paragraph : ParagraphsOf(root)) {
    ParagraphText text(paragraph);
    const std::string joined = text.Text();
    std::vector<ParagraphText::Replacement> cuts;
    for (std::size_t from = 0;;) {
      const auto found = FindMarker(std::string_view(joined).substr(from), marker);
      if (!found) break;
      cuts.push_back({.begin = from + found->begin, .length = found->length, .value = {}});
      from += found->begin + found->length;
    }
    if (cuts.empty()) continue;
    text.Replace(cuts);
    text.WriteBack(NoPicture);
    removed = true;
    if (IsEmptyParagraph(paragraph)) RemoveParagraph(paragraph);
  }
  return removed;
}

}  // namespace velmar::presentation
