#pragma once

#include <filesystem>

#include "platform/open_file.h"

namespace velmar::platform {

/// Gives the status of what `path` finally names. @return 0 or the number of the system's error
int StatusAt(const std::filesystem::path& path, FileStatus& status);

/// Whether the user whose rights the program has may write to `path`. Throws nothing.
bool MayWrite(const std::filesystem::path& path);

/// Gives `from` the name `to`, of which an existing file is replaced in one step. @return 0 or the error
int Rename(const std::filesystem::path& from, const std::filesystem::path& to);

/// What a rename that replaces nothing came to.
enum class RenameOutcome { kDone, kTaken, kNotKnownHere };

/// Gives `from` the name `to` unless something stands there, in one step.
/// @return kNotKnownHere where the file system knows no such rename
/// @throws std::filesystem::filesystem_error for any other failure
RenameOutcome RenameUnlessTaken(const std::filesystem::path& from, const std::filesystem::path& to);

/// Waits until the names in the folder, or the content of the file, `path` stand on the disk, as far as the
/// system can tell; throws nothing.
void SyncToDisk(const std::filesystem::path& path);

/// The home folder of the user who runs the program, "/" where there is none.
std::filesystem::path HomeFolder();

}  // namespace velmar::platform
