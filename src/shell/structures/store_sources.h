#pragma once

#include <filesystem>
#include <memory>

#include "shell/structures/structure_sources.h"
#include "storage/access/access_session.h"
#include "storage/results/saved_result.h"
#include "storage/tables/schema.h"

namespace velmar::structures {

/// `result` as a part of a facade or as the base of a lining.
calculation::FacadePart PartOf(const storage::SavedResult& result);

/// The stored results of the results database `file`.
ResultSource StoredResults(const std::filesystem::path& file);

/// The folder of the library behind `branch`, which must not be one of calculated structures.
storage::LibraryFolder FolderOf(Branch branch);

/// Where the library lies.
struct LibraryPlaces {
  std::filesystem::path library{};   ///< the folder "Database", with a folder for every kind of structures
  std::filesystem::path pictures{};  ///< the folder "immagine"
  std::filesystem::path results{};   ///< the results database, shown as a file of calculated structures
};

/// The library of measured structures; `session` keeps the readable copies of genuine Access files.
LibrarySource MeasuredLibrary(const LibraryPlaces& places, std::shared_ptr<storage::AccessSession> session);

}  // namespace velmar::structures
