#include "storage/configuration/documents_folder.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/file_system.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

std::string WithoutEscapes(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 1 < text.size()) ++i;
    plain += text[i];
  }
  return plain;
}

/// The folder that a line XDG_DOCUMENTS_DIR="$HOME/..." names; empty when the line is none.
fs::path FolderOfLine(std::string_view line, const fs::path& home) {
  constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=\"";
  constexpr std::string_view kHome = "$HOME";
  const std::size_t first = line.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  line.remove_prefix(first);
  const std::size_t end = line.rfind('"');
  if (!line.starts_with(kKey) || end < kKey.size()) return {};
  const std::string_view value = line.substr(kKey.size(), end - kKey.size());
  if (value.starts_with(kHome)) {
    std::string_view rest = value.substr(kHome.size());
    while (rest.starts_with('/')) rest.remove_prefix(1);
    return rest.empty() ? home : home / WithoutEscapes(rest);
  }
  const fs::path folder = WithoutEscapes(value);
  return folder.is_absolute() ? folder : fs::path();
}

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

fs::path CartellaDocumenti(const fs::path& home, const fs::path& settings) {
  std::ifstream lines(settings / "user-dirs.dirs");
  fs::path named;
  for (std::string line; std::getline(lines, line);) {
    if (fs::path folder = FolderOfLine(line, home); !folder.empty()) named = std::move(folder);
  }
  if (!named.empty()) return named;
  std::error_code error;
  if (!fs::is_directory(home / "Documents", error) && fs::is_directory(home / "Documenti", error)) {
    return home / "Documenti";
  }
  return home / "Documents";
}

fs::path CartellaDocumenti() {
  const fs::path home = platform::HomeFolder();
  const std::string settings = Variable("XDG_CONFIG_HOME");
  return CartellaDocumenti(home, settings.empty() ? home / ".config" : fs::path(settings));
}

}  // namespace velmar::storage
