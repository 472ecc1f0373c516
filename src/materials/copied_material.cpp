#include "materials/copied_material.h"

namespace velmar::materials {
namespace {

template <typename Material>
std::optional<CopiedMaterial> CopyRow(storage::MaterialStore& store, const std::string& name) {
  std::optional<storage::MaterialRow<Material>> row = store.Find<Material>(name);
  if (!row) return std::nullopt;
  const std::string original = row->record.values.name;
  // The copy is the user's: what is changed in it has another source.
  row->source.clear();
  for (int number = 2;; ++number) {
    row->record.values.name = original + " (" + std::to_string(number) + ')';
    if (store.Find<Material>(row->record.values.name)) continue;
    if (store.Add<Material>({*row})) return std::nullopt;
    return CopiedMaterial{row->record.values.name, row->keyword};
  }
}

}  // namespace

std::optional<CopiedMaterial> CopyMaterial(storage::MaterialStore& store, elements::MaterialFamily family,
                                           const std::string& name) {
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return CopyRow<elements::StructuralMaterial>(store, name);
    case elements::MaterialFamily::kFibrous:
      return CopyRow<elements::FibrousMaterial>(store, name);
    case elements::MaterialFamily::kResilient:
      return CopyRow<elements::ResilientMaterial>(store, name);
  }
  return std::nullopt;
}

}  // namespace velmar::materials
