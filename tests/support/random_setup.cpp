#include "tests/support/random_setup.h"

#include <array>
#include <cmath>
#include <string>

#include "foundation/decimal.h"

namespace velmar::tests {
namespace {

/// Draws without std::uniform_*_distribution, whose values differ between standard libraries.
class Dice {
 public:
  Dice(Wildness wildness, std::mt19937_64& random) : nasty_(wildness == Wildness::kNasty), random_(random) {}

  double Unit() { return static_cast<double>(random_() >> 11U) * 0x1p-53; }
  int Whole(int lowest, int highest) {
    return lowest + static_cast<int>(random_() % static_cast<std::uint64_t>(highest - lowest + 1));
  }
  bool Coin() { return (random_() & 1U) != 0; }

  double Number(double lowest, double highest) {
    if (nasty_ && Whole(0, 7) == 0) return NastyNumber();
    return lowest * std::pow(highest / lowest, Unit());
  }

  std::string Text(double lowest, double highest) {
    if (nasty_ && Whole(0, 5) == 0) return NastyText();
    return FormatShortest(std::round(10.0 * Number(lowest, highest)) / 10.0);
  }

  bool Nasty() const { return nasty_; }

 private:
  double NastyNumber() {
    constexpr std::array kNumbers = {0.0, -1.0, 1e-300, 1e300, 1e9, -0.5, 1.0, 1e-9};
    return kNumbers.at(static_cast<std::size_t>(Whole(0, static_cast<int>(kNumbers.size()) - 1)));
  }
  std::string NastyText() {
    constexpr std::array kTexts = {"",   "-", "0",   "abc",  "1e999", "nan",
                                   "-7", ",", "1E5", "12.5", "1e300", " "};
    return kTexts.at(static_cast<std::size_t>(Whole(0, static_cast<int>(kTexts.size()) - 1)));
  }

  bool nasty_;
  std::mt19937_64& random_;
};

elements::LayerRow<elements::StructuralMaterial> StructuralRow(Dice& dice) {
  elements::LayerRow<elements::StructuralMaterial> row;
  row.multiplicity = dice.Whole(1, 3);
  row.slot = {.name = "Materiale " + std::to_string(dice.Whole(1, 99)),
              .description = dice.Coin() ? "con malta" : "",
              .thickness_mm = dice.Number(5, 300),
              .density_kg_m3 = dice.Number(400, 2600),
              .youngs_modulus_gpa = dice.Number(1, 70),
              .loss_factor = dice.Number(0.002, 0.1),
              .poissons_ratio = dice.Number(0.1, 0.35)};
  row.listed = row.slot.name;
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
  return row;
}

elements::LayerRow<elements::FibrousMaterial> FibrousRow(Dice& dice) {
  elements::LayerRow<elements::FibrousMaterial> row;
  row.multiplicity = dice.Whole(1, 2);
  row.slot = {.name = "Lana " + std::to_string(dice.Whole(1, 99)),
              .thickness_mm = dice.Number(10, 100),
              .density_kg_m3 = dice.Number(10, 120),
              .porous = dice.Whole(0, 3) != 0,
              .youngs_modulus_gpa = dice.Number(0.001, 5),
              .loss_factor = dice.Number(0.01, 0.2),
              .poissons_ratio = dice.Number(0.1, 0.3),
              .flow_resistance_pa_s_m = dice.Number(200, 5000)};
  for (float& band : row.slot.absorption) band = static_cast<float>(0.02 + 1.1 * dice.Unit());
  if (dice.Nasty() && dice.Coin()) row.slot.absorption[3] = elements::kNoAbsorption;
  row.listed = row.slot.name;
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
  return row;
}

elements::LayerRow<elements::ResilientMaterial> ResilientRow(Dice& dice) {
  elements::LayerRow<elements::ResilientMaterial> row;
  row.multiplicity = dice.Whole(1, 2);
  row.slot = {.name = "Materassino " + std::to_string(dice.Whole(1, 99)),
              .thickness_mm = dice.Number(3, 40),
              .density_kg_m3 = dice.Number(20, 800),
              .dynamic_stiffness_mn_m3 = dice.Number(4, 100)};
  row.listed = row.slot.name;
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
  return row;
}

void FillLeaf(elements::LeafLayers& leaf, Dice& dice) {
  leaf.count = dice.Whole(1, dice.Coin() ? 2 : 10);
  for (int i = 0; i < leaf.count; ++i) leaf.rows.at(static_cast<std::size_t>(i)) = StructuralRow(dice);
}

void FillSeaLeaf(elements::SeaLeaf& leaf, Dice& dice) {
  leaf.count = dice.Whole(1, 3);
  for (std::size_t i = 0; i < static_cast<std::size_t>(leaf.count); ++i) {
    leaf.rows.at(i) = StructuralRow(dice);
    leaf.rows.at(i).multiplicity = 1;
    for (const std::size_t side : {2 * i, 2 * i + 1}) {
      leaf.damping.at(side) = {.ticked = dice.Whole(0, 3) == 0, .row = StructuralRow(dice)};
      leaf.damping.at(side).row.multiplicity = 1;
    }
  }
}

void FillSeaCavity(elements::SeaCavity& cavity, int types, Dice& dice) {
  cavity.type = static_cast<elements::SeaCavityType>(dice.Whole(0, types - 1));
  cavity.depth_text = dice.Text(20, 300);
  for (auto& fibre : cavity.fibres) fibre = FibrousRow(dice);
  for (auto& mass : cavity.masses) mass = StructuralRow(dice);
  for (auto& damping : cavity.mass_damping) damping = {.ticked = dice.Coin(), .row = StructuralRow(dice)};
}

void FillBands(elements::BandTexts& bands, Dice& dice) {
  for (std::string& band : bands) band = dice.Text(15, 70);
}

void FillFacade(elements::Setup& setup, Dice& dice) {
  setup.facade.simplified = dice.Coin();
  setup.facade.count_text = std::to_string(dice.Whole(1, 9));
  for (elements::FacadeComponent& component : setup.facade.components) {
    component.name = "Finestra";
    component.description = "telaio in legno";
    component.area_text = dice.Whole(0, 4) == 0 ? elements::kSmallElementArea : dice.Text(0.3, 2);
    component.rating_text = dice.Text(25, 45);
    component.c_text = "-1";
    component.ctr_text = "-4";
    FillBands(component.band_texts, dice);
    component.mass_kg_m2 = static_cast<float>(dice.Whole(0, 60));
    component.tightness_class = dice.Whole(0, 4);
  }
}

/// One to four leaves, the rows between them of air and fibre.
void FillMultilayer(elements::Multilayer& list, Dice& dice) {
  using elements::StratumKind;
  list.framed = dice.Coin();
  list.count = 0;
  const auto add = [&](StratumKind kind) {
    elements::Stratum& stratum = list.strata.at(static_cast<std::size_t>(list.count++));
    stratum.kind = dice.Nasty() && dice.Whole(0, 15) == 0
                       ? static_cast<StratumKind>(dice.Whole(0, elements::kStratumKindCount - 1))
                       : kind;
    stratum.solid = StructuralRow(dice);
    stratum.fibre = FibrousRow(dice);
    stratum.fibre.slot.porous = stratum.fibre.slot.porous || !dice.Nasty();
    stratum.flow_resistivity_pa_s_m2 = dice.Number(2000, 60000);
    stratum.thickness_text = kind == StratumKind::kInterlayer ? dice.Text(0.4, 2) : dice.Text(5, 200);
    stratum.connection =
        static_cast<elements::CavityConnection>(dice.Whole(0, elements::kCavityConnectionCount - 1));
    stratum.connection_text = dice.Text(20, 80);
    stratum.profile_height_text = dice.Text(10, 100);
    stratum.profile_pitch_text = dice.Text(50, 400);
  };
  for (int leaves = dice.Whole(1, 3); leaves > 0; --leaves) {
    switch (dice.Whole(0, 4)) {
      case 0:
        add(StratumKind::kProfiledSheet);
        break;
      case 1:
        add(StratumKind::kPlate);
        add(dice.Coin() ? StratumKind::kCore : StratumKind::kInterlayer);
        add(StratumKind::kPlate);
        break;
      default:
        add(StratumKind::kPlate);
        if (dice.Coin()) add(StratumKind::kPlate);
        break;
    }
    if (leaves == 1) break;
    add(dice.Coin() ? StratumKind::kAir : StratumKind::kFibre);
    if (dice.Coin()) add(StratumKind::kAir);
  }
}

}  // namespace

elements::Setup RandomSetup(elements::Calculation calculation, Wildness wildness, std::mt19937_64& random) {
  Dice dice(wildness, random);
  const bool lining = RowOf(calculation).button == elements::ElementButton::kLining ||
                      RowOf(calculation).button == elements::ElementButton::kCeiling;
  elements::Setup setup;
  setup.calculation = calculation;
  setup.width_text = dice.Text(1, 8);
  setup.height_text = dice.Text(2, 5);
  FillLeaf(setup.leaf1, dice);
  FillLeaf(setup.leaf2, dice);
  setup.cavity.kind = static_cast<elements::CavityKind>(dice.Whole(0, 2));
  setup.cavity.depth_text = dice.Text(10, 200);
  setup.cavity.fibre_text = dice.Text(1, 80);
  setup.cavity.layers.count = dice.Whole(1, 7);
  for (auto& row : setup.cavity.layers.rows) row = FibrousRow(dice);
  setup.resilient.count = dice.Whole(0, 3);
  for (auto& row : setup.resilient.rows) row = ResilientRow(dice);
  FillSeaLeaf(setup.sea_leaf1, dice);
  FillSeaLeaf(setup.sea_leaf2, dice);
  FillSeaCavity(setup.sea_cavity, lining ? 2 : elements::kSeaCavityTypeCount, dice);
  setup.support_distance_text = dice.Text(1, 60);
  setup.hanger = dice.Whole(dice.Nasty() ? -1 : 0, 2);
  setup.decoupled = dice.Coin();
  setup.base.name = "Parete in forati";
  setup.base.area_text = dice.Text(20, 60);
  setup.base.rating_text = dice.Text(35, 60);
  FillBands(setup.base.band_texts, dice);
  setup.base.thickness_mm = dice.Number(100, 400);
  setup.base.mass_kg_m2 = static_cast<float>(dice.Whole(dice.Nasty() ? 0 : 100, 500));
  FillFacade(setup, dice);
  if (RowOf(calculation).model == elements::Model::kLayered) FillMultilayer(setup.multilayer, dice);
  return setup;
}

}  // namespace velmar::tests
