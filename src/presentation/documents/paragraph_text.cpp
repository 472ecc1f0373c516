#include "presentation/documents/paragraph_text.h"

#include <algorithm>
#include <array>

namespace velmar::presentation {
namespace {

bool Is(pugi::xml_node node, const char* name) { return std::string_view(node.name()) == name; }

/// What holds no text of the paragraph itself: properties, deleted text, paragraphs of its own.
bool IsAside(pugi::xml_node node) {
  constexpr std::array<std::string_view, 8> kAside = {"w:p",   "w:pPr",      "w:rPr",    "w:txbxContent",
                                                      "w:del", "w:moveFrom", "w:sectPr", "w:tbl"};
  return std::ranges::find(kAside, std::string_view(node.name())) != kAside.end();
}

/// What parts the texts before and behind it.
bool Parts(pugi::xml_node node) {
  constexpr std::array<std::string_view, 12> kParting = {"w:tab",
                                                         "w:br",
                                                         "w:cr",
                                                         "w:drawing",
                                                         "w:pict",
                                                         "w:object",
                                                         "w:fldChar",
                                                         "w:sym",
                                                         "w:ptab",
                                                         "mc:AlternateContent",
                                                         "w:footnoteReference",
                                                         "w:endnoteReference"};
  return std::ranges::find(kParting, std::string_view(node.name())) != kParting.end();
}

void AppendText(pugi::xml_node run, pugi::xml_node before, const std::string& text) {
  if (text.empty()) return;
  pugi::xml_node node = run.insert_child_before("w:t", before);
  node.append_attribute("xml:space") = "preserve";
  node.append_child(pugi::node_pcdata).set_value(text.c_str());
}

}  // namespace

ParagraphText::ParagraphText(pugi::xml_node paragraph) { Collect(paragraph); }

void ParagraphText::Collect(pugi::xml_node parent) {
  for (const pugi::xml_node node : parent.children()) {
    if (Is(node, "w:t")) {
      pieces_.push_back({.node = node, .is_text = true, .text = node.text().get()});
    } else if (Parts(node)) {
      pieces_.push_back({.node = node, .is_text = false, .text = std::string(1, kNoText)});
    } else if (!IsAside(node)) {
      Collect(node);
    }
  }
}

std::string ParagraphText::Text() const {
  std::string text;
  for (const Piece& piece : pieces_) text += piece.text;
  return text;
}

void ParagraphText::Replace(std::size_t begin, std::size_t length, std::string_view value) {
  Replace({{.begin = begin, .length = length, .value = value}});
}

void ParagraphText::Replace(const std::vector<Replacement>& replacements) {
  std::size_t offset = 0;
  auto next = replacements.begin();
  bool placed = false;
  for (Piece& piece : pieces_) {
    const std::size_t end = offset + piece.text.size();
    if (!piece.is_text) {
      offset = end;
      continue;
    }
    std::string text;
    std::size_t kept = offset;  // up to here the piece has been copied
    for (; next != replacements.end(); ++next, placed = false) {
      const std::size_t from = std::max(next->begin, offset);
      const std::size_t to = std::min(next->begin + next->length, end);
      if (next->begin + next->length <= offset) continue;
      if (from >= to) break;
      text.append(piece.text, kept - offset, from - kept);
      if (!placed) text.append(next->value);
      placed = true;
      kept = to;
      piece.changed = true;
      if (next->begin + next->length > end) break;
    }
    if (kept > offset) {
      text.append(piece.text, kept - offset, end - kept);
      piece.text = std::move(text);
    }
    offset = end;
  }
}

void ParagraphText::Cut(std::size_t begin, std::size_t length) {
  std::size_t offset = 0;
  for (Piece& piece : pieces_) {
    const std::size_t end = offset + piece.text.size();
    // A field's marks come in pairs, of which one may lie outside.
    if (!piece.is_text && offset >= begin && end <= begin + length && !Is(piece.node, "w:fldChar")) {
      piece.node.parent().remove_child(piece.node);
      piece.node = {};
    }
    offset = end;
  }
  Replace(begin, length, {});
  std::erase_if(pieces_, [](const Piece& piece) { return !piece.node; });
}

bool ParagraphText::Changed() const { return std::ranges::any_of(pieces_, &Piece::changed); }

void ParagraphText::WriteBack(const std::function<void(pugi::xml_node, pugi::xml_node)>& make_picture) {
  for (Piece& piece : pieces_) {
    if (!piece.changed) continue;
    pugi::xml_node run = piece.node.parent();
    std::string part;
    for (const char c : piece.text) {
      if (c != '\n' && c != '\t' && c != kPictureMark) {
        part += c;
        continue;
      }
      AppendText(run, piece.node, part);
      part.clear();
      if (c == kPictureMark) {
        make_picture(run, piece.node);
      } else {
        run.insert_child_before(c == '\n' ? "w:br" : "w:tab", piece.node);
      }
    }
    AppendText(run, piece.node, part);
    run.remove_child(piece.node);
    piece.node = {};
    piece.changed = false;
  }
}

bool IsEmptyParagraph(pugi::xml_node paragraph) {
  if (paragraph.child("w:pPr").child("w:sectPr")) return false;
  return ParagraphText(paragraph).Text().empty();
}

std::vector<pugi::xml_node> ParagraphsOf(pugi::xml_node root) {
  std::vector<pugi::xml_node> paragraphs;
  for (const pugi::xml_node node : root.children()) {
    if (Is(node, "w:p")) paragraphs.push_back(node);
    const std::vector<pugi::xml_node> inner = ParagraphsOf(node);
    paragraphs.insert(paragraphs.end(), inner.begin(), inner.end());
  }
  return paragraphs;
}

void RemoveParagraph(pugi::xml_node paragraph) {
  pugi::xml_node container = paragraph.parent();
  const auto is_content = [](pugi::xml_node node) {
    return Is(node, "w:p") || Is(node, "w:tbl") || Is(node, "w:sdt");
  };
  // The last block of a cell must be a paragraph, also behind a table; any other container needs one block.
  bool needed = true;
  for (pugi::xml_node node = paragraph.next_sibling(); node && needed; node = node.next_sibling()) {
    needed = !Is(node, "w:p");
  }
  if (needed) {
    for (pugi::xml_node node = paragraph.previous_sibling(); node; node = node.previous_sibling()) {
      if (!is_content(node)) continue;
      needed = !Is(node, "w:p");
      break;
    }
  }
  if (!needed) {
    container.remove_child(paragraph);
    return;
  }
  for (pugi::xml_node node = paragraph.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    if (!Is(node, "w:pPr")) paragraph.remove_child(node);
    node = next;
  }
}

void FillPlaceholders(ParagraphText& text, const Placeholders& values) {
  const std::string joined = text.Text();
  std::vector<ParagraphText::Replacement> replacements;
  for (std::size_t from = 0;;) {
    const auto found = FindPlaceholder(joined, from);
    if (!found) break;
    from = found->begin + found->length;
    const auto value = values.find(found->name);
    if (value == values.end()) continue;
    replacements.push_back({.begin = found->begin, .length = found->length, .value = value->second});
  }
  if (!replacements.empty()) text.Replace(replacements);
}

}  // namespace velmar::presentation
