#include "storage/library/measured_test.h"

#include <string_view>
#include <utility>
#include <variant>

namespace velmar::storage {
namespace {

/// Reads cells by the name of their column.
class Reader {
 public:
  Reader(const TableSchema& schema, const std::vector<Cell>& cells) : schema_(schema), cells_(cells) {}

  std::optional<double> Number(std::string_view column) const {
    const auto place = schema_.Find(column);
    const auto* number = place ? std::get_if<double>(&cells_.at(*place)) : nullptr;
    return number == nullptr ? std::nullopt : std::optional<double>(*number);
  }
  std::string Text(std::string_view column) const {
    const auto place = schema_.Find(column);
    const auto* text = place ? std::get_if<std::string>(&cells_.at(*place)) : nullptr;
    return text == nullptr ? std::string() : *text;
  }

 private:
  const TableSchema& schema_;
  const std::vector<Cell>& cells_;
};

/// Fills cells by the name of their column; a column that the table lacks is passed over.
class Writer {
 public:
  explicit Writer(const TableSchema& schema) : schema_(schema), cells_(schema.columns.size()) {}

  void Number(std::string_view column, const std::optional<double>& value) {
    const auto place = schema_.Find(column);
    if (place && value) cells_.at(*place) = *value;
  }
  void Text(std::string_view column, const std::string& value) {
    const auto place = schema_.Find(column);
    if (place && !value.empty()) cells_.at(*place) = value;
  }
  std::vector<Cell> Cells() { return std::move(cells_); }

 private:
  const TableSchema& schema_;
  std::vector<Cell> cells_;
};

bool AreDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// "12/05/1998" of "1998-05-12" or "1998-05-12T00:00:00", as a date column of an Access file reads; any other
/// text as it stands.
std::string AsWrittenInItaly(const std::string& date) {
  constexpr std::size_t kDay = 10;
  const std::string_view text = date;
  const bool iso = text.size() >= kDay && text[4] == '-' && text[7] == '-' && AreDigits(text.substr(0, 4)) &&
                   AreDigits(text.substr(5, 2)) && AreDigits(text.substr(8, 2)) &&
                   (text.size() == kDay || text[kDay] == 'T' || text[kDay] == ' ');
  if (!iso) return date;
  return date.substr(8, 2) + '/' + date.substr(5, 2) + '/' + date.substr(0, 4);
}

}  // namespace

bool IsSmallElement(const LibraryFolder& folder) { return folder.table.name == "Dnew_laboratorio"; }

std::array<std::string, 2> AdaptationColumns(const LibraryFolder& folder) {
  std::array<std::string, 2> names;
  const std::optional<std::size_t> rating = folder.table.Find(folder.rating);
  const std::optional<std::size_t> first_band = folder.table.Find(BandColumns(folder.band_prefix).front());
  if (!rating || !first_band) return names;
  for (std::size_t i = 0; i < names.size() && *rating + 1 + i < *first_band; ++i) {
    names.at(i) = folder.table.columns[*rating + 1 + i].name;
  }
  return names;
}

MeasuredTest TestFromCells(const LibraryFolder& folder, const std::vector<Cell>& cells) {
  const Reader reader(folder.table, cells);
  const std::array<std::string, 2> adaptation = AdaptationColumns(folder);
  MeasuredTest test;
  test.name = reader.Text("Nome");
  test.description = reader.Text("Descrizione");
  test.keyword = reader.Text("Parola chiave");
  test.rating = reader.Number(folder.rating);
  test.adaptation = reader.Number(adaptation[0]);
  test.other_adaptation = reader.Number(adaptation[1]);
  const std::vector<std::string> bands = BandColumns(folder.band_prefix);
  for (std::size_t i = 0; i < bands.size(); ++i) test.bands.at(i) = reader.Number(bands[i]);
  test.area_m2 = reader.Number("Area (m²)");
  test.mass_kg_m2 = reader.Number("m' (kg/m²)");
  test.field = {reader.Number("s (mm)"), reader.Number("Ve (m³)"), reader.Number("Vr (m³)"),
                reader.Text("Cantiere")};
  test.certificate = reader.Text("Certificato");
  test.date = AsWrittenInItaly(reader.Text("Data Prova"));
  test.laboratory = reader.Text("Ente di prova");
  test.client = reader.Text("Società richiedente");
  test.notes = reader.Text("Informazione addizionale");
  test.picture = reader.Text("Immagine");
  test.index_kind = reader.Text("Indice");
  test.index_value = reader.Number("Valore indice (dB)");
  test.rating_origin = reader.Text("Origine indice");
  const std::vector<std::string> octaves = OctaveColumns(folder.band_prefix);
  for (std::size_t i = 0; i < octaves.size(); ++i) test.octaves.at(i) = reader.Number(octaves[i]);
  test.uncertainty_db = reader.Number("Incertezza (dB)");
  test.source = reader.Text("Fonte");
  return test;
}

std::vector<Cell> CellsFromTest(const LibraryFolder& folder, const MeasuredTest& test) {
  Writer writer(folder.table);
  const std::array<std::string, 2> adaptation = AdaptationColumns(folder);
  writer.Text("Nome", test.name);
  writer.Text("Descrizione", test.description);
  writer.Text("Parola chiave", test.keyword);
  writer.Number(folder.rating, test.rating);
  writer.Number(adaptation[0], test.adaptation);
  writer.Number(adaptation[1], test.other_adaptation);
  const std::vector<std::string> bands = BandColumns(folder.band_prefix);
  for (std::size_t i = 0; i < bands.size(); ++i) writer.Number(bands[i], test.bands.at(i));
  writer.Number("Area (m²)", test.area_m2);
  writer.Number("m' (kg/m²)", test.mass_kg_m2);
  writer.Number("s (mm)", test.field.thickness_mm);
  writer.Number("Ve (m³)", test.field.source_volume_m3);
  writer.Number("Vr (m³)", test.field.receiving_volume_m3);
  writer.Text("Cantiere", test.field.site);
  writer.Text("Certificato", test.certificate);
  writer.Text("Data Prova", test.date);
  writer.Text("Ente di prova", test.laboratory);
  writer.Text("Società richiedente", test.client);
  writer.Text("Informazione addizionale", test.notes);
  writer.Text("Immagine", test.picture.empty() ? std::string(kNoTestPicture) : test.picture);
  writer.Text("Indice", test.index_kind);
  writer.Number("Valore indice (dB)", test.index_value);
  writer.Text("Origine indice", test.rating_origin);
  const std::vector<std::string> octaves = OctaveColumns(folder.band_prefix);
  for (std::size_t i = 0; i < octaves.size(); ++i) writer.Number(octaves[i], test.octaves.at(i));
  writer.Number("Incertezza (dB)", test.uncertainty_db);
  writer.Text("Fonte", test.source);
  return writer.Cells();
}

MeasuredCurve CurveOf(const LibraryFolder& folder, const MeasuredTest& test) {
  return {test.name,
          test.description,
          test.bands,
          test.rating,
          test.adaptation,
          test.other_adaptation,
          IsSmallElement(folder) ? std::optional<double>(0.0) : test.area_m2,
          test.mass_kg_m2.value_or(0.0)};
}

}  // namespace velmar::storage
