#pragma once

#include <string>
#include <string_view>

namespace velmar::storage {

/// Cuts `text` in place before its first line break and trims it of blanks.
/// @return the same text
std::string TagliaAlPrimoCR(std::string& text);

/// Replaces each line break of `text` (CR LF, or a CR or LF alone) with one blank, in place.
void SpianaCRLF(std::string& text);

/// What becomes of a line break in a material's name or description: a project file has no place for it.
enum class LineBreaks {
  kBlank,  ///< SpianaCRLF()
  kCut     ///< TagliaAlPrimoCR(): the SEA families and the floors
};

/// `text` after the rule `breaks`.
std::string WithoutLineBreaks(std::string text, LineBreaks breaks);

/// The notes as one line: each line break becomes "{".
std::string NotesToLine(std::string_view notes);
/// The notes of their line: each "{" becomes CR LF, also one that the user typed.
std::string NotesFromLine(std::string_view line);

/// `text` without blanks (20 hex) at both ends.
std::string_view Trimmed(std::string_view text);
/// `text` without blanks at its beginning.
std::string_view LeftTrimmed(std::string_view text);
/// Whether the texts are equal when blanks at the ends and the case of ASCII letters are ignored.
bool SameWord(std::string_view a, std::string_view b);

}  // namespace velmar::storage
