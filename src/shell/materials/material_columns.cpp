#include "shell/materials/material_columns.h"

#include <array>
#include <string_view>

#include "elements/materials.h"
#include "foundation/decimal.h"
#include "storage/materials/material_row.h"

namespace velmar::shell {
namespace {

constexpr MessageRow kYesRow{363};
constexpr MessageRow kNoRow{364};
constexpr MessageRow kAbsorptionRow{342};

/// A column of the tables: symbols are the same in every language, words are rows of the catalogue.
struct Heading {
  std::string_view column{};
  const char* symbol = "";
  int row = 0;      ///< heading in words; 0: the symbol
  int tip_row = 0;  ///< what the symbol stands for; 0: the heading says it
  bool main = true;
};

constexpr bool kOnRequest = false;

// clang-format off
constexpr std::array kHeadings = {
    Heading{"Materiale", "", 1602},
    Heading{"s (mm)", "s (mm)", 0, 328},
    Heading{"Densità (kg/m³)", "", 1603, 329},
    Heading{"m' (kg/m²)", "m' (kg/m²)", 0, 332},
    Heading{"fonoassorbente", "", 1604, 340},
    Heading{"Modulo di Young E (GPa)", "E (GPa)", 0, 330},
    Heading{"Frequenza di coincidenza fc (Hz)", "fc (Hz)", 0, 333},
    Heading{"Fattore di perdita interna", "η", 0, 334},
    Heading{"Rapporto di Poisson", "ν", 0, 335},
    Heading{"Resistenza specifica al flusso Rs (Pa sec/m)", "Rs (Pa s/m)", 0, 331},
    Heading{"s' (MN/m³)", "s' (MN/m³)", 0, 337},
    Heading{"Delta Ln,w (dB)", "ΔLn,w (dB)", 0, 338},
    Heading{"f0 (Hz)", "f0 (Hz)", 0, 339},
    Heading{"Parola chiave", "", 84},
    Heading{"Descrizione materiale", "", 94},
    Heading{"Descrizione", "", 94},
    Heading{"Lambda (W/m K)", "λ (W/m K)", 0, 1605, kOnRequest},
    Heading{"C (W/m² K)", "C (W/m² K)", 0, 1606, kOnRequest},
    Heading{"Sigma_a 10^12 (Kg/msPa)", "σa·10¹² (kg/m s Pa)", 0, 1607, kOnRequest},
    Heading{"Sigma_u 10^12 (Kg/msPa)", "σu·10¹² (kg/m s Pa)", 0, 1608, kOnRequest},
    Heading{"R (m² K/W)", "R (m² K/W)", 0, 1609, kOnRequest},
    Heading{"Immagine", "", 404, 0, kOnRequest},
    Heading{"Fonte", "", 1610, 0, kOnRequest},
};
// clang-format on

QString WithoutColon(QString text) {
  if (text.endsWith(QLatin1Char(':'))) text.chop(1);
  return text;
}

MaterialColumn ColumnOf(const Heading& heading, const WindowTools& tools) {
  MaterialColumn column;
  column.heading = heading.row != 0 ? tools.Text({heading.row}) : QString::fromUtf8(heading.symbol);
  column.tip = heading.tip_row != 0 ? WithoutColon(tools.Text({heading.tip_row})) : column.heading;
  column.main = heading.main;
  return column;
}

MaterialColumn AbsorptionColumn(std::size_t band, const WindowTools& tools) {
  const QString centre = ToQt(FormatShortest(elements::kAbsorptionBandCentres.at(band)));
  MaterialColumn column;
  column.heading = QStringLiteral("α %1").arg(centre);
  column.tip = tools.Text(kAbsorptionRow) + QStringLiteral(", %1 Hz").arg(centre);
  return column;
}

}  // namespace

std::vector<MaterialColumn> ColumnsOf(elements::MaterialFamily family, const WindowTools& tools) {
  const storage::TableSchema table = storage::TableOf(family);
  std::vector<MaterialColumn> columns;
  const auto add = [&](std::string_view name, MaterialColumn column) {
    const auto place = table.Find(name);
    if (!place) return;
    column.cell = *place;
    column.type = table.columns[*place].type;
    columns.push_back(std::move(column));
  };
  for (const Heading& heading : kHeadings) {
    if (heading.column == "Immagine") {
      for (std::size_t band = 0; band < elements::kAbsorptionBandCount; ++band)
        add("Alfa" + std::to_string(band), AbsorptionColumn(band, tools));
    }
    add(heading.column, ColumnOf(heading, tools));
  }
  return columns;
}

QString Shown(const storage::Cell& cell, const WindowTools& tools) {
  if (const auto* text = std::get_if<std::string>(&cell)) return ToQt(*text);
  if (const auto* number = std::get_if<double>(&cell)) return ToQt(FormatShortest(*number));
  if (const auto* yes = std::get_if<bool>(&cell)) return tools.Text(*yes ? kYesRow : kNoRow);
  return {};
}

}  // namespace velmar::shell
