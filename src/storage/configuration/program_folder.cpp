#include "storage/configuration/program_folder.h"

#include <initializer_list>
#include <system_error>

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

std::optional<fs::path> FirstThatHolds(const fs::path& program, std::initializer_list<const char*> folders,
                                       const char* content) {
  for (const char* folder : folders) {
    std::error_code error;
    const fs::path found = (program / folder).lexically_normal();
    if (fs::exists(found / content, error)) return found;
  }
  return std::nullopt;
}

}  // namespace

fs::path ProgramFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

std::optional<fs::path> ShippedDataFolder(const fs::path& program) {
  return FirstThatHolds(
      program, {"../share/velmarpro", "share/velmarpro", "../../share/velmarpro", "../../../share/velmarpro"},
      "Databases");
}

fs::path ManualFile(const fs::path& program) {
  constexpr const char* kName = "VELMARpro - Manuale d'uso.pdf";
  return FirstThatHolds(program, {".", "../share/doc/velmarpro"}, kName).value_or(program) / kName;
}

fs::path ManualText(const fs::path& program) {
  constexpr const char* kName = "manuale/manuale.md";
  return FirstThatHolds(program, {".", "../share/doc/velmarpro"}, kName).value_or(program) / kName;
}

std::optional<fs::path> AccessReaderProgram(const fs::path& program) {
  constexpr const char* kName = "velmar-access-reader";
  const auto folder =
      FirstThatHolds(program,
                     {".", "../lib/velmarpro", "../access_reader", "apps/access_reader",
                      "../apps/access_reader", "../../apps/access_reader", "../../../apps/access_reader"},
                     kName);
  if (!folder) return std::nullopt;
  return *folder / kName;
}

}  // namespace velmar::storage
