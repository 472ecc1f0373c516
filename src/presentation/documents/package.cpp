#include "presentation/documents/package.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "foundation/message_rows.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/zip_archive.h"

namespace velmar::presentation {
namespace {

/// The first bytes of a compound file, which is how an office program stores a document with a password.
constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

bool LeavesThePackage(std::string_view name) {
  if (name.empty() || name.front() == '/') return true;
  if (std::ranges::any_of(
          name, [](char c) { return c == '\\' || c == ':' || static_cast<unsigned char>(c) < 0x20; }))
    return true;
  std::size_t begin = 0;
  while (begin <= name.size()) {
    const std::size_t end = std::min(name.find('/', begin), name.size());
    if (name.substr(begin, end - begin) == "..") return true;
    begin = end + 1;
  }
  return false;
}

std::string FoldedName(std::string_view name) {
  std::string folded(name);
  std::ranges::transform(folded, folded.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return folded;
}

zip_stat_t StatOf(zip_t* archive, zip_uint64_t index) {
  zip_stat_t stat;
  zip_stat_init(&stat);
  if (zip_stat_index(archive, index, 0, &stat) != 0 || (stat.valid & ZIP_STAT_NAME) == 0 ||
      (stat.valid & ZIP_STAT_SIZE) == 0) {
    throw TemplateFailure(kTemplateDamagedRow, "ZIP: an entry cannot be read");
  }
  if ((stat.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && stat.encryption_method != ZIP_EM_NONE) {
    throw TemplateFailure(kTemplateProtectedRow, std::string("encrypted part: ") + stat.name);
  }
  if (LeavesThePackage(stat.name)) {
    throw TemplateFailure(kTemplateHostileRow, std::string("name leaves the package: ") + stat.name);
  }
  if (stat.size > Package::kMostBytesOfAPart) {
    throw TemplateFailure(kTemplateTooLargeRow, std::string("too large: ") + stat.name);
  }
  return stat;
}

/// Reads as much as the directory promises, and one byte more to see that it kept its promise.
std::string ReadEntry(zip_t* archive, zip_uint64_t index, const zip_stat_t& stat) {
  struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
  };
  const std::unique_ptr<zip_file_t, CloseFile> file(zip_fopen_index(archive, index, 0));
  if (!file) throw TemplateFailure(kTemplateDamagedRow, std::string("ZIP: cannot open ") + stat.name);
  std::string bytes(stat.size + 1, '\0');
  std::size_t read = 0;
  while (read < bytes.size()) {
    const zip_int64_t count = zip_fread(file.get(), bytes.data() + read, bytes.size() - read);
    if (count < 0) throw TemplateFailure(kTemplateDamagedRow, std::string("ZIP: damaged part ") + stat.name);
    if (count == 0) break;
    read += static_cast<std::size_t>(count);
  }
  if (read != stat.size)
    throw TemplateFailure(kTemplateDamagedRow, std::string("ZIP: wrong size of ") + stat.name);
  bytes.resize(read);
  return bytes;
}

}  // namespace

Package::Package(std::string_view zip) : original_(zip) {
  if (original_.starts_with(kCompoundFile)) {
    throw TemplateFailure(kTemplateProtectedRow,
                          "a compound file: protected by a password, or of an old format");
  }
  if (original_.empty()) throw TemplateFailure(kTemplateDamagedRow, "empty file");
  const ZipArchive archive(original_);
  const zip_int64_t entries = zip_get_num_entries(archive.Handle(), 0);
  if (entries < 0 || static_cast<std::size_t>(entries) > kMostParts) {
    throw TemplateFailure(kTemplateTooLargeRow, "too many parts: " + std::to_string(entries));
  }
  std::size_t total = 0;
  std::set<std::string> folded_names;
  for (zip_uint64_t index = 0; index < static_cast<zip_uint64_t>(entries); ++index) {
    const zip_stat_t stat = StatOf(archive.Handle(), index);
    const std::string name = stat.name;
    total += stat.size;
    if (total > kMostBytes) throw TemplateFailure(kTemplateTooLargeRow, "too large when unpacked");
    if (!folded_names.insert(FoldedName(name)).second) {
      throw TemplateFailure(kTemplateHostileRow, "two parts of one name: " + name);
    }
    std::string bytes = ReadEntry(archive.Handle(), index, stat);
    if (!name.ends_with('/')) parts_.emplace(name, std::move(bytes));
  }
  for (const auto& [name, bytes] : parts_) original_names_.insert(name);
}

const std::string& Package::Part(const std::string& name) const {
  const auto found = parts_.find(name);
  if (found == parts_.end()) throw TemplateFailure(kTemplateDamagedRow, "missing part: " + name);
  return found->second;
}

std::vector<std::string> Package::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : parts_) names.push_back(name);
  return names;
}

void Package::Put(const std::string& name, std::string bytes) {
  const auto found = parts_.find(name);
  if (found != parts_.end() && found->second == bytes) return;
  parts_.insert_or_assign(name, std::move(bytes));
  changed_.insert(name);
}

void Package::Remove(const std::string& name) {
  parts_.erase(name);
  changed_.erase(name);
}

std::string Package::Bytes() const {
  ZipArchive archive(original_);
  for (const std::string& name : original_names_) {
    if (parts_.contains(name)) continue;
    const zip_int64_t index = zip_name_locate(archive.Handle(), name.c_str(), 0);
    if (index >= 0) zip_delete(archive.Handle(), static_cast<zip_uint64_t>(index));
  }
  for (const std::string& name : changed_) archive.Put(name, parts_.at(name));
  return archive.Close();
}

std::string MakePackage(const std::vector<std::pair<std::string, std::string>>& parts) {
  ZipArchive archive({});
  for (const auto& [name, bytes] : parts) archive.Put(name, bytes);
  return archive.Close();
}

}  // namespace velmar::presentation
