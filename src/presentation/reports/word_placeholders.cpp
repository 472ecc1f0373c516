#include "presentation/reports/word_placeholders.h"

#include <string>

#include "foundation/decimal.h"
#include "presentation/texts/result_lines.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {
namespace {

// With fewer the masses of thin boards would not add up to the total.
constexpr int kMassDecimals = 2;
constexpr const char* kUnit = " [dB]";

/// A small element's area is entered as "-".
std::string OrDash(const std::string& text) { return text.empty() || text == "-" ? kNoValue : text; }

std::string Number(std::optional<double> value, int decimals) {
  return value ? FormatFixed(*value, decimals) : std::string();
}

/// "Ri" of "Ri [dB]".
std::string WithoutUnit(const std::string& heading) {
  const std::size_t unit = heading.find(kUnit);
  return unit == std::string::npos ? heading : heading.substr(0, unit);
}

/// What the program composed; names and texts that somebody typed are none of it.
std::string Set(const ReportRecord& record, const std::string& text) {
  return ForPaper(text, record.language);
}

/// "4 × 2,7 m"; of a calculation that reads one of the two that one behind its caption.
std::string DimensionsText(const ReportRecord& record) {
  if (!record.width.empty() && !record.height.empty()) return record.width + " × " + record.height + " m";
  if (!record.width.empty()) return record.width_caption + " " + record.width;
  if (!record.height.empty()) return record.height_caption + " " + record.height;
  return kNoValue;
}

void AddBands(const ReportRecord& record, Placeholders& values) {
  for (std::size_t band = 0; band < record.bands.size(); ++band) {
    const std::string number = std::to_string(band);
    values["P1_RIS" + number] = Set(record, FormatLevel(record.bands[band].level_db));
    values["P1_RIF" + number] = record.bands[band].reference;
  }
}

Placeholders HeadingValues(const StructureRow& row) { return {{"P2_GRUPPO", row.name}}; }

Placeholders RowValues(const ReportRecord& record, const StructureRow& row) {
  const bool composed = row.kind == StructureKind::kWords;
  return {{"P2_NUMERO", row.number > 0 ? std::to_string(row.number) : std::string()},
          {"P2_STRATO", composed ? Set(record, row.name) : FullName(row)},
          {"P2_NOME", composed ? Set(record, row.name) : row.name},
          {"P2_DESCRIZIONE", row.description},
          {"P2_SPESSORE", Set(record, OrDash(ThicknessText(row)))},
          {"P2_MPRIMO", Set(record, OrDash(Number(row.mass_kg_m2, kMassDecimals)))},
          {"P2_RW", Set(record, OrDash(row.rating))},
          {"P2_AREA", Set(record, OrDash(row.area))},
          {"P2_PERCENTUALEAREA", Set(record, OrDash(row.share))},
          {"P2_NOTA", row.note}};
}

}  // namespace

std::string ThicknessText(const StructureRow& row) {
  if (row.thickness_mm <= 0.0) return {};
  const std::string thickness = FormatShortest(row.thickness_mm);
  return row.multiplicity > 1 ? std::to_string(row.multiplicity) + " x " + thickness : thickness;
}

Placeholders TextPlaceholders(const ReportRecord& record) {
  const std::string thickness =
      Set(record, record.totals ? FormatShortest(record.totals->thickness_mm) : std::string());
  const std::string mass = Set(record, Number(record.surface_mass_kg_m2, kMassDecimals));
  Placeholders values = {
      {"P1_TITOLO", record.title},
      {"P1_TIPOISOLAMENTO", record.insulation},
      {"CODICE_ALLEGATO", OrDash(record.information[elements::kAttachmentRow].value)},
      {"P1_DESCRIZIONE_ELEMENTO", Set(record, OrDash(record.description))},
      {"P1_NOTE", OrDash(record.information[elements::kNotesRow].value)},
      {"P1_TIPO_COMP", record.kind_of_element},
      {"P1_TIPO_ELEMENTO", record.element_type},
      {"P1_TIPO_TEORIA", record.theory},
      {"P1_RESULT1", Set(record, record.result_line)},
      {"P1_RESULT2", Set(record, record.improvement_line)},
      {"P1_INDICI", Set(record, record.further_line)},
      {"P1_RISULTANTE", Set(record, record.resulting_line)},
      {"P1_NOTA_RISULTATO", Set(record, record.rating_note)},
      {"P1_MESSAGGI", Set(record, record.messages)},
      {"P1_PROGETTO", record.footer},
      {"P1_TECNICO", record.engineer},
      {"P1_DATA", record.date},
      {"STUDIO_NOME", record.letterhead.name},
      {"STUDIO_INDIRIZZO", record.letterhead.address},
      {"STUDIO_PIEDE", record.letterhead.footer},
      {"STUDIO_ALBO", record.letterhead.register_number},
      {"STUDIO_LOGO", ""},
      {"STUDIO_FIRMA", ""},
      {"P1_TIPORIS", WithoutUnit(record.band_heading)},
      {"P1_NORMA", record.standard},
      {"P1_DATILABORATORIO", record.laboratory_data},
      {"P1_DATIOPERA", record.in_situ_data},
      {"P1_RISULTATOGRAFICO", ""},
      {"P2_DISEGNO", ""},
      {"P1_DIMENSIONI", Set(record, DimensionsText(record))},
      {"P1_LARGHEZZA", Set(record, OrDash(record.width))},
      {"P1_ALTEZZA", Set(record, OrDash(record.height))},
      {"P1_AREA", Set(record, OrDash(record.area))},
      {"P2_PARETEBASE", OrDash(record.base_element)},
      {"P2_TIPOPENDINO", record.hanger},
      {"P2_SPESSORE", OrDash(thickness)},
      {"P2_MPRIMO", OrDash(mass)},
      {"P2_PERCENTUALEAREA", ""},
      {"P2_SPESSORE_TOTALE", OrDash(thickness)},
      {"P2_MPRIMO_TOTALE", OrDash(mass)},
  };
  AddBands(record, values);
  return values;
}

RowPattern StructurePattern(const ReportRecord& record) {
  RowPattern pattern{.keys = {"P2_STRATO", "P2_NOME", "P2_DESCRIZIONE", "P2_NUMERO", "P2_SPESSORE",
                              "P2_MPRIMO", "P2_PERCENTUALEAREA", "P2_RW", "P2_AREA", "P2_NOTA"},
                     .heading_key = "P2_GRUPPO"};
  for (const StructureRow& row : record.structure) {
    const bool heading = row.kind == StructureKind::kHeading;
    pattern.rows.push_back(
        {.heading = heading, .values = heading ? HeadingValues(row) : RowValues(record, row)});
  }
  return pattern;
}

RowPattern InformationPattern(const ReportRecord& record) {
  RowPattern pattern{.keys = {"P1_INFO_VALORE"}};
  for (std::size_t i = 0; i < record.information.size(); ++i) {
    const elements::ProjectInformationRow& row = record.information[i];
    if (i == elements::kNotesRow || i == elements::kAttachmentRow || row.value.empty()) continue;
    pattern.rows.push_back(
        {.heading = false, .values = {{"P1_INFO_TITOLO", row.caption}, {"P1_INFO_VALORE", row.value}}});
  }
  return pattern;
}

std::set<std::string> KnownPlaceholders() {
  std::set<std::string> known = {"P3_DATI", "P1_INFO_TITOLO", "P1_INFO_VALORE"};
  for (const Placeholders& values : {TextPlaceholders({}), HeadingValues({}), RowValues({}, {})}) {
    for (const auto& [name, value] : values) known.insert(name);
  }
  for (const BlockMarkers& block : kBlockMarkers) {
    known.emplace(block.start);
    known.emplace(block.end);
  }
  return known;
}

}  // namespace velmar::presentation
