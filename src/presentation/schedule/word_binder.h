#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "presentation/documents/package.h"
#include "presentation/schedule/bound_parts.h"
#include "presentation/schedule/bound_styles.h"

namespace velmar::presentation {

/// One document out of several: each begins on a new page as a chapter under a heading of its own ("heading
/// 1"), with its own header, footer and page format, its pictures, lists and notes.
class WordBinder {
 public:
  /// @param docx the document around the chapters: they take the place of the paragraph "[A_CAPITOLI]", the
  ///             list of contents that of "[A_INDICE]"
  /// @throws TemplateFailure when it has no place for chapters, or is no document
  explicit WordBinder(std::string_view docx);

  /// Puts `docx` behind the chapters that are there. @throws TemplateFailure when it is no document
  void Add(const std::string& heading, std::string_view docx);

  /// The document as it stands now, with its list of contents.
  std::string Bytes();

 private:
  void TakeStyles(const Package& chapter, pugi::xml_node body);
  void TakeLinks(const Package& chapter, const std::string& main_part, pugi::xml_node body);
  void TakeNumbers(const Package& chapter, const std::string& main_part, pugi::xml_node body);
  void TakeNamespaces(pugi::xml_node chapter_root);
  void TakeBookmarks(pugi::xml_node body);
  void NumberDrawings(pugi::xml_node root);
  pugi::xml_node PartOfKind(std::string_view kind);
  /// Ends the document with the section of its last chapter: what the template has behind the chapters in a
  /// section that goes on stands below it, and no empty page follows.
  void CloseLastChapter();
  void FillContents();

  Package package_;
  std::string main_part_;
  pugi::xml_document document_{};
  pugi::xml_node body_{};
  pugi::xml_node place_{};  ///< the paragraph before which the next chapter goes
  BoundParts parts_;
  std::string styles_part_;
  BoundStyles styles_;
  std::map<std::string, pugi::xml_document> lists_{};  ///< numbering and notes, by their part
  std::set<std::string> bookmarks_{};
  std::uint32_t next_drawing_ = 1;
  int next_bookmark_ = 1;
  std::size_t chapters_ = 0;
};

}  // namespace velmar::presentation
