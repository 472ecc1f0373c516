#include "storage/project/material_uses.h"

#include <algorithm>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "elements/parts.h"
#include "elements/setup_text.h"
#include "elements/variants.h"
#include "foundation/failure.h"
#include "foundation/utf8.h"
#include "storage/project/project_reader.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

constexpr const char* kEnding = ".drav";

bool IsProject(const fs::path& file) { return SameName(file.extension().string(), kEnding); }

bool IsHidden(const fs::path& path) { return path.filename().string().starts_with('.'); }

/// One search.
class Search {
 public:
  Search(elements::MaterialFamily family, const std::string& name, const std::atomic<bool>& stop)
      : family_(family), name_(name), stop_(stop) {}

  void File(const fs::path& file) {
    std::error_code error;
    const fs::path real = fs::weakly_canonical(file, error);
    if (!known_.insert(error ? file : real).second) return;
    if (!fs::exists(file, error)) return;
    if (found_.looked_at >= kMostSearchedProjects) {
      found_.is_cut = true;
      return;
    }
    ++found_.looked_at;
    try {
      Look(file, OpenProject(file, {}).setup);
    } catch (const std::exception&) {
      found_.unreadable.push_back(file);
    }
  }

  void Folder(const fs::path& folder, int depth) {
    std::error_code error;
    const fs::path real = fs::weakly_canonical(folder, error);
    if (!known_.insert(error ? folder : real).second || !fs::is_directory(folder, error)) return;
    std::vector<fs::path> files;
    std::vector<fs::path> folders;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
      if (IsOver()) return;
      std::error_code ignored;
      if (entry->is_directory(ignored)) {
        if (!entry->is_symlink(ignored) && !IsHidden(entry->path())) folders.push_back(entry->path());
      } else if (IsProject(entry->path())) {
        files.push_back(entry->path());
      }
    }
    if (error) found_.unreadable.push_back(folder);
    std::ranges::sort(files);
    for (const fs::path& file : files) {
      if (stop_) return;
      File(file);
    }
    if (!folders.empty() && depth == kDeepestSearched) found_.is_cut = true;
    if (depth == kDeepestSearched) return;
    std::ranges::sort(folders);
    for (const fs::path& below : folders) Folder(below, depth + 1);
  }

  MaterialUses Found() { return std::move(found_); }

 private:
  bool IsOver() {
    if (++names_ > kMostSearchedNames) found_.is_cut = true;
    return stop_ || found_.is_cut;
  }

  void Look(const fs::path& file, const elements::Setup& setup) {
    ProjectUse use{.file = file, .layers = LayersHolding(setup, family_, name_)};
    for (const elements::Variant& variant : VariantsOf(setup.further)) {
      const std::optional<elements::Setup> kept = elements::ReadSetupText(variant.setup_text);
      if (kept && !LayersHolding(*kept, family_, name_).empty()) use.variants.push_back(variant.name);
    }
    if (!use.layers.empty() || !use.variants.empty()) found_.projects.push_back(std::move(use));
  }

  elements::MaterialFamily family_;
  const std::string& name_;
  const std::atomic<bool>& stop_;
  std::set<fs::path> known_{};
  std::size_t names_ = 0;
  MaterialUses found_{};
};

}  // namespace

std::vector<int> LayersHolding(const elements::Setup& setup, elements::MaterialFamily family,
                               const std::string& name) {
  std::vector<int> numbers;
  if (!setup.calculation) return numbers;
  for (const elements::Part& part : PartsOf(setup)) {
    for (const elements::Layer& layer : part.layers) {
      const bool same = layer.group && RowOf(*layer.group).family == family && SameName(layer.name, name);
      if (same) numbers.push_back(layer.number);
    }
  }
  return numbers;
}

MaterialUses FindMaterialUses(const SearchedProjects& where, elements::MaterialFamily family,
                              const std::string& name, const std::atomic<bool>& stop) {
  Search search(family, name, stop);
  for (const fs::path& file : where.files) {
    if (!stop) search.File(file);
  }
  for (const fs::path& folder : where.folders) {
    if (!stop && !folder.empty()) search.Folder(folder, 0);
  }
  return search.Found();
}

}  // namespace velmar::storage
