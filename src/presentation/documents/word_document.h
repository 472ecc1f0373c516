#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "presentation/documents/document_properties.h"
#include "presentation/documents/package.h"
#include "presentation/documents/picture.h"
#include "presentation/documents/placeholders.h"
#include "presentation/documents/word_content.h"

namespace velmar::presentation {

/// One row to be made out of a table's pattern row.
struct PatternRow {
  bool heading = false;  ///< made of the heading pattern
  Placeholders values{};
};

/// Where the rows of a table come from: a table row that holds one of `keys` is a pattern, repeated for each
/// of `rows`. The row before it is the pattern of headings when it holds `heading_key`.
struct RowPattern {
  std::vector<std::string_view> keys{};
  std::string_view heading_key{};
  std::vector<PatternRow> rows{};
};

/// A picture that is wider than where it stands.
struct WidePicture {
  std::string name{};
  std::int64_t width_emu = 0;
  std::int64_t room_emu = 0;
};

/// A word-processor document made from a template: text, headers, footers, notes and text boxes alike.
class WordDocument {
 public:
  /// @throws TemplateFailure when `docx` is none, or cannot be trusted
  explicit WordDocument(std::string_view docx);

  /// Repeats the pattern rows of all tables.
  void RepeatRows(const RowPattern& pattern);

  /// Removes all that stands from marker `start` to marker `end`, both included.
  void RemoveBlock(std::string_view start, std::string_view end);

  /// Which of the markers `start` and `end` stand without their other half.
  std::set<std::string> Unpaired(std::string_view start, std::string_view end) const;

  /// Removes the marker itself, with its paragraph when nothing else stands there.
  void RemoveMarker(std::string_view marker);

  /// Replaces every known placeholder. A paragraph in which nothing but empty values stood goes.
  void Replace(const Placeholders& values);

  /// Puts `picture` in the place of placeholder `name`, wherever it stands.
  void ReplaceByPicture(std::string_view name, const Picture& picture);

  /// The same for many placeholders in one walk.
  void ReplaceByPictures(const std::map<std::string, Picture>& pictures);

  /// Puts `content` before each paragraph that holds placeholder `name`, which goes.
  void ReplaceByContent(std::string_view name, const std::vector<WordContent>& content);

  /// The pictures whose place is narrower than they are: the placeholders of `widths_emu`, and those that the
  /// template brings, by their names. The place is the cell, or the page between its margins.
  std::vector<WidePicture> WidePictures(const std::map<std::string, std::int64_t>& widths_emu) const;

  void SetProperties(const DocumentProperties& properties) { SetDocumentProperties(package_, properties); }

  /// The placeholders that are still there.
  std::set<std::string> Left() const;

  /// The document as it stands now.
  std::string Bytes();

 private:
  struct StoryPart {
    std::string name{};
    pugi::xml_document xml{};
    bool changed = false;
  };

  void ReplaceIn(StoryPart& part, pugi::xml_node paragraph, const Placeholders& values,
                 const std::function<void(pugi::xml_node, pugi::xml_node)>& make_picture);

  Package package_;
  std::string main_part_;
  std::deque<StoryPart> parts_;
};

}  // namespace velmar::presentation
