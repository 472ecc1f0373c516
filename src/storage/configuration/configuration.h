#pragma once

#include <filesystem>
#include <string>

namespace velmar::storage {

/// The name of the configuration file, which lies in the folder of the program.
inline constexpr const char* kConfigurationFile = "Velmar.ini";
/// Where the databases stand, below the data folder.
inline constexpr const char* kMessageDatabase = "Databases/InterfMess.mdb";
inline constexpr const char* kMaterialDatabase = "Databases/Database/Database.mdb";
inline constexpr const char* kResultDatabase = "Databases/Database/Database_teorico.mdb";
inline constexpr const char* kDefaultLanguage = "Italiano";

/// What "Velmar.ini" says, and the place of every folder and file that follows from it. A value; nothing here
/// looks whether a folder exists.
class Configuration {
 public:
  /// @param data_folder as it is to be used: a trailing separator stays and is doubled in every path
  Configuration(std::string language, std::string data_folder);

  /// The language, which is also the name of the column of the message table.
  const std::string& LeggiLingua() const { return language_; }
  /// The data folder.
  std::filesystem::path LeggiCartellaDati() const { return data_folder_; }

  /// The report templates.
  std::filesystem::path CartellaTemplates() const { return Below("Templates"); }
  /// All databases and their pictures.
  std::filesystem::path CartellaDatabases() const { return Below("Databases"); }
  /// The message database.
  std::filesystem::path PercorsoInterfMess() const { return Below(kMessageDatabase); }
  /// The material database.
  std::filesystem::path PercorsoDatabase() const { return Below(kMaterialDatabase); }
  /// The results database.
  std::filesystem::path PercorsoDatabaseTeorico() const { return Below(kResultDatabase); }
  /// The folder below which every kind of measured structure has its own.
  std::filesystem::path CartellaLibreria() const { return Below("Databases/Database"); }
  /// The pictures of the library and of cavities.
  std::filesystem::path CartellaImmagini() const { return Below("Databases/immagine"); }

  bool operator==(const Configuration&) const = default;

 private:
  std::filesystem::path Below(const char* name) const;

  std::string language_;
  std::string data_folder_;
};

/// The configuration in `ini_file`. A missing file, key or value is silently "Italiano" and the folder
/// "VELMARpro" in `documents`. In the data folder "\" separates folders on every platform.
Configuration ReadConfiguration(const std::filesystem::path& ini_file,
                                const std::filesystem::path& documents);

/// `path` with every "\" as the platform's separator.
std::string WithPlatformSeparators(std::string path);

/// Whether `path` is a file whose length can be read. Throws nothing.
bool EsisteFile(const std::filesystem::path& path);

}  // namespace velmar::storage
