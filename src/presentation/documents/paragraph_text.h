#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "presentation/documents/placeholders.h"

namespace velmar::presentation {

/// In a paragraph's text: something that is no text (a break, a picture, a field).
inline constexpr char kNoText = '\x01';
/// In a value: here stands the picture.
inline constexpr char kPictureMark = '\x02';
/// Stands for "[" in values while a document is filled, so that a value is never taken for a placeholder.
inline constexpr char kValueBracket = '\x03';

/// The text of one paragraph of a word-processor document. A word processor cuts text into runs as it
/// likes, so that a placeholder may begin in one run and end in the third; here it is one text again. Text
/// boxes inside the paragraph have paragraphs of their own and take no part.
class ParagraphText {
 public:
  explicit ParagraphText(pugi::xml_node paragraph);

  /// The runs' texts joined, with kNoText between texts that something else parts.
  std::string Text() const;

  /// Puts `value` in the place of `length` bytes from `begin` on, into the run in which they begin.
  void Replace(std::size_t begin, std::size_t length, std::string_view value);

  /// A text that takes the place of `length` bytes from `begin` on.
  struct Replacement {
    std::size_t begin = 0;
    std::size_t length = 0;
    std::string_view value{};
  };

  /// Makes all of `replacements`, which rise and do not overlap, in one walk: each goes into the run in which
  /// it begins. Their places are those of Text() as it stands.
  void Replace(const std::vector<Replacement>& replacements);

  /// Takes out `length` bytes from `begin` on, with the breaks, tabulators and pictures among them.
  void Cut(std::size_t begin, std::size_t length);

  /// Writes the changed runs back: a line feed becomes a line break, a tab a tabulator, kPictureMark what
  /// `make_picture` puts into the run.
  void WriteBack(const std::function<void(pugi::xml_node run, pugi::xml_node before)>& make_picture);

  bool Changed() const;

 private:
  struct Piece {
    pugi::xml_node node{};
    bool is_text = false;
    std::string text{};  ///< kNoText when it is none
    bool changed = false;
  };

  void Collect(pugi::xml_node parent);

  std::vector<Piece> pieces_;
};

/// Whether nothing stands in `paragraph`: no text, no picture, no break, no field.
bool IsEmptyParagraph(pugi::xml_node paragraph);

/// Every paragraph below `root`, also inside text boxes, in the order of the document.
std::vector<pugi::xml_node> ParagraphsOf(pugi::xml_node root);

/// Removes `paragraph`; where its container needs one (a cell, a header), it is emptied instead.
void RemoveParagraph(pugi::xml_node paragraph);

/// Puts the values of the known placeholders into `text`; unknown ones stay. A value is never searched for
/// placeholders itself.
void FillPlaceholders(ParagraphText& text, const Placeholders& values);

}  // namespace velmar::presentation
