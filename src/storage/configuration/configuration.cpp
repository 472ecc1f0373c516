#include "storage/configuration/configuration.h"

#include <algorithm>
#include <cstdint>
#include <system_error>
#include <utility>

#include "storage/configuration/profile_file.h"

namespace velmar::storage {

namespace fs = std::filesystem;

Configuration::Configuration(std::string language, std::string data_folder)
    : language_(std::move(language)), data_folder_(std::move(data_folder)) {}

fs::path Configuration::Below(const char* name) const { return data_folder_ + "/" + name; }

Configuration ReadConfiguration(const fs::path& ini_file, const fs::path& documents) {
  constexpr const char* kSection = "Configurazione";
  std::string language = LeggiIni(kSection, "Lingua", ini_file);
  std::string data_folder = LeggiIni(kSection, "CartellaDati", ini_file);
  if (language.empty()) language = kDefaultLanguage;
  if (data_folder.empty()) {
    data_folder = documents.string() + "/VELMARpro";
  } else {
    data_folder = WithPlatformSeparators(std::move(data_folder));
  }
  return {std::move(language), std::move(data_folder)};
}

std::string WithPlatformSeparators(std::string path) {
  std::ranges::replace(path, '\\', static_cast<char>(fs::path::preferred_separator));
  return path;
}

bool EsisteFile(const fs::path& path) {
  std::error_code error;
  const bool found = fs::file_size(path, error) != static_cast<std::uintmax_t>(-1);
  return found && !error;
}

}  // namespace velmar::storage
