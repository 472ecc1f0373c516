#include "shell/materials/store_source.h"

#include <memory>
#include <type_traits>

#include "shell/windows/long_work.h"
#include "storage/materials/material_store.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;
using storage::MaterialStore;

template <typename Material>
std::vector<MaterialCells> Rows(const MaterialStore& store) {
  std::vector<MaterialCells> rows;
  for (const auto& row : store.Rows<Material>()) rows.push_back(storage::CellsFromRow(row));
  return rows;
}

template <typename Material>
std::optional<MaterialCells> Find(const MaterialStore& store, const std::string& name) {
  const auto row = store.Find<Material>(name);
  if (!row) return std::nullopt;
  return storage::CellsFromRow(*row);
}

template <typename Material>
std::optional<Message> Add(MaterialStore& store, const MaterialCells& cells) {
  return store.Add<Material>({storage::RowFromCells<Material>(cells)});
}

std::vector<MaterialCells> RowsOf(const MaterialStore& store, MaterialFamily family) {
  switch (family) {
    case MaterialFamily::kStructural:
      return Rows<elements::StructuralMaterial>(store);
    case MaterialFamily::kFibrous:
      return Rows<elements::FibrousMaterial>(store);
    case MaterialFamily::kResilient:
      return Rows<elements::ResilientMaterial>(store);
  }
  return {};
}

std::optional<MaterialCells> FindIn(const MaterialStore& store, MaterialFamily family,
                                    const std::string& name) {
  switch (family) {
    case MaterialFamily::kStructural:
      return Find<elements::StructuralMaterial>(store, name);
    case MaterialFamily::kFibrous:
      return Find<elements::FibrousMaterial>(store, name);
    case MaterialFamily::kResilient:
      return Find<elements::ResilientMaterial>(store, name);
  }
  return std::nullopt;
}

std::optional<Message> AddTo(MaterialStore& store, MaterialFamily family, const MaterialCells& cells) {
  switch (family) {
    case MaterialFamily::kStructural:
      return Add<elements::StructuralMaterial>(store, cells);
    case MaterialFamily::kFibrous:
      return Add<elements::FibrousMaterial>(store, cells);
    case MaterialFamily::kResilient:
      return Add<elements::ResilientMaterial>(store, cells);
  }
  return std::nullopt;
}

/// What `work` gives, while the window goes on painting.
template <typename Work>
auto Beside(Work&& work) {
  std::optional<std::invoke_result_t<Work>> outcome;
  RunBeside([&] { outcome.emplace(work()); });
  return *std::move(outcome);
}

}  // namespace

MaterialSource StoredMaterials(const std::filesystem::path& file) {
  const auto store = std::make_shared<MaterialStore>(file);
  MaterialSource source;
  source.rows = [store](MaterialFamily family) { return Beside([&] { return RowsOf(*store, family); }); };
  source.names = [store](MaterialFamily family) { return Beside([&] { return store->List(family); }); };
  source.find = [store](MaterialFamily family, const std::string& name) {
    return Beside([&] { return FindIn(*store, family, name); });
  };
  source.add = [store](MaterialFamily family, const MaterialCells& cells) {
    return Beside([&] { return AddTo(*store, family, cells); });
  };
  source.remove = [store](MaterialFamily family, const std::string& name) {
    return Beside([&] { return store->Delete(family, name); });
  };
  return source;
}

}  // namespace velmar::shell
