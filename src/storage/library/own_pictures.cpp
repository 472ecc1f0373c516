#include "storage/library/own_pictures.h"

#include <system_error>

#include "storage/files/store_failure.h"
#include "storage/files/whole_file.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPictureSizeLimit = std::size_t{32} * 1024 * 1024;

bool Exists(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

}  // namespace

std::string KeepPicture(const fs::path& pictures, const std::string& folder, const fs::path& file) {
  const fs::path place = pictures / folder;
  std::error_code error;
  fs::create_directories(place, error);
  if (error) throw StoreFailure(StoreAction::kWrite, error.value(), place.string(), PreviousFile::kNone);
  if (fs::equivalent(file.parent_path(), place, error) && !error) return file.filename().string();
  const std::string bytes = ReadWhole(file, kPictureSizeLimit);
  fs::path target = place / file.filename();
  for (int number = 2; Exists(target); ++number) {
    if (ReadWhole(target, kPictureSizeLimit) == bytes) return target.filename().string();
    target = place / (file.stem().string() + "-" + std::to_string(number) + file.extension().string());
  }
  WriteWhole(target, bytes);
  return target.filename().string();
}

}  // namespace velmar::storage
