#include "storage/project/common_part.h"

#include "storage/project/text_rules.h"
#include "storage/project/version_code.h"

namespace velmar::storage {
namespace {

/// Trimmed only after its line breaks are gone: those at an end leave blanks behind.
std::string InformationLine(std::string text) {
  SpianaCRLF(text);
  return std::string(Trimmed(text));
}

}  // namespace

void WriteInformation(LineWriter& out, const elements::ProjectInformation& information) {
  for (std::size_t row = 0; row < information.size(); ++row) {
    const auto& [caption, value] = information.at(row);
    out.Text(InformationLine(caption));
    out.Text(InformationLine(row == elements::kNotesRow ? NotesToLine(value) : value));
  }
}

void ReadInformation(LineCursor& lines, int version_code, elements::ProjectInformation& information) {
  const std::size_t rows =
      version_code >= kCurrentLayout ? elements::kProjectInformationRows : elements::kNotesRow + 1;
  for (std::size_t row = 0; row < rows; ++row) {
    auto& [caption, value] = information.at(row);
    caption = lines.TrimmedText();
    value = lines.TrimmedText();
    if (row == elements::kNotesRow) value = NotesFromLine(value);
  }
}

void WriteStoredCalculation(LineWriter& out, const StoredCalculation& stored) {
  out.Text(stored.family);
  out.Text(stored.variant);
  out.Text(stored.orientation);
}

StoredCalculation ReadStoredCalculation(LineCursor& lines) {
  StoredCalculation stored;
  stored.family = LeftTrimmed(lines.Text());
  stored.variant = LeftTrimmed(lines.Text());
  stored.orientation = lines.TrimmedText();
  return stored;
}

}  // namespace velmar::storage
