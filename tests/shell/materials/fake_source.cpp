#include "tests/shell/materials/fake_source.h"

#include <QDir>
#include <QPixmap>
#include <algorithm>

#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

template <typename Row>
std::vector<MaterialCells> CellsOf(const std::vector<Row>& rows) {
  std::vector<MaterialCells> cells;
  for (const Row& row : rows) cells.push_back(storage::CellsFromRow(row));
  return cells;
}

template <typename Row>
bool Erase(std::vector<Row>& rows, const std::string& name) {
  return std::erase_if(rows, [&](const Row& row) { return row.record.values.name == name; }) > 0;
}

}  // namespace

storage::StructuralRow Wall(const std::string& name, double density, const std::string& keyword) {
  storage::StructuralRow row;
  row.record.values.name = name;
  row.record.values.description = name + ", da catalogo";
  row.record.values.thickness_mm = 120;
  row.record.values.density_kg_m3 = density;
  row.record.values.youngs_modulus_gpa = 12.6;
  row.record.values.loss_factor = 0.015;
  row.keyword = keyword;
  row.source = "prova di laboratorio";
  return row;
}

FakeMaterials::FakeMaterials() {
  structural = {Wall("Mattone pieno", 1800, "murature"), Wall("intonaco di gesso", 900, "intonaci"),
                Wall("Èlite 25", 1000, "murature"), Wall("Cartongesso", 99.5, "")};
  structural[3].record.nulls = {&elements::StructuralMaterial::youngs_modulus_gpa};
  storage::FibrousRow wool;
  wool.record.values.name = "Lana di roccia";
  wool.record.values.thickness_mm = 50;
  wool.record.values.density_kg_m3 = 40;
  wool.record.values.porous = true;
  wool.record.values.flow_resistance_pa_s_m = 12000;
  wool.record.values.absorption.fill(0.7F);
  wool.record.nulls = {&elements::FibrousMaterial::youngs_modulus_gpa,
                       &elements::FibrousMaterial::loss_factor, &elements::FibrousMaterial::poissons_ratio};
  storage::FibrousRow foam;
  foam.record.values.name = "Polistirene";
  foam.record.values.thickness_mm = 30;
  foam.record.values.density_kg_m3 = 15;
  foam.record.values.youngs_modulus_gpa = 0.05;
  foam.record.nulls = {&elements::FibrousMaterial::flow_resistance_pa_s_m};
  fibrous = {wool, foam};
  storage::ResilientRow mat;
  mat.record.values.name = "Materassino";
  mat.record.values.thickness_mm = 8;
  mat.record.values.dynamic_stiffness_mn_m3 = 21;
  resilient = {mat};
}

MaterialSource FakeMaterials::Source() {
  const auto check = [this] {
    if (locked) throw Failure({{std::string("Il file è in uso da un altro programma.")}}, "locked");
  };
  MaterialSource source;
  source.rows = [this, check](MaterialFamily family) {
    check();
    if (family == MaterialFamily::kStructural) return CellsOf(structural);
    return family == MaterialFamily::kFibrous ? CellsOf(fibrous) : CellsOf(resilient);
  };
  source.names = [source](MaterialFamily family) {
    const std::size_t keyword = *storage::TableOf(family).Find("Parola chiave");
    std::vector<storage::ListedMaterial> names;
    for (const MaterialCells& row : source.rows(family)) {
      const auto* text = std::get_if<std::string>(&row.at(keyword));
      names.push_back({std::get<std::string>(row.front()), text == nullptr ? std::string() : *text});
    }
    return names;
  };
  source.find = [source](MaterialFamily family, const std::string& name) -> std::optional<MaterialCells> {
    for (MaterialCells& row : source.rows(family)) {
      if (std::get<std::string>(row.front()) == name) return row;
    }
    return std::nullopt;
  };
  source.remove = [this, check](MaterialFamily family, const std::string& name) {
    check();
    if (family == MaterialFamily::kStructural) return Erase(structural, name);
    return family == MaterialFamily::kFibrous ? Erase(fibrous, name) : Erase(resilient, name);
  };
  source.edit = [this](QWidget*, MaterialFamily, const std::string& name) {
    opened.push_back(name);
    return edited;
  };
  return source;
}

void Picture(QWidget& window, const QString& name) {
  const QString folder = qEnvironmentVariable("VELMAR_PICTURES");
  if (!folder.isEmpty()) window.grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

}  // namespace velmar::shell
