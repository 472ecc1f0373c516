#pragma once

#include <filesystem>

namespace velmar::storage {

/// Whether the database `file` can be changed: it is not marked read-only, not even for the superuser, and
/// its folder takes the journal that a change needs. Throws nothing.
bool MayBeChanged(const std::filesystem::path& file);

/// Whether files can be made in `folder`. Throws nothing.
bool TakesFiles(const std::filesystem::path& folder);

}  // namespace velmar::storage
