#include "storage/profile/studio_profile_store.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <system_error>
#include <vector>

#include "elements/named_texts.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/database/set_aside.h"
#include "storage/files/whole_file.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;
using elements::StudioProfile;

constexpr const char* kFolder = "Studio";
constexpr const char* kFile = "profilo.txt";
constexpr std::string_view kPictureName = "immagine-";
constexpr std::size_t kLargestProfile = 64 * 1024;
/// How far into a file the first element of an SVG picture may stand, behind comments.
constexpr std::size_t kSvgBegin = 4096;

bool IsThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

/// A name inside the folder of the profile, and nothing else.
bool IsOwnName(std::string_view name) {
  return name.empty() || (name.starts_with(kPictureName) && name.find('/') == std::string_view::npos &&
                          name.find('\\') == std::string_view::npos);
}

bool Put(StudioProfile& profile, const std::string& key, const std::string& value) {
  if (key == elements::kStudioLanguageKey) {
    profile.language = elements::LanguageOfCode(value);
    return profile.language.has_value();
  }
  for (const elements::StudioField& field : elements::StudioFields()) {
    if (key == field.key) profile.*field.text = value;
  }
  // An entry of a later version is none of this one's.
  return true;
}

std::optional<StudioProfile> ProfileIn(std::string_view bytes) {
  if (!IsUtf8(bytes) || bytes.find('\0') != std::string_view::npos) return std::nullopt;
  const auto texts = elements::ReadNamedTexts(bytes);
  if (!texts) return std::nullopt;
  StudioProfile profile;
  for (const auto& [key, value] : *texts) {
    if (!Put(profile, key, value)) return std::nullopt;
  }
  if (!IsOwnName(profile.logo) || !IsOwnName(profile.signature)) return std::nullopt;
  return profile;
}

std::string BytesOf(const StudioProfile& profile) {
  elements::NamedTexts texts;
  for (const elements::StudioField& field : elements::StudioFields()) {
    if (const std::string& text = profile.*field.text; !text.empty()) texts.emplace_back(field.key, text);
  }
  if (profile.language) texts.emplace_back(elements::kStudioLanguageKey, elements::CodeOf(*profile.language));
  return elements::WriteNamedTexts(texts);
}

/// FNV-1a: the same picture gets the same name.
std::string NameOf(std::string_view bytes, const std::string& ending) {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
  return std::string(kPictureName) + digits.data() + "." + ending;
}

}  // namespace

std::optional<std::string> PictureEnding(std::string_view bytes) {
  if (bytes.starts_with("\x89PNG\r\n\x1a\n")) return "png";
  if (bytes.starts_with("\xFF\xD8\xFF")) return "jpg";
  const std::string_view begin = bytes.substr(0, kSvgBegin);
  if (begin.find("<svg") != std::string_view::npos && begin.find('\0') == std::string_view::npos)
    return "svg";
  return std::nullopt;
}

StudioProfileStore::StudioProfileStore(const fs::path& data_folder) : folder_(data_folder / kFolder) {}

fs::path StudioProfileStore::File() const { return folder_ / kFile; }

StudioProfile StudioProfileStore::Read() const {
  if (!IsThere(File())) return {};
  const std::optional<StudioProfile> profile = ProfileIn(ReadWhole(File(), kLargestProfile));
  if (profile) return *profile;
  throw Failure({{kStudioDamagedRow, " " + File().string()}, {kStudioDamagedAdviceRow}},
                "damaged studio profile " + File().string());
}

std::optional<fs::path> StudioProfileStore::Write(const StudioProfile& profile) const {
  std::optional<fs::path> kept;
  bool damaged = false;
  try {
    (void)Read();
  } catch (const Failure&) {
    damaged = true;
  }
  if (damaged) kept = SetAside(File());
  std::error_code ignored;
  fs::create_directories(folder_, ignored);
  WriteWhole(File(), BytesOf(profile));
  ForgetPictures(profile);
  return kept;
}

void StudioProfileStore::ForgetPictures(const StudioProfile& profile) const {
  std::error_code error;
  std::vector<fs::path> left;
  for (fs::directory_iterator entry(folder_, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with(kPictureName) && name != profile.logo && name != profile.signature)
      left.push_back(entry->path());
  }
  for (const fs::path& picture : left) fs::remove(picture, error);
}

std::string StudioProfileStore::KeepPicture(const fs::path& source) const {
  const std::string bytes = ReadWhole(source, kLargestStudioPicture);
  const std::optional<std::string> ending = PictureEnding(bytes);
  if (!ending) throw Failure({{kStudioBadPictureRow}, {source.string()}}, "no picture: " + source.string());
  std::error_code ignored;
  fs::create_directories(folder_, ignored);
  std::string name = NameOf(bytes, *ending);
  WriteWhole(folder_ / name, bytes);
  return name;
}

std::string StudioProfileStore::Picture(const std::string& name) const {
  return ReadWhole(folder_ / name, kLargestStudioPicture);
}

}  // namespace velmar::storage
