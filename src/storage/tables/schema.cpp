#include "storage/tables/schema.h"

#include <algorithm>
#include <array>

namespace velmar::storage {
namespace {

constexpr std::array<std::string_view, 21> kBandCentres = {
    "50",  "63",  "80",   "100",  "125",  "160",  "200",  "250",  "315",  "400", "500",
    "630", "800", "1000", "1250", "1600", "2000", "2500", "3150", "4000", "5000"};

constexpr std::array<std::string_view, kOctaveCount> kOctaveCentres = {"63",   "125",  "250",  "500",
                                                                       "1000", "2000", "4000", "8000"};

class Columns {
 public:
  Columns& Text(std::string_view name) { return Add(name, ColumnType::kText); }
  Columns& Number(std::string_view name) { return Add(name, ColumnType::kNumber); }
  Columns& Whole(std::string_view name) { return Add(name, ColumnType::kWhole); }
  Columns& YesNo(std::string_view name) { return Add(name, ColumnType::kYesNo); }
  Columns& Bands(std::string_view prefix) {
    for (const std::string& name : BandColumns(prefix)) Number(name);
    return *this;
  }
  operator std::vector<ColumnSchema>() const { return columns_; }

 private:
  Columns& Add(std::string_view name, ColumnType type) {
    columns_.push_back({std::string(name), type});
    return *this;
  }
  std::vector<ColumnSchema> columns_;
};

/// What differs between the tables of the library.
struct LibraryRow {
  std::string_view key;
  std::string_view folder;
  std::string_view table;
  std::array<std::string_view, 3> ratings;  ///< the single number and its adaptation terms
  std::string_view band_prefix;
  bool field = false;  ///< measured in a building
};

constexpr std::array<LibraryRow, 8> kLibrary{{
    {"Rw", "Partizioni verticali (Rw)", "Rw_laboratorio", {"Rw (dB)", "C (dB)", "Ctr (dB)"}, "R"},
    {"DRw", "Strati aggiuntivi verticali (DRw)", "DRw_laboratorio", {"DRw (dB)", "C (dB)", "Ctr (dB)"}, "R"},
    {"Lnw",
     "Partizioni orizzontali (Lnw)",
     "Lnw_laboratorio",
     {"Lnw (dB)", "Ci (dB)", "Ci 50_5000 (dB)"},
     "Ln"},
    {"DLw", "Strati aggiuntivi orizzontali (DLw)", "DLw_laboratorio", {"DLw (dB)", "Ci (dB)", ""}, "DLn"},
    {"Infissi", "Infissi", "Infissi", {"Rw (dB)", "C (dB)", "Ctr (dB)"}, "R"},
    {"Piccoli elementi",
     "Piccoli elementi (Dnew)",
     "Dnew_laboratorio",
     {"Dnew (dB)", "C (dB)", "Ctr (dB)"},
     "Dn"},
    {"R'w", "Dati in opera_Rw", "Rw_in_opera", {"Rw (dB)", "C (dB)", "Ctr (dB)"}, "R", true},
    {"L'nw", "Dati in opera_Lnw", "Lnw_in_opera", {"Lnw (dB)", "Ci (dB)", "Ci 50_5000 (dB)"}, "Ln", true},
}};

TableSchema LibraryTable(const LibraryRow& row) {
  Columns columns;
  columns.Text("Nome").Text("Descrizione").Text("Parola chiave");
  for (const std::string_view rating : row.ratings) {
    if (!rating.empty()) columns.Number(rating);
  }
  columns.Bands(row.band_prefix).Number("Area (m²)").Number("m' (kg/m²)");
  if (row.field) columns.Number("Ve (m³)").Number("Vr (m³)").Number("s (mm)").Text("Cantiere");
  columns.Text("Certificato")
      .Text("Data Prova")
      .Text("Ente di prova")
      .Text("Società richiedente")
      .Text("Informazione addizionale")
      .Text("Immagine")
      .Text("Indice")
      .Number("Valore indice (dB)")
      .Text("Origine indice");
  for (const std::string& name : OctaveColumns(row.band_prefix)) columns.Number(name);
  columns.Number("Incertezza (dB)").Text("Fonte");
  return {std::string(row.table), columns, "Nome", false};
}

std::string_view SqlType(ColumnType type) {
  switch (type) {
    case ColumnType::kText:
      return "TEXT";
    case ColumnType::kNumber:
      return "REAL";
    case ColumnType::kYesNo:
    case ColumnType::kWhole:
      return "INTEGER";
  }
  return "";
}

}  // namespace

std::optional<size_t> TableSchema::Find(std::string_view column) const {
  const auto found = std::find_if(columns.begin(), columns.end(), [column](const ColumnSchema& candidate) {
    return candidate.name == column;
  });
  if (found == columns.end()) return std::nullopt;
  return static_cast<size_t>(found - columns.begin());
}

TableSchema StructuralMaterialTable() {
  return {"Modulo_A1",
          Columns()
              .Text("Materiale")
              .Text("Descrizione materiale")
              .Number("s (mm)")
              .Number("Densità (kg/m³)")
              .Number("m' (kg/m²)")
              .Number("Modulo di Young E (GPa)")
              .Number("Frequenza di coincidenza fc (Hz)")
              .Number("Fattore di perdita interna")
              .Number("Rapporto di Poisson")
              .Number("Lambda (W/m K)")
              .Number("C (W/m² K)")
              .Number("Sigma_a 10^12 (Kg/msPa)")
              .Number("Sigma_u 10^12 (Kg/msPa)")
              .Number("R (m² K/W)")
              .Text("Parola chiave")
              .Text("Fonte"),
          "Materiale", true};
}

TableSchema FibrousMaterialTable() {
  Columns columns;
  columns.Text("Materiale")
      .Text("Descrizione")
      .Number("s (mm)")
      .Number("Densità (kg/m³)")
      .YesNo("fonoassorbente")
      .Number("Modulo di Young E (GPa)")
      .Number("Fattore di perdita interna")
      .Number("Rapporto di Poisson")
      .Number("Resistenza specifica al flusso Rs (Pa sec/m)");
  for (int band = 0; band < 19; ++band) columns.Number("Alfa" + std::to_string(band));
  columns.Text("Immagine").Text("Parola chiave").Text("Fonte");
  return {"Modulo_A2", columns, "Materiale", true};
}

TableSchema ResilientMaterialTable() {
  return {"Modulo_A3",
          Columns()
              .Text("Materiale")
              .Text("Descrizione materiale")
              .Number("s (mm)")
              .Number("Densità (kg/m³)")
              .Number("s' (MN/m³)")
              .Number("Delta Ln,w (dB)")
              .Number("f0 (Hz)")
              .Text("Immagine")
              .Text("Parola chiave")
              .Text("Fonte"),
          "Materiale", true};
}

std::vector<TableSchema> MaterialTables() {
  return {StructuralMaterialTable(), FibrousMaterialTable(), ResilientMaterialTable()};
}

TableSchema AirborneResultTable() {
  Columns columns;
  columns.Text("Nome")
      .Text("Descrizione")
      .Number("Rw (dB)")
      .Number("Area (m²)")
      .Number("s (mm)")
      .Number("m' (kg/m²)");
  columns.Bands("R").Number("C (dB)").Number("Ctr (dB)").Text("Immagine").Number("fc (Hz)").Number("Eta int");
  return {"Potere_fonoisolante", columns, "Nome", true};
}

TableSchema ImpactResultTable() {
  Columns columns;
  columns.Text("Nome")
      .Text("Descrizione")
      .Number("Lnw (dB)")
      .Number("Area (m²)")
      .Number("s (mm)")
      .Number("m' (kg/m²)");
  columns.Bands("Ln")
      .Number("Ci (dB)")
      .Number("Ci 50_5000 (dB)")
      .Text("Immagine")
      .Number("fc (Hz)")
      .Number("Eta int");
  return {"Livello_calpestio", columns, "Nome", true};
}

TableSchema LiningResultTable() {
  Columns columns;
  columns.Text("Nome")
      .Text("Descrizione")
      .Number("DRw (dB)")
      .Number("Area (m²)")
      .Number("s (mm)")
      .Number("m' (kg/m²)");
  columns.Bands("R").Number("C (dB)").Number("Ctr (dB)");
  return {"DRw", columns, "Nome", true};
}

std::vector<TableSchema> ResultTables() {
  return {AirborneResultTable(), ImpactResultTable(), LiningResultTable()};
}

TableSchema CatalogueTable(const std::vector<std::string>& languages) {
  Columns columns;
  for (const std::string& language : languages) columns.Text(language);
  return {"DRAV", columns, "", false};
}

TableSchema FurtherTextTable(const std::vector<std::string>& languages) {
  Columns columns;
  columns.Whole("Riga");
  for (const std::string& language : languages) columns.Text(language);
  return {"Testi", columns, "Riga", true};
}

std::vector<LibraryFolder> LibraryFolders() {
  std::vector<LibraryFolder> folders;
  folders.reserve(kLibrary.size());
  for (const LibraryRow& row : kLibrary) {
    folders.push_back({std::string(row.key), std::string(row.folder), LibraryTable(row),
                       std::string(row.ratings[0]), std::string(row.band_prefix), row.field});
  }
  return folders;
}

std::vector<std::string> BandColumns(std::string_view prefix) {
  std::vector<std::string> names;
  names.reserve(kBandCentres.size());
  for (const std::string_view centre : kBandCentres) {
    names.push_back(std::string(prefix) + " - " + std::string(centre) + "Hz (dB)");
  }
  return names;
}

std::vector<std::string> OctaveColumns(std::string_view prefix) {
  std::vector<std::string> names;
  names.reserve(kOctaveCentres.size());
  for (const std::string_view centre : kOctaveCentres) {
    names.push_back(std::string(prefix) + " ottava - " + std::string(centre) + "Hz (dB)");
  }
  return names;
}

std::string QuotedName(std::string_view name) {
  std::string quoted = "\"";
  for (const char c : name) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

std::vector<std::string> CreateStatements(const TableSchema& table) {
  std::string columns;
  bool needs_index = !table.key.empty();
  for (const ColumnSchema& column : table.columns) {
    if (!columns.empty()) columns += ", ";
    columns += QuotedName(column.name) + " ";
    columns += SqlType(column.type);
    if (column.name != table.key) continue;
    const bool is_number = column.type == ColumnType::kWhole;
    columns += is_number ? " PRIMARY KEY" : " NOT NULL";
    if (is_number) needs_index = false;
  }
  std::vector<std::string> statements = {"CREATE TABLE " + QuotedName(table.name) + " (" + columns + ")"};
  if (needs_index) {
    statements.push_back(std::string(table.unique_key ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
                         QuotedName(table.name + " " + table.key) + " ON " + QuotedName(table.name) + " (" +
                         QuotedName(table.key) + " COLLATE NOCASE)");
  }
  return statements;
}

std::string InsertStatement(const TableSchema& table) {
  std::string names;
  std::string parameters;
  for (const ColumnSchema& column : table.columns) {
    if (!names.empty()) {
      names += ", ";
      parameters += ", ";
    }
    names += QuotedName(column.name);
    parameters += '?';
  }
  return "INSERT INTO " + QuotedName(table.name) + " (" + names + ") VALUES (" + parameters + ")";
}

}  // namespace velmar::storage
