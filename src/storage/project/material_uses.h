#pragma once

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/setup.h"

namespace velmar::storage {

/// The numbers of the layers of `setup` that hold the material `name` of `family`, counted as the section
/// counts them.
std::vector<int> LayersHolding(const elements::Setup& setup, elements::MaterialFamily family,
                               const std::string& name);

/// A project that uses a material.
struct ProjectUse {
  std::filesystem::path file{};
  std::vector<int> layers{};            ///< of its open set-up
  std::vector<std::string> variants{};  ///< its variants that use it too
};

/// What a search found.
struct MaterialUses {
  std::vector<ProjectUse> projects{};
  std::vector<std::filesystem::path> unreadable{};  ///< project files that cannot be read, folders as well
  std::size_t looked_at = 0;                        ///< project files
  bool is_cut = false;                              ///< a bound ended the search: there may be more
};

/// Where projects are looked for: single files, and folders with what lies below them.
struct SearchedProjects {
  std::vector<std::filesystem::path> files{};
  std::vector<std::filesystem::path> folders{};
};

/// No search reads more projects, looks at more names of files, or goes deeper below a folder.
inline constexpr std::size_t kMostSearchedProjects = 2000;
inline constexpr std::size_t kMostSearchedNames = 50000;
inline constexpr int kDeepestSearched = 4;

/// Looks for projects that use the material `name` of `family`. Each file is read once, however it is
/// reached; hidden folders and links to folders are left alone, and files that are not there any more. It
/// may take long: `stop` ends it at the next file.
MaterialUses FindMaterialUses(const SearchedProjects& where, elements::MaterialFamily family,
                              const std::string& name, const std::atomic<bool>& stop);

}  // namespace velmar::storage
