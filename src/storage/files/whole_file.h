#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace velmar::storage {

/// Makes `path` a file that holds exactly `bytes`, or leaves what stood there untouched: the bytes go to a
/// temporary file in the same folder, reach the disk, and take the name in one step. A crash in between
/// leaves the old file. The permissions of an existing file are kept, a symbolic link is followed, and the
/// temporary file is removed on failure. A file that is marked read-only for everybody is never replaced.
/// @throws StoreFailure
void WriteWhole(const std::filesystem::path& path, std::string_view bytes);

/// The bytes of the regular file `path`.
/// @param size_limit the largest size accepted, in bytes; nothing beyond it is read or allocated
/// @throws StoreFailure also for a folder, a device or a pipe
std::string ReadWhole(const std::filesystem::path& path, std::size_t size_limit);

}  // namespace velmar::storage
