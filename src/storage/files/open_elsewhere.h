#pragma once

#include <filesystem>

namespace velmar::storage {

/// Whether an office program has the document `path` open, as the file beside it says that such programs
/// leave there meanwhile: ".~lock.NAME#", or "~$NAME", of which Word drops up to two leading characters.
/// Where the system itself guards open files, writing fails anyway.
bool IsOpenElsewhere(const std::filesystem::path& path);

}  // namespace velmar::storage
