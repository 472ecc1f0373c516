#include "application/data_renewal.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <vector>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "platform/file_system.h"
#include "storage/configuration/configuration.h"
#include "storage/configuration/first_start.h"
#include "storage/database/permissions.h"
#include "storage/database/rename.h"
#include "storage/database/renewed_rows.h"
#include "storage/database/set_aside.h"
#include "storage/files/store_failure.h"
#include "storage/files/unfinished.h"
#include "storage/files/whole_file.h"
#include "storage/tables/schema.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNewCopy = ".fornito.nuovo";
constexpr std::size_t kFileLimit = std::size_t{256} * 1024 * 1024;

/// The two tables of the shipped message catalogue, in the languages that are shipped.
std::vector<storage::TableSchema> MessageTables() {
  const std::vector<std::string> languages = {"Italiano", "English"};
  return {storage::CatalogueTable(languages), storage::FurtherTextTable(languages)};
}

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(path, error));
}

/// The regular files below `folder`, relative to it, in a fixed order; those of a former version left out.
std::vector<fs::path> FilesBelow(const fs::path& folder) {
  std::vector<fs::path> files;
  for (fs::recursive_directory_iterator entry(folder), end; entry != end; ++entry) {
    if (entry.depth() == 0 && entry->path().filename() == storage::kFormerData) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      files.push_back(fs::relative(entry->path(), folder));
    }
  }
  std::ranges::sort(files);
  return files;
}

bool SameBytes(const fs::path& a, const fs::path& b) {
  std::error_code error;
  if (!fs::is_regular_file(a, error) || !fs::is_regular_file(b, error)) return false;
  if (fs::file_size(a, error) != fs::file_size(b, error)) return false;
  return storage::ReadWhole(a, kFileLimit) == storage::ReadWhole(b, kFileLimit);
}

/// One renewal on its way: the user's folder, what was shipped before (may be empty), what is shipped now.
class Renewal {
 public:
  Renewal(fs::path mine, fs::path before, fs::path now)
      : mine_(std::move(mine)), before_(std::move(before)), now_(std::move(now)) {}

  void Run() {
    for (const fs::path& file : FilesBelow(now_)) {
      if (file == storage::kResultDatabase) continue;
      if (file == storage::kMaterialDatabase) {
        RenewRows(file, storage::MaterialTables(), &materials_added_);
      } else if (file == storage::kMessageDatabase) {
        RenewRows(file, MessageTables(), nullptr);
      } else {
        RenewFile(file);
      }
    }
  }

  std::optional<Message> Report() const {
    Message report{{kDataRenewedRow}};
    const auto add = [&report](MessageRow row, int count) {
      if (count > 0) report.push_back({row, " " + std::to_string(count)});
    };
    add(kMaterialsAddedToOldRow, materials_added_);
    add(kFilesAddedRow, files_added_);
    add(kFilesRenewedRow, files_renewed_);
    if (report.size() == 1 && copies_.empty()) return std::nullopt;
    add(kFilesKeptRow, files_kept_);
    for (const fs::path& copy : copies_) report.push_back({kCopyBeforeRow, " " + copy.string()});
    return report;
  }

 private:
  bool WasShipped(const fs::path& file) const { return !before_.empty() && Exists(before_ / file); }

  /// A copy of what is shipped takes the name in one step.
  void PutShipped(const fs::path& file) const {
    fs::create_directories((mine_ / file).parent_path());
    storage::WriteWhole(mine_ / file, storage::ReadWhole(now_ / file, kFileLimit));
  }

  void RenewFile(const fs::path& file) {
    if (!Exists(mine_ / file)) {
      if (WasShipped(file)) return;  // the user deleted it
      PutShipped(file);
      ++files_added_;
      return;
    }
    if (SameBytes(mine_ / file, now_ / file)) return;
    if (!SameBytes(mine_ / file, before_ / file)) {
      ++files_kept_;
      return;
    }
    copies_.push_back(storage::KeepDatedCopy(mine_ / file));
    PutShipped(file);
    ++files_renewed_;
  }

  void RenewRows(const fs::path& file, const std::vector<storage::TableSchema>& tables, int* added) {
    if (!Exists(mine_ / file)) return;  // the start restores it, or says why not
    const fs::path before = WasShipped(file) ? before_ / file : fs::path();
    const storage::RowChanges changes = storage::ChangesOfRows(mine_ / file, before, now_ / file, tables);
    if (changes.empty()) return;
    copies_.push_back(storage::KeepDatedCopy(mine_ / file));
    const int count = storage::ApplyRowChanges(mine_ / file, tables, changes);
    if (added != nullptr) *added += count;
  }

  fs::path mine_;
  fs::path before_;
  fs::path now_;
  int materials_added_ = 0;
  int files_added_ = 0;
  int files_renewed_ = 0;
  int files_kept_ = 0;
  std::vector<fs::path> copies_;
};

/// Keeps a whole copy of what is shipped now; a crash in between leaves the old one or the new one.
void KeepShippedCopy(const fs::path& data_folder, const fs::path& shipped) {
  const fs::path fresh = data_folder / kNewCopy;
  {
    const storage::Unfinished unfinished(fresh);
    fs::create_directory(unfinished.Path());
    for (const fs::path& file : FilesBelow(shipped)) {
      fs::create_directories((unfinished.Path() / file).parent_path());
      fs::copy_file(shipped / file, unfinished.Path() / file);
      fs::permissions(unfinished.Path() / file, fs::perms::owner_read | fs::perms::owner_write,
                      fs::perm_options::add);
    }
    platform::SyncToDisk(unfinished.Path());
    storage::RenameToFreeName(unfinished.Path(), fresh);
  }
  fs::remove_all(data_folder / kShippedCopy);
  fs::rename(fresh, data_folder / kShippedCopy);
  platform::SyncToDisk(data_folder);
}

/// A copy that a crash left under its first name is whole: it is the newer one.
void SettleShippedCopy(const fs::path& data_folder) {
  if (!Exists(data_folder / kNewCopy)) return;
  fs::remove_all(data_folder / kShippedCopy);
  fs::rename(data_folder / kNewCopy, data_folder / kShippedCopy);
}

bool SameTrees(const fs::path& a, const fs::path& b) {
  const std::vector<fs::path> files = FilesBelow(a);
  return files == FilesBelow(b) &&
         std::ranges::all_of(files, [&](const fs::path& file) { return SameBytes(a / file, b / file); });
}

/// What a killed renewal left beside any file of the folder.
void RemoveAbandonedBelow(const fs::path& folder) {
  storage::RemoveAbandoned(folder);
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_directory() && !entry.is_symlink()) storage::RemoveAbandoned(entry.path());
  }
}

}  // namespace

std::optional<Message> RenewData(const fs::path& data_folder, const fs::path& shipped) {
  try {
    std::error_code error;
    const bool nothing = !fs::is_directory(data_folder, error) || !fs::is_directory(shipped, error) ||
                         fs::equivalent(data_folder, shipped, error) || !storage::TakesFiles(data_folder);
    if (nothing) return std::nullopt;
    RemoveAbandonedBelow(data_folder);
    SettleShippedCopy(data_folder);
    const fs::path copy = data_folder / kShippedCopy;
    if (Exists(copy) && SameTrees(copy, shipped)) return std::nullopt;
    const fs::path former = shipped / storage::kFormerData;
    Renewal renewal(data_folder, Exists(copy) ? copy : Exists(former) ? former : fs::path(), shipped);
    renewal.Run();
    KeepShippedCopy(data_folder, shipped);
    return renewal.Report();
  } catch (const fs::filesystem_error& failure) {
    throw storage::StoreFailure(storage::StoreAction::kWrite, failure.code().value(),
                                failure.path1().string(), storage::PreviousFile::kNone);
  }
}

}  // namespace velmar::application
