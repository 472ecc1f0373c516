#pragma once

#include <filesystem>
#include <optional>

namespace velmar::storage {

/// The folder of the program that runs.
std::filesystem::path ProgramFolder();

/// The default data folder that comes with the program ("share/velmarpro"), as installed beside `program` or
/// in the tree that built it; nothing when it is not there.
std::optional<std::filesystem::path> ShippedDataFolder(const std::filesystem::path& program);

/// The user's manual, as installed or as built beside `program`; the latter also where it is in neither
/// place, so that its absence can be told by name.
std::filesystem::path ManualFile(const std::filesystem::path& program);

/// The text of the user's manual, which the window shows, beside ManualFile(); named as that is.
std::filesystem::path ManualText(const std::filesystem::path& program);

/// The program that reads genuine Access files, as installed or as built; nothing when it is not there.
std::optional<std::filesystem::path> AccessReaderProgram(const std::filesystem::path& program);

}  // namespace velmar::storage
