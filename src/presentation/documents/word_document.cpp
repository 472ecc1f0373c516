#include "presentation/documents/word_document.h"

#include <algorithm>
#include <array>

#include "foundation/message_rows.h"
#include "presentation/documents/outside_links.h"
#include "presentation/documents/paragraph_text.h"
#include "presentation/documents/picture_parts.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/word_blocks.h"
#include "presentation/documents/word_picture.h"
#include "presentation/documents/word_room.h"
#include "presentation/documents/word_rows.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr std::array<std::string_view, 4> kStoryKinds = {"header", "footer", "footnotes", "endnotes"};

/// A value as it may stand in a document that is still being filled.
std::string Guarded(std::string_view value) {
  std::string text = LegalText(value);
  std::ranges::replace(text, '[', kValueBracket);
  return text;
}

Placeholders Guarded(const Placeholders& values) {
  Placeholders guarded;
  for (const auto& [name, value] : values) guarded.emplace(name, Guarded(value));
  return guarded;
}

void Guard(WordContent& content) {
  content.text = Guarded(content.text);
  for (std::string& head : content.table.heads) head = Guarded(head);
  for (auto& row : content.table.rows) {
    for (std::string& cell : row) cell = Guarded(cell);
  }
}

void RestoreBrackets(pugi::xml_node root) {
  for (const pugi::xml_node paragraph : ParagraphsOf(root)) {
    ParagraphText text(paragraph);
    const std::string joined = text.Text();
    std::vector<ParagraphText::Replacement> brackets;
    for (std::size_t at = joined.find(kValueBracket); at != std::string::npos;
         at = joined.find(kValueBracket, at + 1)) {
      brackets.push_back({.begin = at, .length = 1, .value = "["});
    }
    if (brackets.empty()) continue;
    text.Replace(brackets);
    text.WriteBack([](pugi::xml_node, pugi::xml_node) {});
  }
}

}  // namespace

WordDocument::WordDocument(std::string_view docx)
    : package_(docx), main_part_(MainPart(package_, "wordprocessingml")) {
  RefuseDoctypes(package_);
  CutOutsideLinks(package_);
  std::vector<std::string> names = {main_part_};
  for (const std::string_view kind : kStoryKinds) {
    const std::vector<std::string> targets = TargetsOf(package_, main_part_, kind);
    names.insert(names.end(), targets.begin(), targets.end());
  }
  for (const std::string& name : names) {
    if (std::ranges::count(parts_, name, &StoryPart::name) > 0) continue;
    parts_.push_back({.name = name, .xml = ParseXml(package_.Part(name), name)});
    if (!std::string_view(parts_.back().xml.document_element().name()).starts_with("w:")) {
      throw TemplateFailure(kTemplateDamagedRow, name + ": not a word-processor part");
    }
  }
  if (!parts_.front().xml.document_element().child("w:body")) {
    throw TemplateFailure(kTemplateDamagedRow, main_part_ + ": no body");
  }
}

void WordDocument::RepeatRows(const RowPattern& pattern) {
  RowPattern guarded = pattern;
  for (PatternRow& row : guarded.rows) row.values = Guarded(row.values);
  for (StoryPart& part : parts_) part.changed |= RepeatPatternRows(part.xml, guarded);
}

void WordDocument::RemoveBlock(std::string_view start, std::string_view end) {
  for (StoryPart& part : parts_) part.changed |= RemoveBlocks(part.xml, start, end);
}

std::set<std::string> WordDocument::Unpaired(std::string_view start, std::string_view end) const {
  std::set<std::string> unpaired;
  for (const StoryPart& part : parts_) unpaired.merge(UnpairedMarkers(part.xml, start, end));
  return unpaired;
}

std::vector<WidePicture> WordDocument::WidePictures(
    const std::map<std::string, std::int64_t>& widths_emu) const {
  std::vector<WidePicture> wide;
  for (const StoryPart& part : parts_) {
    const std::int64_t page = PageRoom(parts_.front().xml);
    for (const pugi::xml_node paragraph : ParagraphsOf(part.xml)) {
      const std::int64_t room = RoomOf(paragraph, page);
      for (const auto& [name, width] : widths_emu) {
        if (width > room && HoldsPlaceholder(ParagraphText(paragraph).Text(), name))
          wide.push_back({"[" + name + "]", width, room});
      }
      for (const WidePicture& picture : PicturesIn(paragraph)) {
        if (picture.width_emu > room) wide.push_back({picture.name, picture.width_emu, room});
      }
    }
  }
  return wide;
}

void WordDocument::RemoveMarker(std::string_view marker) {
  for (StoryPart& part : parts_) part.changed |= RemoveMarkers(part.xml, marker);
}

void WordDocument::ReplaceIn(StoryPart& part, pugi::xml_node paragraph, const Placeholders& values,
                             const std::function<void(pugi::xml_node, pugi::xml_node)>& make_picture) {
  ParagraphText text(paragraph);
  FillPlaceholders(text, values);
  if (!text.Changed()) return;
  part.changed = true;
  const bool empty = text.Text().empty();
  text.WriteBack(make_picture);
  if (empty && IsEmptyParagraph(paragraph)) RemoveParagraph(paragraph);
}

void WordDocument::Replace(const Placeholders& values) {
  const Placeholders guarded = Guarded(values);
  for (StoryPart& part : parts_) {
    for (const pugi::xml_node paragraph : ParagraphsOf(part.xml)) {
      ReplaceIn(part, paragraph, guarded, [](pugi::xml_node, pugi::xml_node) {});
    }
  }
}

void WordDocument::ReplaceByPicture(std::string_view name, const Picture& picture) {
  ReplaceByPictures({{std::string(name), picture}});
}

void WordDocument::ReplaceByPictures(const std::map<std::string, Picture>& pictures) {
  std::map<std::string, PictureParts> media;
  std::uint32_t number = 1;
  for (const StoryPart& part : parts_) number = std::max(number, FreeDrawingNumber(part.xml));
  for (StoryPart& part : parts_) {
    std::map<std::string, PictureLinks> links;
    const auto insert = [&](const std::string& name, pugi::xml_node run, pugi::xml_node before) {
      const Picture& picture = pictures.at(name);
      PictureParts& files = media[name];
      if (files.png.empty()) files = AddPictureParts(package_, "word/media", picture);
      PictureLinks& link = links[name];
      if (link.png.empty()) {
        link.png = AddRelationship(package_, part.name, kImageRelationship, files.png);
        if (!files.svg.empty())
          link.svg = AddRelationship(package_, part.name, kImageRelationship, files.svg);
      }
      InsertDrawing(run, before, picture, link, number++);
    };
    for (const pugi::xml_node paragraph : ParagraphsOf(part.xml)) {
      const std::string text = ParagraphText(paragraph).Text();
      std::vector<std::string> names;
      Placeholders marks;
      for (auto found = FindPlaceholder(text, 0); found;
           found = FindPlaceholder(text, found->begin + found->length)) {
        if (!pictures.contains(found->name)) continue;
        names.push_back(found->name);
        marks.emplace(found->name, std::string(1, kPictureMark));
      }
      if (names.empty()) continue;
      auto next = names.begin();
      ReplaceIn(part, paragraph, marks,
                [&](pugi::xml_node run, pugi::xml_node before) { insert(*next++, run, before); });
    }
  }
}

void WordDocument::ReplaceByContent(std::string_view name, const std::vector<WordContent>& content) {
  const Placeholders nothing = {{std::string(name), ""}};
  for (StoryPart& part : parts_) {
    for (const pugi::xml_node paragraph : ParagraphsOf(part.xml)) {
      if (!HoldsPlaceholder(ParagraphText(paragraph).Text(), name)) continue;
      for (WordContent block : content) {
        Guard(block);
        InsertContent(paragraph, block);
      }
      ReplaceIn(part, paragraph, nothing, [](pugi::xml_node, pugi::xml_node) {});
    }
  }
}

std::set<std::string> WordDocument::Left() const {
  std::set<std::string> left;
  for (const StoryPart& part : parts_) {
    for (const pugi::xml_node paragraph : ParagraphsOf(part.xml)) {
      const std::string text = ParagraphText(paragraph).Text();
      for (std::size_t from = 0;;) {
        const auto found = FindPlaceholder(text, from);
        if (!found) break;
        left.insert("[" + found->name + "]");
        from = found->begin + found->length;
      }
    }
  }
  return left;
}

std::string WordDocument::Bytes() {
  for (StoryPart& part : parts_) {
    if (!part.changed) continue;
    RestoreBrackets(part.xml);
    package_.Put(part.name, XmlBytes(part.xml));
  }
  return package_.Bytes();
}

}  // namespace velmar::presentation
