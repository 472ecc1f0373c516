#include "storage/project/text_rules.h"

#include <algorithm>

namespace velmar::storage {
namespace {

/// `text` with `replacement` in place of each line break.
std::string ReplacedBreaks(std::string_view text, std::string_view replacement) {
  std::string line;
  line.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool carriage_return = text[i] == '\r';
    if (!carriage_return && text[i] != '\n') {
      line.push_back(text[i]);
      continue;
    }
    if (carriage_return && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    line += replacement;
  }
  return line;
}

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string TagliaAlPrimoCR(std::string& text) {
  text.resize(std::min(text.find_first_of("\r\n"), text.size()));
  text = std::string(Trimmed(text));
  return text;
}

void SpianaCRLF(std::string& text) { text = ReplacedBreaks(text, " "); }

std::string WithoutLineBreaks(std::string text, LineBreaks breaks) {
  if (breaks == LineBreaks::kCut) return TagliaAlPrimoCR(text);
  SpianaCRLF(text);
  return text;
}

std::string NotesToLine(std::string_view notes) { return ReplacedBreaks(notes, "{"); }

std::string NotesFromLine(std::string_view line) {
  std::string notes;
  notes.reserve(line.size());
  for (const char c : line) {
    if (c == '{') {
      notes += "\r\n";
    } else {
      notes.push_back(c);
    }
  }
  return notes;
}

std::string_view LeftTrimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view Trimmed(std::string_view text) {
  text = LeftTrimmed(text);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool SameWord(std::string_view a, std::string_view b) {
  return std::ranges::equal(Trimmed(a), Trimmed(b), {}, LowerCase, LowerCase);
}

}  // namespace velmar::storage
