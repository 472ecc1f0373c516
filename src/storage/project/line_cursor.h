#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "foundation/message.h"

namespace velmar::storage {

/// Reads a project file line by line, each line as the kind of value that is due. Every function throws
/// ProjectFileFailure, with the line's number, when the file ends or the line is of another kind.
class LineCursor {
 public:
  /// @param bytes the file; must outlive the cursor. Lines end in CR LF, CR or LF. Text is Windows-1252, or
  ///        UTF-8 behind a byte order mark.
  explicit LineCursor(std::string_view bytes);

  /// The next line in UTF-8, as it stands.
  std::string Text();
  /// The next line without blanks at both ends.
  std::string TrimmedText();
  /// A finite number, decimal comma or point.
  double Number();
  float Single();
  /// A number that, rounded to even, lies between `lowest` and `highest`.
  int Integer(int lowest, int highest);
  /// The same, with the line as it stands.
  int Integer(int lowest, int highest, std::string& text);
  /// "Vero" or "True", "Falso" or "False", in any case.
  bool Boolean();
  /// The place among `words` of the word that the line is, in any case.
  int Choice(std::span<const std::string_view> words);
  int Choice(std::initializer_list<std::string_view> words) {
    return Choice(std::span(words.begin(), words.size()));
  }
  /// An empty line.
  void Blank();
  /// A line that begins with `beginning`, in any case.
  void Label(std::string_view beginning);

  /// Whether the next line is one of `words`, in any case. The line stays to be read.
  bool NextIsOneOf(std::initializer_list<std::string_view> words) const;

  /// Whether nothing but empty lines is left.
  bool OnlyBlankLinesFollow() const;

  /// The number of the line read last, from 1; 0 before the first.
  int LineNumber() const { return line_number_; }

  /// Ends the reading at the line read last.
  /// @param what the words behind "Riga n: "
  /// @param detail the same in English
  [[noreturn]] void Fail(MessageLine what, const std::string& detail) const;

 private:
  std::string_view NextLine();

  std::string_view rest_;
  bool utf8_ = false;
  int line_number_ = 0;
};

}  // namespace velmar::storage
