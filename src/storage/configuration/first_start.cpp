#include "storage/configuration/first_start.h"

#include <string>

#include "foundation/failure.h"
#include "platform/file_system.h"
#include "storage/database/rename.h"
#include "storage/files/store_failure.h"
#include "storage/files/unfinished.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// Without a catalogue both languages are said.
Failure NotMade(const fs::path& folder, const fs::filesystem_error& error) {
  const int number = error.code().value();
  const auto [italian, english] = ReasonWords(ReasonOfErrorNumber(number), number);
  return {{{"Impossibile creare nella cartella dei dati: " + folder.string()},
           {italian + " La cartella è quella della voce CartellaDati del file Velmar.ini."},
           {"Cannot be created in the data folder: " + folder.string()},
           {english + " The folder is that of the entry CartellaDati of the file Velmar.ini."}},
          "cannot create " + folder.string() + ": " + error.what()};
}

/// Makes what was copied writable (an installed program's files are not) and sends it to the disk.
void Settle(const fs::path& path) {
  const bool folder = fs::is_directory(path);
  fs::permissions(path, folder ? fs::perms::owner_all : fs::perms::owner_read | fs::perms::owner_write,
                  fs::perm_options::add);
  if (folder) {
    for (const fs::directory_entry& entry : fs::directory_iterator(path)) Settle(entry.path());
  }
  platform::SyncToDisk(path);
}

/// @return false when something took the name meanwhile
bool CopyTo(const fs::path& source, const fs::path& target) {
  fs::create_directories(target.parent_path());
  const Unfinished unfinished(target);
  fs::copy(source, unfinished.Path(), fs::copy_options::recursive);
  if (fs::is_directory(unfinished.Path())) fs::remove_all(unfinished.Path() / kFormerData);
  Settle(unfinished.Path());
  if (!RenameToFreeName(unfinished.Path(), target)) return false;
  platform::SyncToDisk(target.parent_path());
  return true;
}

/// `path` without a trailing separator, which a rename would not take.
fs::path Plain(const fs::path& path) {
  const fs::path whole = fs::absolute(path);
  return whole.has_filename() ? whole : whole.parent_path();
}

}  // namespace

DataFolderState PrepareDataFolder(const fs::path& data_folder, const fs::path& shipped) {
  const fs::path folder = Plain(data_folder);
  try {
    if (fs::exists(fs::symlink_status(folder))) return DataFolderState::kThere;
    RemoveAbandoned(folder.parent_path());
    return CopyTo(shipped, folder) ? DataFolderState::kCreated : DataFolderState::kThere;
  } catch (const fs::filesystem_error& error) {
    throw NotMade(folder, error);
  }
}

bool RestoreShippedFile(const fs::path& data_folder, const fs::path& shipped, const fs::path& name) {
  try {
    if (fs::exists(fs::symlink_status(data_folder / name))) return false;
    return CopyTo(shipped / name, data_folder / name);
  } catch (const fs::filesystem_error& error) {
    throw NotMade(data_folder / name, error);
  }
}

}  // namespace velmar::storage
