#pragma once

#include <filesystem>
#include <optional>

#include "foundation/message.h"

namespace velmar::application {

/// The copy of what was shipped when a data folder was made or last renewed, below that folder: what in the
/// folder is still so was never touched.
inline constexpr const char* kShippedCopy = ".fornito";

/// Brings a data folder that an earlier version made up to the data that this version ships:
/// - materials that are new are added, and rows that the user never changed become those of this version;
/// - message texts that the user never changed become those of this version, new ones are added;
/// - other files (templates, series of the library, examples, pictures) are added, and replaced where the
/// user
///   never changed them.
/// What a user changed or deleted stays so. Saved results and own measurements are never touched. Of every
/// file that is changed a dated copy is kept before. Without a copy of what was shipped (a folder of the
/// first version) `shipped`/"Former" serves in its place, and what that does not hold counts as changed.
///
/// Nothing is done where the folder is up to date, is the shipped one itself, or takes no files.
/// @return what was done; nothing when nothing was changed
/// @throws Failure when something could not be read or written; what was done by then is whole, and the next
///         start goes on
std::optional<Message> RenewData(const std::filesystem::path& data_folder,
                                 const std::filesystem::path& shipped);

}  // namespace velmar::application
