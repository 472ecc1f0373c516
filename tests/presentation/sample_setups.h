#pragma once

#include <string>

#include "acoustics/airborne_rating.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "foundation/decimal.h"

namespace velmar::presentation::samples {

template <typename Row>
void SetRow(Row& row, const std::string& name, double thickness_mm, double density, int multiplicity = 1) {
  row.listed = name;
  row.thickness_text = FormatShortest(thickness_mm);
  row.multiplicity = multiplicity;
  row.slot.name = name;
  row.slot.thickness_mm = thickness_mm;
  row.slot.density_kg_m3 = density;
}

inline elements::Setup PlasteredBrickWall() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kSingleWallBrick;
  setup.leaf1.count = 3;
  SetRow(setup.leaf1.rows[0], "Intonaco di gesso", 15.0, 1200.0);
  SetRow(setup.leaf1.rows[1], "Laterizio forato leggero 8-12 cm", 120.0, 800.0);
  SetRow(setup.leaf1.rows[2], "Intonaco di calce e cemento", 15.0, 1800.0);
  return setup;
}

inline elements::Setup PlasterboardDoubleWall() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kDoubleWallPlasterboardSeparateStuds;
  setup.leaf1.count = 1;
  SetRow(setup.leaf1.rows[0], "Cartongesso standard", 12.5, 850.0, 2);
  setup.leaf2.count = 2;
  SetRow(setup.leaf2.rows[0], "Cartongesso ad alta densità", 12.5, 1024.0);
  SetRow(setup.leaf2.rows[1], "Cartongesso standard", 12.5, 850.0);
  setup.cavity.kind = elements::CavityKind::kFibrous;
  setup.cavity.depth_text = "100";
  setup.cavity.fibre_text = "60";
  return setup;
}

/// A SEA wall whose cavity holds fibre, mass, fibre, mass and fibre, with damping on leaves and masses.
inline elements::Setup FullSeaWall() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kDoubleWallSeaPlasterboardLine;
  setup.sea_leaf1.count = 2;
  SetRow(setup.sea_leaf1.rows[0], "Cartongesso standard", 12.5, 850.0);
  SetRow(setup.sea_leaf1.rows[1], "Lastra in gessofibra", 10.0, 1150.0);
  setup.sea_leaf1.damping[1].ticked = true;
  SetRow(setup.sea_leaf1.damping[1].row, "Membrana pesante vinilica", 4.0, 2000.0);
  setup.sea_leaf2.count = 1;
  SetRow(setup.sea_leaf2.rows[0], "Cartongesso ad alta densità", 12.5, 1024.0);
  setup.sea_leaf2.damping[0].ticked = true;
  SetRow(setup.sea_leaf2.damping[0].row, "Lamina smorzante", 3.0, 1360.0);
  setup.sea_cavity.type = elements::SeaCavityType::kFibreMassFibreMassFibre;
  setup.sea_cavity.depth_text = "180";
  for (auto& fibre : setup.sea_cavity.fibres) SetRow(fibre, "Lana di roccia 40", 40.0, 40.0);
  SetRow(setup.sea_cavity.masses[0], "OSB", 12.0, 590.0);
  SetRow(setup.sea_cavity.masses[1], "Cartongesso standard", 12.5, 850.0);
  setup.sea_cavity.mass_damping[0].ticked = true;
  SetRow(setup.sea_cavity.mass_damping[0].row, "Lamina smorzante", 3.0, 1360.0);
  return setup;
}

inline elements::Setup FloatingFloor() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kImpactFloatingFloor;
  setup.leaf1.count = 3;
  SetRow(setup.leaf1.rows[0], "Intonaco di gesso", 15.0, 1200.0);
  SetRow(setup.leaf1.rows[1], "Calcestruzzo armato", 200.0, 2400.0);
  SetRow(setup.leaf1.rows[2], "Sottofondo alleggerito", 80.0, 600.0);
  setup.resilient.count = 1;
  SetRow(setup.resilient.rows[0], "Tappetino in granuli di gomma 8 mm, 760 kg/m3, s' 30", 8.0, 760.0);
  setup.leaf2.count = 2;
  SetRow(setup.leaf2.rows[0], "Massetto sabbia-cemento", 60.0, 2000.0);
  SetRow(setup.leaf2.rows[1], "Piastrella ceramica", 10.0, 2300.0);
  return setup;
}

inline elements::Setup Lining(elements::Calculation calculation) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.base.name = "Muratura in laterizio intonacata 25 cm";
  setup.base.thickness_mm = 250.0;
  setup.base.mass_kg_m2 = 310.0F;
  setup.base.rating_text = "52";
  for (std::size_t i = 0; i < setup.base.band_texts.size(); ++i) {
    setup.base.band_texts[i] = FormatShortest(36.0 + 1.2 * static_cast<double>(i));
  }
  setup.base.band_texts[0].clear();
  setup.sea_cavity.type = elements::SeaCavityType::kFibre;
  setup.sea_cavity.depth_text = "60";
  SetRow(setup.sea_cavity.fibres[0], "Lana di vetro 24", 45.0, 24.0);
  setup.sea_leaf2.count = 2;
  SetRow(setup.sea_leaf2.rows[0], "Cartongesso standard", 12.5, 850.0);
  SetRow(setup.sea_leaf2.rows[1], "Cartongesso standard", 12.5, 850.0);
  setup.sea_leaf2.damping[1].ticked = true;
  SetRow(setup.sea_leaf2.damping[1].row, "Lamina smorzante", 4.0, 1360.0);
  setup.hanger = 1;
  return setup;
}

/// A wall of `rows` sheets of 2 mm on each leaf, as far as the ten rows of a leaf go.
inline elements::Setup ManyThinLayers(int rows) {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kDoubleWallGeneric;
  setup.leaf1.count = rows;
  setup.leaf2.count = rows;
  setup.cavity.depth_text = "300";
  const char* const names[] = {"Cartongesso standard", "Lamina smorzante", "OSB",
                               "Lamiera di acciaio zincato", "Vetro float"};
  for (std::size_t i = 0; i < 10; ++i) {
    SetRow(setup.leaf1.rows[i], names[i % 5], 2.0, 850.0);
    SetRow(setup.leaf2.rows[i], names[(i + 2) % 5], 2.0, 850.0);
  }
  return setup;
}

/// A facade of an opaque part and nine components, one of them a small element.
inline elements::Setup FacadeOfNine() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kCompositeElement;
  setup.base.name = "Muratura in laterizio porizzato 30 cm con cappotto termico in lana di roccia e rasatura";
  setup.base.area_text = "48,5";
  setup.base.rating_text = "53";
  setup.base.c_text = "-1";
  setup.base.ctr_text = "-4";
  setup.facade.count_text = "9";
  for (std::size_t i = 0; i < setup.facade.components.size(); ++i) {
    elements::FacadeComponent& component = setup.facade.components[i];
    component.name =
        "Finestra a due ante in legno-alluminio, vetrocamera 44.1/16/33.1 n. " + std::to_string(i + 1);
    component.area_text = FormatShortest(1.2 + 0.35 * static_cast<double>(i));
    component.rating_text = FormatShortest(38.0 + static_cast<double>(i));
    component.tightness_class = static_cast<int>(i % 5);
  }
  setup.facade.components[8].area_text = elements::kSmallElementArea;
  setup.facade.components[8].name = "Bocchetta di ventilazione";
  return setup;
}

/// A smooth result of about `level` dB at 500 Hz that rises by `slope` dB a band.
inline elements::ResultSet Result(double level = 48.0, double slope = 1.6) {
  elements::ResultSet result;
  acoustics::Spectrum spectrum{};
  for (std::size_t i = 0; i < spectrum.size(); ++i) {
    const double dip = i >= 13 && i <= 15 ? 4.0 : 0.0;
    spectrum[i] = level + slope * (static_cast<double>(i) - 10.0) - dip;
  }
  result.spectrum = spectrum;
  result.shift = acoustics::FindShift(spectrum);
  result.rw = acoustics::RatingOfShift(*result.shift);
  const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(spectrum, *result.rw);
  result.c = terms.c;
  result.ctr = terms.ctr;
  return result;
}

/// Fills in the project information, the notes over two lines.
inline void TellTheProject(elements::Setup& setup) {
  const std::pair<const char*, const char*> rows[] = {
      {"Progetto", "Ristrutturazione di un edificio residenziale, via Garibaldi 12"},
      {"Cliente", "Società Cooperativa Edilizia «La Quercia»"},
      {"Progetto n.", "2024-117"},
      {"Tecnico", "ing. Anna Bianchi"},
      {"Dati di progetto", "Parete tra unità immobiliari distinte, piano secondo"},
      {"Note", "Valori da verificare in opera.\nGiunti perimetrali sigillati."},
      {"Allegato n./sigla", "A3"},
      {"", ""}};
  for (std::size_t i = 0; i < setup.information.size(); ++i) {
    setup.information[i] = {rows[i].first, rows[i].second};
  }
}

}  // namespace velmar::presentation::samples
