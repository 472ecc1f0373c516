#include "shell/materials/store_source.h"

#include <memory>

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

}  // namespace

MaterialSource StoredMaterials(const std::filesystem::path& file) {
  const auto store = std::make_shared<MaterialStore>(file);
  MaterialSource source;
  source.rows = [store](MaterialFamily family) -> std::vector<MaterialCells> {
    switch (family) {
      case MaterialFamily::kStructural:
        return Rows<elements::StructuralMaterial>(*store);
      case MaterialFamily::kFibrous:
        return Rows<elements::FibrousMaterial>(*store);
      case MaterialFamily::kResilient:
        return Rows<elements::ResilientMaterial>(*store);
    }
    return {};
  };
  source.names = [store](MaterialFamily family) { return store->List(family); };
  source.find = [store](MaterialFamily family, const std::string& name) -> std::optional<MaterialCells> {
    switch (family) {
      case MaterialFamily::kStructural:
        return Find<elements::StructuralMaterial>(*store, name);
      case MaterialFamily::kFibrous:
        return Find<elements::FibrousMaterial>(*store, name);
      case MaterialFamily::kResilient:
        return Find<elements::ResilientMaterial>(*store, name);
    }
    return std::nullopt;
  };
  source.add = [store](MaterialFamily family, const MaterialCells& cells) -> std::optional<Message> {
    switch (family) {
      case MaterialFamily::kStructural:
        return Add<elements::StructuralMaterial>(*store, cells);
      case MaterialFamily::kFibrous:
        return Add<elements::FibrousMaterial>(*store, cells);
      case MaterialFamily::kResilient:
        return Add<elements::ResilientMaterial>(*store, cells);
    }
    return std::nullopt;
  };
  source.remove = [store](MaterialFamily family, const std::string& name) {
    bool removed = false;
    RunBeside([&] { removed = store->Delete(family, name); });
    return removed;
  };
  return source;
}

}  // namespace velmar::shell
