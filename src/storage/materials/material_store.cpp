#include "storage/materials/material_store.h"

#include <memory>
#include <string>
#include <unordered_set>
#include <variant>

#include <SQLiteCpp/Database.h>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/database/connection.h"
#include "storage/database/table_rows.h"

namespace velmar::storage {
namespace {

using elements::FibrousMaterial;
using elements::MaterialFamily;
using elements::ResilientMaterial;
using elements::StructuralMaterial;

std::string TextOf(const Cell& cell) {
  const auto* text = std::get_if<std::string>(&cell);
  return text == nullptr ? std::string() : *text;
}

template <typename Material>
std::optional<MaterialRow<Material>> Converted(const std::optional<StoredRow>& row) {
  if (!row) return std::nullopt;
  return RowFromCells<Material>(row->cells);
}

/// The folded names of a table.
std::unordered_set<std::string> NamesIn(const TableRows& table) {
  std::unordered_set<std::string> names;
  for (const StoredRow& row : table.All()) names.insert(FoldCase(TextOf(row.cells[0])));
  return names;
}

template <typename Material>
std::optional<elements::MaterialRecord<Material>> RecordIn(SQLite::Database& database,
                                                           std::string_view name) {
  auto row = Converted<Material>(TableRows(database, TableOf<Material>()).Find(name));
  if (!row) return std::nullopt;
  return std::move(row->record);
}

/// The look-ups over what `reading` gives: a DatabaseReading, kept or made for each.
template <typename Reading>
elements::MaterialLookup LookupOver(const Reading& reading) {
  const auto of = [reading]<typename Material>(std::string_view name, const Material*) {
    return reading()->Read([name](SQLite::Database& database) { return RecordIn<Material>(database, name); });
  };
  return {[of](std::string_view name) { return of(name, static_cast<const StructuralMaterial*>(nullptr)); },
          [of](std::string_view name) { return of(name, static_cast<const FibrousMaterial*>(nullptr)); },
          [of](std::string_view name) { return of(name, static_cast<const ResilientMaterial*>(nullptr)); }};
}

}  // namespace

std::vector<ListedMaterial> MaterialStore::List(MaterialFamily family) const {
  return ReadDatabase(file_, [family](SQLite::Database& database) {
    std::vector<ListedMaterial> materials;
    const TableSchema columns = Only(TableOf(family), {"Materiale", "Parola chiave"});
    for (const StoredRow& row : TableRows(database, columns).All()) {
      materials.push_back({TextOf(row.cells[0]), TextOf(row.cells[1])});
    }
    return materials;
  });
}

template <typename Material>
std::vector<MaterialRow<Material>> MaterialStore::Rows() const {
  return ReadDatabase(file_, [](SQLite::Database& database) {
    std::vector<MaterialRow<Material>> rows;
    for (const StoredRow& row : TableRows(database, TableOf<Material>()).All()) {
      rows.push_back(RowFromCells<Material>(row.cells));
    }
    return rows;
  });
}

template <typename Material>
std::optional<MaterialRow<Material>> MaterialStore::First() const {
  return ReadDatabase(file_, [](SQLite::Database& database) {
    return Converted<Material>(TableRows(database, TableOf<Material>()).First());
  });
}

template <typename Material>
std::optional<MaterialRow<Material>> MaterialStore::Find(std::string_view name) const {
  return ReadDatabase(file_, [name](SQLite::Database& database) {
    return Converted<Material>(TableRows(database, TableOf<Material>()).Find(name));
  });
}

template <typename Material>
std::optional<Message> MaterialStore::Add(const std::vector<MaterialRow<Material>>& rows) {
  return ChangeDatabase(file_, [&rows](SQLite::Database& database) -> std::optional<Message> {
    std::unordered_set<std::string> names = NamesIn({database, Only(TableOf<Material>(), {"Materiale"})});
    // Looked through before anything is written, so that a refusal changes nothing.
    for (const MaterialRow<Material>& row : rows) {
      const std::string& name = row.record.values.name;
      if (name.empty()) return Message{{kMaterialWithoutNameRow}};
      if (names.insert(FoldCase(name)).second) continue;
      Message refusal{{kMaterialExistsRow}};
      if (rows.size() > 1) refusal.push_back({name});
      return refusal;
    }
    TableRows table(database, TableOf<Material>());
    for (const MaterialRow<Material>& row : rows) table.Insert(CellsFromRow(row));
    return std::nullopt;
  });
}

template <typename Material>
std::optional<Message> MaterialStore::Change(std::string_view name,
                                             const std::function<void(MaterialRow<Material>&)>& change) {
  return ChangeDatabase(file_, [&](SQLite::Database& database) -> std::optional<Message> {
    TableRows table(database, TableOf<Material>());
    std::optional<StoredRow> stored = table.Find(name);
    if (!stored) return Message{{kEditedMaterialGoneRow, " " + std::string(name)}};
    MaterialRow<Material> row = RowFromCells<Material>(stored->cells);
    const std::string old_name = row.record.values.name;
    change(row);
    const std::string& new_name = row.record.values.name;
    if (new_name.empty()) return Message{{kMaterialWithoutNameRow}};
    if (!SameName(new_name, old_name) && table.Find(new_name)) return Message{{kMaterialExistsRow}};
    stored->cells = CellsFromRow(row);
    table.Update(*stored);
    return std::nullopt;
  });
}

bool MaterialStore::Delete(MaterialFamily family, std::string_view name) {
  return ChangeDatabase(file_, [&](SQLite::Database& database) {
    TableRows table(database, Only(TableOf(family), {"Materiale"}));
    const std::optional<StoredRow> row = table.Find(name);
    if (row) table.Delete(row->id);
    return row.has_value();
  });
}

elements::MaterialLookup MaterialLookupIn(const std::filesystem::path& file, int patience_ms) {
  elements::MaterialLookup lookup =
      LookupOver([file, patience_ms] { return std::make_unique<DatabaseReading>(file, patience_ms); });
  lookup.for_one_operation = [file, patience_ms] {
    return LookupOver([reading = std::make_shared<DatabaseReading>(file, patience_ms)] { return reading; });
  };
  return lookup;
}

template std::vector<StructuralRow> MaterialStore::Rows() const;
template std::vector<FibrousRow> MaterialStore::Rows() const;
template std::vector<ResilientRow> MaterialStore::Rows() const;
template std::optional<StructuralRow> MaterialStore::First() const;
template std::optional<FibrousRow> MaterialStore::First() const;
template std::optional<ResilientRow> MaterialStore::First() const;
template std::optional<StructuralRow> MaterialStore::Find(std::string_view) const;
template std::optional<FibrousRow> MaterialStore::Find(std::string_view) const;
template std::optional<ResilientRow> MaterialStore::Find(std::string_view) const;
template std::optional<Message> MaterialStore::Add(const std::vector<StructuralRow>&);
template std::optional<Message> MaterialStore::Add(const std::vector<FibrousRow>&);
template std::optional<Message> MaterialStore::Add(const std::vector<ResilientRow>&);
template std::optional<Message> MaterialStore::Change(std::string_view,
                                                      const std::function<void(StructuralRow&)>&);
template std::optional<Message> MaterialStore::Change(std::string_view,
                                                      const std::function<void(FibrousRow&)>&);
template std::optional<Message> MaterialStore::Change(std::string_view,
                                                      const std::function<void(ResilientRow&)>&);

}  // namespace velmar::storage
