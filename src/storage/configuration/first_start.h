#pragma once

#include <filesystem>

namespace velmar::storage {

/// The folder of the shipped data with what the first version shipped. It serves comparisons alone and is
/// copied into no data folder.
inline constexpr const char* kFormerData = "Former";

enum class DataFolderState {
  kThere,   ///< it existed and was not touched
  kCreated  ///< the shipped default data were copied there
};

/// Makes sure that the data folder exists: where nothing stands under its name, the shipped default data are
/// copied there, whole or not at all. A folder that exists is left alone, also when files are missing in it.
/// @throws Failure with words of its own, since no message catalogue is read yet: when the folder cannot be
///         made, or `shipped` cannot be read
DataFolderState PrepareDataFolder(const std::filesystem::path& data_folder,
                                  const std::filesystem::path& shipped);

/// Copies one file or folder of the shipped default data into the data folder, when the user asks for it and
/// nothing stands there under its name.
/// @param name relative to the data folder, such as "Databases/InterfMess.mdb"
/// @return false when something stands there already
/// @throws Failure as above
bool RestoreShippedFile(const std::filesystem::path& data_folder, const std::filesystem::path& shipped,
                        const std::filesystem::path& name);

}  // namespace velmar::storage
