#include "shell/materials/material_columns.h"

#include <array>
#include <string_view>

#include "elements/materials.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"
#include "storage/materials/material_row.h"

namespace velmar::shell {
namespace {

/// A column of the tables: symbols are the same in every language, words are rows of the catalogue.
struct Heading {
  std::string_view column{};
  const char* symbol = "";
  MessageRow row{};      ///< heading in words; none: the symbol
  MessageRow tip_row{};  ///< what the symbol stands for; none: the heading says it
  bool main = true;
};

constexpr bool kOnRequest = false;

// clang-format off
constexpr std::array kHeadings = {
    Heading{"Materiale", "", kMaterialHeadingRow},
    Heading{"s (mm)", "s (mm)", {}, kMaterialThicknessRow},
    Heading{"Densità (kg/m³)", "", kDensityHeadingRow, kMaterialDensityRow},
    Heading{"m' (kg/m²)", "m' (kg/m²)", {}, kMaterialSurfaceMassRow},
    Heading{"fonoassorbente", "", kAbsorbingHeadingRow, kPorousRow},
    Heading{"Modulo di Young E (GPa)", "E (GPa)", {}, kMaterialYoungsModulusRow},
    Heading{"Frequenza di coincidenza fc (Hz)", "fc (Hz)", {}, kCriticalFrequencyRow},
    Heading{"Fattore di perdita interna", "η", {}, kMaterialLossFactorRow},
    Heading{"Rapporto di Poisson", "ν", {}, kPoissonsRatioRow},
    Heading{"Resistenza specifica al flusso Rs (Pa sec/m)", "Rs (Pa s/m)", {}, kMaterialFlowResistanceRow},
    Heading{"s' (MN/m³)", "s' (MN/m³)", {}, kDynamicStiffnessRow},
    Heading{"Delta Ln,w (dB)", "ΔLn,w (dB)", {}, kImpactImprovementRow},
    Heading{"f0 (Hz)", "f0 (Hz)", {}, kResonanceRow},
    Heading{"Parola chiave", "", kKeywordFilterRow},
    Heading{"Descrizione materiale", "", kDescriptionRow},
    Heading{"Descrizione", "", kDescriptionRow},
    Heading{"Lambda (W/m K)", "λ (W/m K)", {}, kThermalConductivityTipRow, kOnRequest},
    Heading{"C (W/m² K)", "C (W/m² K)", {}, kThermalConductanceTipRow, kOnRequest},
    Heading{"Sigma_a 10^12 (Kg/msPa)", "σa·10¹² (kg/m s Pa)", {}, kVapourPermeabilityDryTipRow, kOnRequest},
    Heading{"Sigma_u 10^12 (Kg/msPa)", "σu·10¹² (kg/m s Pa)", {}, kVapourPermeabilityWetTipRow, kOnRequest},
    Heading{"R (m² K/W)", "R (m² K/W)", {}, kThermalResistanceTipRow, kOnRequest},
    Heading{"Immagine", "", kFieldPictureRow, {}, kOnRequest},
    Heading{"Fonte", "", kSourceHeadingRow, {}, kOnRequest},
};
// clang-format on

QString WithoutColon(QString text) {
  if (text.endsWith(QLatin1Char(':'))) text.chop(1);
  return text;
}

MaterialColumn ColumnOf(const Heading& heading, const WindowTools& tools) {
  MaterialColumn column;
  column.heading = heading.row != MessageRow{} ? tools.Text(heading.row) : QString::fromUtf8(heading.symbol);
  column.tip = heading.tip_row != MessageRow{} ? WithoutColon(tools.Text(heading.tip_row)) : column.heading;
  column.main = heading.main;
  return column;
}

MaterialColumn AbsorptionColumn(std::size_t band, const WindowTools& tools) {
  const QString centre = FromUtf8(FormatShortest(elements::kAbsorptionBandCentres.at(band)));
  MaterialColumn column;
  column.heading = QStringLiteral("α %1").arg(centre);
  column.tip = tools.Text(kAbsorptionCoefficientsRow) + QStringLiteral(", %1 Hz").arg(centre);
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
  if (const auto* text = std::get_if<std::string>(&cell)) return FromUtf8(*text);
  if (const auto* number = std::get_if<double>(&cell)) return FromUtf8(FormatShortest(*number));
  if (const auto* yes = std::get_if<bool>(&cell)) return tools.Text(*yes ? kYesRow : kNoRow);
  return {};
}

}  // namespace velmar::shell
