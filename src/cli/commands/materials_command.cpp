#include "cli/commands/materials_command.h"

#include <ostream>
#include <variant>

#include <nlohmann/json.hpp>

#include "cli/output/failure_report.h"
#include "cli/output/material_table.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/message_rows.h"
#include "materials/coupled_boxes.h"
#include "materials/derived_values.h"
#include "materials/judged_values.h"
#include "materials/keywords.h"
#include "materials/material_entry.h"
#include "materials/save_entry.h"
#include "storage/files/whole_file.h"
#include "storage/materials/material_store.h"

namespace velmar::cli {
namespace {

using elements::MaterialFamily;
using storage::MaterialRow;

constexpr std::size_t kCsvSizeLimit = std::size_t{64} * 1024 * 1024;

constexpr MaterialFamily kFamilies[] = {MaterialFamily::kStructural, MaterialFamily::kFibrous,
                                        MaterialFamily::kResilient};

const char* FamilyName(MaterialFamily family) {
  switch (family) {
    case MaterialFamily::kStructural:
      return "structural";
    case MaterialFamily::kFibrous:
      return "fibrous";
    case MaterialFamily::kResilient:
      return "resilient";
  }
  return "";
}

/// One command on its way: what it was given, and where it speaks.
struct Work {
  const MaterialsCommand& command;
  const Services& services;
  std::ostream& out;
  std::ostream& errors;

  storage::MaterialStore Store() const { return storage::MaterialStore(services.material_database); }
  materials::KeywordTexts Keywords() const {
    return {services.words(kAllKeywordsRow), services.words(kNotSpecifiedRow)};
  }
  ExitCode Refuse(const Message& message, ExitCode code = ExitCode::kNoResult) const {
    WriteMessage(message, services.words, errors);
    return code;
  }
};

ExitCode List(const Work& work) {
  nlohmann::json list = nlohmann::json::array();
  for (const MaterialFamily family : kFamilies) {
    if (work.command.family && *work.command.family != family) continue;
    const std::vector<storage::ListedMaterial> materials = work.Store().List(family);
    const std::string& filter = work.command.keyword.empty() ? work.Keywords().all : work.command.keyword;
    for (const std::string& name : materials::NamesUnderFilter(family, materials, filter, work.Keywords())) {
      if (work.command.json) {
        list.push_back({{"family", FamilyName(family)}, {"name", name}});
      } else {
        work.out << FamilyName(family) << '\t' << name << '\n';
      }
    }
  }
  if (work.command.json) WriteJson(list, work.out);
  return ExitCode::kDone;
}

template <typename Material>
bool ShowIn(const Work& work, MaterialFamily family) {
  if (work.command.family && *work.command.family != family) return false;
  const auto row = work.Store().Find<Material>(work.command.name);
  if (!row) return false;
  const storage::TableSchema schema = storage::TableOf(family);
  const Cells cells = storage::CellsFromRow(*row);
  if (work.command.json) {
    nlohmann::json json = RowJson(schema, cells);
    json["family"] = FamilyName(family);
    WriteJson(json, work.out);
  } else {
    work.out << RowLines(schema, cells);
  }
  return true;
}

ExitCode Show(const Work& work) {
  const bool found = ShowIn<elements::StructuralMaterial>(work, MaterialFamily::kStructural) ||
                     ShowIn<elements::FibrousMaterial>(work, MaterialFamily::kFibrous) ||
                     ShowIn<elements::ResilientMaterial>(work, MaterialFamily::kResilient);
  return found ? ExitCode::kDone : work.Refuse({{kUnknownMaterialRow, " " + work.command.name}});
}

/// Of thickness, density and surface mass the one that is missing follows from the others, as in the editor.
materials::StructuralEntry Completed(materials::StructuralEntry entry) {
  materials::MassBoxes boxes{entry.thickness, entry.density, entry.surface_mass};
  const int missing = int{boxes.thickness_mm.empty()} + int{boxes.density_kg_m3.empty()} +
                      int{boxes.surface_mass_kg_m2.empty()};
  if (missing != 1) return entry;
  boxes = materials::CoupleMass(
      boxes, boxes.thickness_mm.empty() ? materials::MassBox::kDensity : materials::MassBox::kThickness);
  entry.thickness = boxes.thickness_mm;
  entry.density = boxes.density_kg_m3;
  entry.surface_mass = boxes.surface_mass_kg_m2;
  return entry;
}
template <typename Entry>
Entry Completed(Entry entry) {
  return entry;
}

/// The row of `cells` after the checks that the editors make. What the editors do not show is taken as given.
template <typename Material>
std::variant<MaterialRow<Material>, Message> Checked(const Work& work, const Cells& cells) {
  const auto given = storage::RowFromCells<Material>(cells);
  auto checked = materials::RowOf(Completed(materials::EntryOf(given)), work.Keywords());
  if (auto* refusal = std::get_if<materials::EntryRefusal>(&checked)) return refusal->message;
  Cells completed = storage::CellsFromRow(std::get<MaterialRow<Material>>(checked));
  for (std::size_t i = 0; i < completed.size(); ++i) {
    const bool nothing = storage::FormatCell(completed[i]).empty();
    if (nothing) completed[i] = cells[i];
  }
  auto row = storage::RowFromCells<Material>(completed);
  if (!given.picture.empty()) row.picture = given.picture;
  if (auto improbable = materials::ImprobableValues(elements::FindingsOf(row.record));
      improbable && !work.command.force) {
    improbable->push_back({kForceStoresRow});
    return *std::move(improbable);
  }
  return row;
}

template <typename Material>
ExitCode AddRows(const Work& work, const std::vector<Cells>& all_cells) {
  std::vector<MaterialRow<Material>> rows;
  for (const Cells& cells : all_cells) {
    auto checked = Checked<Material>(work, cells);
    if (const auto* refusal = std::get_if<Message>(&checked)) {
      Message named = *refusal;
      named.push_back({storage::FormatCell(cells.at(0))});
      return work.Refuse(named);
    }
    rows.push_back(std::get<MaterialRow<Material>>(std::move(checked)));
  }
  if (const auto refusal = work.Store().Add(rows)) return work.Refuse(*refusal);
  work.errors << work.services.words(kMaterialsAddedRow) << ' ' << rows.size() << '\n';
  return ExitCode::kDone;
}

template <typename Material>
ExitCode AddOne(const Work& work) {
  const storage::TableSchema schema = storage::TableOf<Material>();
  auto cells = WithSettings(schema, Cells(schema.columns.size()), work.command.settings);
  if (const auto* refusal = std::get_if<Message>(&cells)) return work.Refuse(*refusal);
  return AddRows<Material>(work, {std::get<Cells>(cells)});
}

/// What follows from a change: surface mass and critical frequency of a structural material.
void Follow(const MaterialRow<elements::StructuralMaterial>& before,
            MaterialRow<elements::StructuralMaterial>& changed) {
  materials::FollowChange(before.record.values, changed.record.values);
}
template <typename Material>
void Follow(const MaterialRow<Material>& /*before*/, MaterialRow<Material>& /*changed*/) {}

template <typename Material>
ExitCode Edit(const Work& work) {
  const auto row = work.Store().Find<Material>(work.command.name);
  if (!row) return work.Refuse({{kUnknownMaterialRow, " " + work.command.name}});
  auto cells = WithSettings(storage::TableOf<Material>(), storage::CellsFromRow(*row), work.command.settings);
  if (const auto* refusal = std::get_if<Message>(&cells)) return work.Refuse(*refusal);
  auto changed = storage::RowFromCells<Material>(std::get<Cells>(cells));
  Follow(*row, changed);
  const bool same_source = changed.source == row->source && !row->source.empty();
  if (same_source && materials::ValuesDiffer(changed, *row)) changed.source = materials::kUserValueSource;
  auto checked = Checked<Material>(work, storage::CellsFromRow(changed));
  if (const auto* refusal = std::get_if<Message>(&checked)) return work.Refuse(*refusal);
  const auto change = [&](MaterialRow<Material>& stored) {
    stored = std::get<MaterialRow<Material>>(checked);
  };
  if (const auto refusal = work.Store().Change<Material>(work.command.name, change))
    return work.Refuse(*refusal);
  return ExitCode::kDone;
}

ExitCode Delete(const Work& work) {
  if (work.Store().Delete(*work.command.family, work.command.name)) return ExitCode::kDone;
  return work.Refuse({{kUnknownMaterialRow, " " + work.command.name}});
}

template <typename Material>
ExitCode Import(const Work& work) {
  const CsvTable table = storage::ParseCsv(storage::ReadWhole(work.command.file, kCsvSizeLimit));
  auto rows = RowsOfCsv(storage::TableOf<Material>(), table);
  if (const auto* refusal = std::get_if<Message>(&rows)) return work.Refuse(*refusal);
  return AddRows<Material>(work, std::get<std::vector<Cells>>(rows));
}

template <typename Material>
ExitCode Export(const Work& work) {
  const storage::TableSchema schema = storage::TableOf<Material>();
  CsvTable table;
  for (const storage::ColumnSchema& column : schema.columns) table.header.push_back(column.name);
  for (const auto& row : work.Store().template Rows<Material>()) {
    std::vector<std::string>& fields = table.rows.emplace_back();
    for (const storage::Cell& cell : storage::CellsFromRow(row)) fields.push_back(storage::FormatCell(cell));
  }
  const std::string bytes = FormatCsv(table);
  if (work.command.file.empty()) {
    work.out << bytes;
  } else {
    storage::WriteWhole(work.command.file, bytes);
  }
  return ExitCode::kDone;
}

template <typename Material>
ExitCode ExecuteOnTable(const Work& work) {
  switch (work.command.action) {
    case MaterialsAction::kAdd:
      return AddOne<Material>(work);
    case MaterialsAction::kEdit:
      return Edit<Material>(work);
    case MaterialsAction::kDelete:
      return Delete(work);
    case MaterialsAction::kImport:
      return Import<Material>(work);
    case MaterialsAction::kExport:
      return Export<Material>(work);
    case MaterialsAction::kList:
    case MaterialsAction::kShow:
      break;
  }
  return ExitCode::kWrongUsage;
}

ExitCode Dispatch(const Work& work) {
  if (work.command.action == MaterialsAction::kList) return List(work);
  if (work.command.action == MaterialsAction::kShow) return Show(work);
  if (!work.command.family) return work.Refuse({{kFamilyMissingRow}}, ExitCode::kWrongUsage);
  switch (*work.command.family) {
    case MaterialFamily::kStructural:
      return ExecuteOnTable<elements::StructuralMaterial>(work);
    case MaterialFamily::kFibrous:
      return ExecuteOnTable<elements::FibrousMaterial>(work);
    case MaterialFamily::kResilient:
      return ExecuteOnTable<elements::ResilientMaterial>(work);
  }
  return ExitCode::kWrongUsage;
}

}  // namespace

ExitCode Execute(const MaterialsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    return Dispatch({command, services, out, errors});
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
