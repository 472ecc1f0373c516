#include "storage/materials/material_row.h"

#include <array>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

using elements::FibrousMaterial;
using elements::ResilientMaterial;
using elements::StructuralMaterial;

template <typename Material>
struct NumberColumn {
  std::string_view column;
  double Material::*field;
};

template <typename Material>
struct Table;

template <>
struct Table<StructuralMaterial> {
  using M = StructuralMaterial;
  static TableSchema Schema() { return StructuralMaterialTable(); }
  static constexpr std::string_view kDescription = "Descrizione materiale";
  static constexpr std::array<NumberColumn<M>, 12> kNumbers{{
      {"s (mm)", &M::thickness_mm},
      {"Densità (kg/m³)", &M::density_kg_m3},
      {"m' (kg/m²)", &M::surface_mass_kg_m2},
      {"Modulo di Young E (GPa)", &M::youngs_modulus_gpa},
      {"Frequenza di coincidenza fc (Hz)", &M::critical_frequency_hz},
      {"Fattore di perdita interna", &M::loss_factor},
      {"Rapporto di Poisson", &M::poissons_ratio},
      {"Lambda (W/m K)", &M::thermal_conductivity_w_mk},
      {"C (W/m² K)", &M::thermal_conductance_w_m2k},
      {"Sigma_a 10^12 (Kg/msPa)", &M::vapour_permeability_dry},
      {"Sigma_u 10^12 (Kg/msPa)", &M::vapour_permeability_wet},
      {"R (m² K/W)", &M::thermal_resistance_m2k_w},
  }};
};

template <>
struct Table<FibrousMaterial> {
  using M = FibrousMaterial;
  static TableSchema Schema() { return FibrousMaterialTable(); }
  static constexpr std::string_view kDescription = "Descrizione";
  static constexpr std::array<NumberColumn<M>, 6> kNumbers{{
      {"s (mm)", &M::thickness_mm},
      {"Densità (kg/m³)", &M::density_kg_m3},
      {"Modulo di Young E (GPa)", &M::youngs_modulus_gpa},
      {"Fattore di perdita interna", &M::loss_factor},
      {"Rapporto di Poisson", &M::poissons_ratio},
      {"Resistenza specifica al flusso Rs (Pa sec/m)", &M::flow_resistance_pa_s_m},
  }};
};

template <>
struct Table<ResilientMaterial> {
  using M = ResilientMaterial;
  static TableSchema Schema() { return ResilientMaterialTable(); }
  static constexpr std::string_view kDescription = "Descrizione materiale";
  static constexpr std::array<NumberColumn<M>, 5> kNumbers{{
      {"s (mm)", &M::thickness_mm},
      {"Densità (kg/m³)", &M::density_kg_m3},
      {"s' (MN/m³)", &M::dynamic_stiffness_mn_m3},
      {"Delta Ln,w (dB)", &M::impact_improvement_db},
      {"f0 (Hz)", &M::resonance_frequency_hz},
  }};
};

constexpr std::string_view kName = "Materiale";
constexpr std::string_view kPorous = "fonoassorbente";
constexpr std::string_view kPicture = "Immagine";
constexpr std::string_view kKeyword = "Parola chiave";
constexpr std::string_view kSource = "Fonte";

std::string AbsorptionColumn(std::size_t band) { return "Alfa" + std::to_string(band); }

/// Cells by the name of their column; a name that the schema lacks is passed over.
class Cells {
 public:
  Cells(const TableSchema& schema, std::vector<Cell> cells) : schema_(schema), cells_(std::move(cells)) {
    cells_.resize(schema.columns.size());
  }

  const Cell* At(std::string_view column) const {
    const auto place = schema_.Find(column);
    return place ? &cells_[*place] : nullptr;
  }
  const double* Number(std::string_view column) const {
    const Cell* cell = At(column);
    return cell == nullptr ? nullptr : std::get_if<double>(cell);
  }
  std::string Text(std::string_view column) const {
    const Cell* cell = At(column);
    const auto* text = cell == nullptr ? nullptr : std::get_if<std::string>(cell);
    return text == nullptr ? std::string() : *text;
  }
  bool Yes(std::string_view column) const {
    const Cell* cell = At(column);
    const auto* yes = cell == nullptr ? nullptr : std::get_if<bool>(cell);
    return yes != nullptr && *yes;
  }

  void Set(std::string_view column, Cell cell) {
    if (const auto place = schema_.Find(column)) cells_[*place] = std::move(cell);
  }
  std::vector<Cell> Take() && { return std::move(cells_); }

 private:
  TableSchema schema_;
  std::vector<Cell> cells_;
};

void ReadAbsorption(const Cells& cells, FibrousMaterial& material) {
  material.porous = cells.Yes(kPorous);
  for (std::size_t band = 0; band < elements::kAbsorptionBandCount; ++band) {
    const double* value = cells.Number(AbsorptionColumn(band));
    material.absorption.at(band) = value == nullptr ? elements::kNoAbsorption : static_cast<float>(*value);
  }
}

void WriteAbsorption(const FibrousMaterial& material, Cells& cells) {
  cells.Set(kPorous, Cell{material.porous});
  for (std::size_t band = 0; band < elements::kAbsorptionBandCount; ++band) {
    const float value = material.absorption.at(band);
    // The shortest decimal of the single: 0.7, not 0.699999988.
    if (value != elements::kNoAbsorption) {
      cells.Set(AbsorptionColumn(band), *ParseCell(ColumnType::kNumber, FormatShortest(value)));
    }
  }
}

Cell TextOrNull(const std::string& text) { return text.empty() ? Cell{} : Cell{text}; }

}  // namespace

template <typename Material>
TableSchema TableOf() {
  return Table<Material>::Schema();
}

TableSchema TableOf(elements::MaterialFamily family) {
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return StructuralMaterialTable();
    case elements::MaterialFamily::kFibrous:
      return FibrousMaterialTable();
    case elements::MaterialFamily::kResilient:
      return ResilientMaterialTable();
  }
  return {};
}

template <typename Material>
MaterialRow<Material> RowFromCells(const std::vector<Cell>& stored) {
  const Cells cells(TableOf<Material>(), stored);
  MaterialRow<Material> row;
  Material& material = row.record.values;
  material.name = cells.Text(kName);
  material.description = cells.Text(Table<Material>::kDescription);
  for (const auto& [column, field] : Table<Material>::kNumbers) {
    const double* number = cells.Number(column);
    if (number == nullptr) {
      row.record.nulls.push_back(field);
    } else {
      material.*field = *number;
    }
  }
  if constexpr (std::is_same_v<Material, FibrousMaterial>) ReadAbsorption(cells, material);
  row.keyword = cells.Text(kKeyword);
  row.picture = cells.Text(kPicture);
  if (row.picture.empty()) row.picture = kNoPicture;
  row.source = cells.Text(kSource);
  return row;
}

template <typename Material>
std::vector<Cell> CellsFromRow(const MaterialRow<Material>& row) {
  Cells cells(TableOf<Material>(), {});
  const Material& material = row.record.values;
  cells.Set(kName, Cell{material.name});
  cells.Set(Table<Material>::kDescription, TextOrNull(material.description));
  for (const auto& [column, field] : Table<Material>::kNumbers) {
    if (row.record.Holds(field)) cells.Set(column, Cell{material.*field});
  }
  if constexpr (std::is_same_v<Material, FibrousMaterial>) WriteAbsorption(material, cells);
  cells.Set(kKeyword, TextOrNull(row.keyword));
  cells.Set(kPicture, Cell{row.picture});
  cells.Set(kSource, TextOrNull(row.source));
  return std::move(cells).Take();
}

template TableSchema TableOf<StructuralMaterial>();
template TableSchema TableOf<FibrousMaterial>();
template TableSchema TableOf<ResilientMaterial>();
template StructuralRow RowFromCells<StructuralMaterial>(const std::vector<Cell>&);
template FibrousRow RowFromCells<FibrousMaterial>(const std::vector<Cell>&);
template ResilientRow RowFromCells<ResilientMaterial>(const std::vector<Cell>&);
template std::vector<Cell> CellsFromRow<StructuralMaterial>(const StructuralRow&);
template std::vector<Cell> CellsFromRow<FibrousMaterial>(const FibrousRow&);
template std::vector<Cell> CellsFromRow<ResilientMaterial>(const ResilientRow&);

}  // namespace velmar::storage
