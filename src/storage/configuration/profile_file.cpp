#include "storage/configuration/profile_file.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>

#include <INIReader.h>

#include "foundation/utf8.h"
#include "storage/files/windows_1252.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestFile = 1U << 20U;
constexpr std::string_view kBlanks = " \t\r";
/// The parser's lines hold 200 bytes; a longer value goes on in the next line, behind this mark.
constexpr std::size_t kPieceLength = 100;
constexpr char kContinued = '\x02';
/// Stands for a semicolon, which the parser would take for a comment.
constexpr char kSemicolon = '\x01';

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string TextOf(const fs::path& file) {
  // Opening a pipe would wait for its other end.
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return {};
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(kLargestFile, '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  std::erase(bytes, '\0');
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
  return IsUtf8(bytes) ? bytes : Utf8FromWindows1252(bytes);
}

/// `line` in the form that the parser hands back unharmed.
void AppendForParser(std::string& text, std::string_view line) {
  line = Trimmed(line);
  const std::size_t equals = line.find('=');
  if (line.empty() || line.front() == ';' || line.front() == '[' || equals == std::string_view::npos) {
    if (line.size() < kPieceLength) text += line;
    text += '\n';
    return;
  }
  const std::string_view key = Trimmed(line.substr(0, equals));
  std::string value(Trimmed(line.substr(equals + 1)));
  if (key.size() >= kPieceLength) return;
  std::ranges::replace(value, ';', kSemicolon);
  text.append(key).append("=").append(value, 0, kPieceLength);
  if (value.size() > kPieceLength) text += kContinued;
  text += '\n';
  for (std::size_t at = kPieceLength; at < value.size(); at += kPieceLength) {
    // The marks at both ends keep blanks there from being cut off.
    text.append(" ").append(1, kContinued).append(value, at, kPieceLength).append(1, kContinued) += '\n';
  }
}

/// The first value of those that the parser joined, whole again.
std::string FirstValue(const std::string& joined) {
  std::string value;
  std::istringstream lines(joined);
  std::string line;
  for (bool first = true; std::getline(lines, line); first = false) {
    if (!first && (line.empty() || line.front() != kContinued)) break;
    value += line;
  }
  std::erase(value, kContinued);
  std::ranges::replace(value, kSemicolon, ';');
  return value;
}

std::string Unquoted(std::string value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

std::string LeggiIni(const std::string& section, const std::string& key, const fs::path& file) {
  std::istringstream lines(TextOf(file));
  std::string text;
  for (std::string line; std::getline(lines, line);) AppendForParser(text, line);
  const INIReader reader(text.c_str(), text.size());
  return FirstCharacters(Unquoted(FirstValue(reader.Get(section, key, ""))), kProfileValueLength);
}

}  // namespace velmar::storage
