#include "tests/storage/project/random_setup.h"

#include <array>
#include <bit>
#include <cmath>

#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using elements::Family;
using elements::Setup;

template <typename Material>
void Show(elements::LayerRow<Material>& row) {
  row.listed = row.slot.name;
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
}

void FillSeaRow(elements::LayerRow<elements::StructuralMaterial>& row, RandomSource& random) {
  auto& slot = row.slot;
  slot.name = random.Text();
  slot.description = random.Text();
  for (double* value :
       {&slot.thickness_mm, &slot.density_kg_m3, &slot.youngs_modulus_gpa, &slot.critical_frequency_hz,
        &slot.loss_factor, &slot.poissons_ratio, &slot.surface_mass_kg_m2, &slot.thermal_conductance_w_m2k}) {
    *value = random.Number();
  }
  Show(row);
}

void FillLeafRow(elements::LayerRow<elements::StructuralMaterial>& row, RandomSource& random) {
  FillSeaRow(row, random);
  row.multiplicity = 1 + random.Below(9);
  row.slot.thermal_conductivity_w_mk = random.Number();
  row.slot.vapour_permeability_dry = random.Number();
  row.slot.vapour_permeability_wet = random.Number();
  row.slot.thermal_resistance_m2k_w = random.Number();
}

void FillLeaf(elements::LeafLayers& leaf, RandomSource& random) {
  leaf.count = 1 + random.Below(10);
  for (int i = 0; i < leaf.count; ++i) FillLeafRow(leaf.rows.at(static_cast<std::size_t>(i)), random);
}

void FillSeaLeaf(elements::SeaLeaf& leaf, RandomSource& random) {
  leaf.count = 1 + random.Below(3);
  for (std::size_t i = 0; i < static_cast<std::size_t>(leaf.count); ++i) {
    FillSeaRow(leaf.rows.at(i), random);
    for (const std::size_t d : {2 * i, 2 * i + 1}) {
      leaf.damping.at(d).ticked = random.Coin();
      if (leaf.damping.at(d).ticked) FillSeaRow(leaf.damping.at(d).row, random);
    }
  }
}

void FillSolid(elements::FibrousMaterial& slot, RandomSource& random) {
  slot.youngs_modulus_gpa = random.Number();
  slot.loss_factor = random.Number();
  slot.poissons_ratio = random.Number();
}

void FillSeaCavity(elements::SeaCavity& cavity, RandomSource& random, int types) {
  cavity.type = static_cast<elements::SeaCavityType>(random.Below(types));
  cavity.depth_text = FormatShortest(random.Single());
  for (std::size_t j = 0; j < static_cast<std::size_t>(FibreCount(cavity.type)); ++j) {
    auto& row = cavity.fibres.at(j);
    row.slot.name = random.Text();
    row.slot.description = random.Text();
    row.slot.thickness_mm = random.Number();
    row.slot.density_kg_m3 = random.Number();
    FillSolid(row.slot, random);
    Show(row);
  }
  for (std::size_t k = 0; k < static_cast<std::size_t>(MassCount(cavity.type)); ++k) {
    FillSeaRow(cavity.masses.at(k), random);
  }
  for (auto& damping : cavity.mass_damping) {
    damping.ticked = random.Coin();
    if (damping.ticked) FillSeaRow(damping.row, random);
  }
}

void FillCavityRow(elements::LayerRow<elements::FibrousMaterial>& row, RandomSource& random) {
  row.slot.name = random.Text();
  row.slot.description = random.Text();
  row.slot.thickness_mm = random.Number();
  row.multiplicity = 1 + random.Below(9);
  row.slot.density_kg_m3 = random.Number();
  row.slot.porous = random.Coin();
  if (row.slot.porous) {
    row.slot.flow_resistance_pa_s_m = random.Number();
  } else {
    FillSolid(row.slot, random);
  }
  Show(row);
}

void FillCavityLayers(elements::CavityLayers& layers, RandomSource& random) {
  layers.count = 1 + random.Below(7);
  for (std::size_t i = 0; i < static_cast<std::size_t>(layers.count); ++i)
    FillCavityRow(layers.rows.at(i), random);
}

void FillResilient(elements::ResilientLayers& layers, RandomSource& random) {
  layers.count = random.Below(11);
  for (std::size_t i = 0; i < static_cast<std::size_t>(layers.count); ++i) {
    auto& row = layers.rows.at(i);
    row.slot = {random.Text(),   random.Text(),   random.Number(), random.Number(),
                random.Number(), random.Number(), random.Number()};
    row.multiplicity = 1 + random.Below(9);
    Show(row);
  }
}

template <typename Element>
void FillRated(Element& element, RandomSource& random) {
  element.name = random.Text();
  element.description = random.Text();
  for (std::string* text : {&element.area_text, &element.rating_text, &element.c_text, &element.ctr_text}) {
    *text = random.Text();
  }
  for (std::string& band : element.band_texts) band = random.Coin() ? "" : random.Text();
  element.mass_kg_m2 = random.Single();
}

void FillCavity(Setup& setup, RandomSource& random) {
  setup.cavity.kind = static_cast<elements::CavityKind>(random.Below(3));
  if (setup.cavity.kind == elements::CavityKind::kGenericMaterial)
    FillCavityLayers(setup.cavity.layers, random);
  setup.cavity.depth_text = random.Text();
  const int mark = RowOf(*setup.calculation).mark;
  if (mark >= 11 && mark <= 16) setup.cavity.fibre_text = "5" + random.Text();
  using enum Calculation;
  if (setup.calculation == kLightWallLineLine || setup.calculation == kLightWallLinePoint ||
      setup.calculation == kLightWallPointPoint) {
    setup.support_distance_text = random.Coin() ? "60" : "4" + random.Text();
  }
}

void FillFacade(Setup& setup, RandomSource& random) {
  FillRated(setup.base, random);
  setup.facade.simplified = random.Coin();
  setup.facade.count_text = random.Coin() ? "9 " : std::to_string(1 + random.Below(9));
  for (std::size_t i = 0; i < static_cast<std::size_t>(setup.facade.Count()); ++i) {
    FillRated(setup.facade.components.at(i), random);
    setup.facade.components.at(i).tightness_class = random.Below(5);
  }
}

void FillLining(Setup& setup, RandomSource& random) {
  FillRated(setup.base, random);
  setup.base.thickness_mm = random.Number();
  FillSeaCavity(setup.sea_cavity, random, 2);
  FillSeaLeaf(setup.sea_leaf2, random);
  if (setup.calculation == Calculation::kLiningFrame) setup.support_distance_text = random.Text();
  if (setup.calculation == Calculation::kCeilingSea) setup.hanger = random.Below(4) - 1;
}

void FillSea(Setup& setup, RandomSource& random) {
  if (setup.calculation == Calculation::kDoubleWallSeaBrick) {
    setup.decoupled = random.Coin();
  } else {
    setup.support_distance_text = random.Text();
  }
  FillSeaLeaf(setup.sea_leaf1, random);
  FillSeaCavity(setup.sea_cavity, random, elements::kSeaCavityTypeCount);
  FillSeaLeaf(setup.sea_leaf2, random);
}

void FillMultilayer(elements::Multilayer& list, RandomSource& random) {
  using elements::StratumKind;
  list.framed = random.Coin();
  list.count = 1 + random.Below(elements::Multilayer::kCapacity);
  for (int i = 0; i < list.count; ++i) {
    elements::Stratum& stratum = list.strata.at(static_cast<std::size_t>(i));
    stratum.kind = static_cast<StratumKind>(random.Below(elements::kStratumKindCount));
    if (elements::TakesSolid(stratum.kind)) {
      FillLeafRow(stratum.solid, random);
    } else if (stratum.kind == StratumKind::kFibre) {
      FillCavityRow(stratum.fibre, random);
      stratum.flow_resistivity_pa_s_m2 = random.Number();
    } else {
      stratum.thickness_text = random.Text();
    }
    if (stratum.kind == StratumKind::kProfiledSheet) {
      stratum.profile_height_text = random.Text();
      stratum.profile_pitch_text = random.Text();
    }
    if (!list.BeginsCavity(i)) continue;
    stratum.connection =
        static_cast<elements::CavityConnection>(random.Below(elements::kCavityConnectionCount));
    stratum.connection_text = random.Text();
  }
}

void FillFamily(Setup& setup, Family family, RandomSource& random) {
  switch (family) {
    case Family::kSingle:
      return FillLeaf(setup.leaf1, random);
    case Family::kSeaSingle:
      return FillSeaLeaf(setup.sea_leaf1, random);
    case Family::kSea:
      return FillSea(setup, random);
    case Family::kDouble:
    case Family::kSharp:
    case Family::kImpact:
      FillLeaf(setup.leaf1, random);
      FillLeaf(setup.leaf2, random);
      if (RowOf(*setup.calculation).button == elements::ElementButton::kFloor) {
        return FillResilient(setup.resilient, random);
      }
      return FillCavity(setup, random);
    case Family::kLining:
    case Family::kCeiling:
      return FillLining(setup, random);
    case Family::kFacade:
      return FillFacade(setup, random);
    case Family::kMultilayer:
      return FillMultilayer(setup.multilayer, random);
  }
}

}  // namespace

double RandomSource::Number() {
  switch (Below(4)) {
    case 0:
      return Below(3000);
    case 1:
      return Below(100'000) / 1000.0;
    case 2:
      return -Below(1000) / 8.0;
    default: {
      const double value = std::bit_cast<double>(engine_());
      return std::isfinite(value) ? value : 0.0;
    }
  }
}

float RandomSource::Single() {
  const float value = std::bit_cast<float>(static_cast<std::uint32_t>(engine_()));
  return Coin() && std::isfinite(value) ? value : static_cast<float>(Below(10'000)) / 16.0F;
}

std::string RandomSource::Text() {
  constexpr std::array<const char*, 12> kPieces = {"Laterizio", "perché",  "2,5",    "°C", "30 %", "€",
                                                   "\"x\"",     "a = {b}", "lana;y", "'",  "/",    "Ø 12"};
  std::string text;
  for (int pieces = Below(4); pieces >= 0; --pieces) {
    text += kPieces.at(static_cast<std::size_t>(Below(static_cast<int>(kPieces.size()))));
    if (pieces > 0) text += ' ';
  }
  return text;
}

elements::KeyedValues RandomKeyedValues(RandomSource& random) {
  constexpr std::array<const char*, 12> kPieces = {"x",  " ", "\\",      "\n", "\r", "€",
                                                   "漢", "😀", "e\u0300", "\t", "=",  "\\u{41}"};
  elements::KeyedValues values;
  for (int count = random.Below(6); count > 0; --count) {
    std::string text;
    for (int pieces = random.Below(8); pieces > 0; --pieces)
      text += kPieces.at(static_cast<std::size_t>(random.Below(static_cast<int>(kPieces.size()))));
    values.Set<std::string>({"nome." + std::to_string(random.Below(100))}, text);
  }
  return values;
}

Setup RandomSetup(Calculation calculation, RandomSource& random) {
  Setup setup;
  setup.calculation = calculation;
  for (std::size_t row = 0; row < setup.information.size(); ++row) {
    setup.information.at(row) = {random.Text(), random.Text()};
    if (row != elements::kNotesRow) continue;
    setup.information.at(row).value = "prima\r\nseconda\r\n\r\nquarta " + std::to_string(random.Below(9));
  }
  const Family family = RowOf(calculation).family;
  const bool has_dimensions =
      family != Family::kLining && family != Family::kCeiling && family != Family::kFacade;
  if (has_dimensions) {
    setup.width_text = random.Text();
    setup.height_text = random.Text();
  }
  FillFamily(setup, family, random);
  setup.further = RandomKeyedValues(random);
  return setup;
}

}  // namespace velmar::storage
