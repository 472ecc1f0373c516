#include "tests/support/random_setup.h"

#include <array>
#include <cmath>
#include <string>

#include "foundation/decimal.h"

namespace velmar::tests {
namespace {

using elements::Calculation;
using elements::Family;
using elements::FibrousMaterial;
using elements::LayerRow;
using elements::Setup;
using elements::StructuralMaterial;

/// Draws what a field holds, as wild as it may be.
class Dice {
 public:
  Dice(Wildness wildness, RandomSource& random) : wildness_(wildness), random_(random) {}

  bool Nasty() const { return wildness_ == Wildness::kNasty; }
  bool FileOnly() const { return wildness_ == Wildness::kAnyOfItsFile; }
  RandomSource& Source() { return random_; }
  int Whole(int lowest, int highest) { return random_.Whole(lowest, highest); }
  bool Coin() { return random_.Coin(); }
  /// One of the values of an enumeration from 0 on.
  template <typename Value>
  Value OneOf(int count) {
    return static_cast<Value>(random_.Below(count));
  }

  double Number(double lowest, double highest) {
    if (FileOnly()) return random_.AnyNumber();
    if (Nasty() && Whole(0, 7) == 0) return NastyNumber();
    return lowest * std::pow(highest / lowest, random_.Unit());
  }
  /// A number as it is typed.
  std::string Entry(double lowest, double highest) {
    if (FileOnly()) return random_.AnyText();
    if (Nasty() && Whole(0, 5) == 0) return NastyText();
    return FormatShortest(std::round(10.0 * Number(lowest, highest)) / 10.0);
  }
  float Single(int lowest, int highest) {
    return FileOnly() ? random_.AnySingle() : static_cast<float>(Whole(lowest, highest));
  }
  std::string Name(const std::string& kind) {
    return FileOnly() ? random_.AnyText() : kind + ' ' + std::to_string(Whole(1, 99));
  }
  std::string Words(const std::string& words) {
    if (FileOnly()) return random_.AnyText();
    return Coin() ? words : std::string();
  }

 private:
  double NastyNumber() {
    constexpr std::array kNumbers = {0.0, -1.0, 1e-300, 1e300, 1e9, -0.5, 1.0, 1e-9};
    return kNumbers.at(static_cast<std::size_t>(random_.Below(static_cast<int>(kNumbers.size()))));
  }
  std::string NastyText() {
    constexpr std::array kTexts = {"",   "-", "0",   "abc",  "1e999", "nan",
                                   "-7", ",", "1E5", "12.5", "1e300", " "};
    return kTexts.at(static_cast<std::size_t>(random_.Below(static_cast<int>(kTexts.size()))));
  }

  Wildness wildness_;
  RandomSource& random_;
};

template <typename Material>
LayerRow<Material> Listed(LayerRow<Material> row) {
  row.listed = row.slot.name;
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
  return row;
}

/// A layer of a wall calculated by its energies: its count is 1.
LayerRow<StructuralMaterial> SeaRow(Dice& dice) {
  LayerRow<StructuralMaterial> row;
  row.slot = {.name = dice.Name("Materiale"),
              .description = dice.Words("con malta"),
              .thickness_mm = dice.Number(5, 300),
              .density_kg_m3 = dice.Number(400, 2600),
              .youngs_modulus_gpa = dice.Number(1, 70),
              .loss_factor = dice.Number(0.002, 0.1),
              .poissons_ratio = dice.Number(0.1, 0.35)};
  if (dice.FileOnly()) {
    row.slot.critical_frequency_hz = dice.Source().AnyNumber();
    row.slot.surface_mass_kg_m2 = dice.Source().AnyNumber();
    row.slot.thermal_conductance_w_m2k = dice.Source().AnyNumber();
  }
  return Listed(row);
}

LayerRow<StructuralMaterial> LeafRow(Dice& dice) {
  LayerRow<StructuralMaterial> row = SeaRow(dice);
  row.multiplicity = dice.FileOnly() ? dice.Whole(1, 9) : dice.Whole(1, 3);
  if (dice.FileOnly()) {
    row.slot.thermal_conductivity_w_mk = dice.Source().AnyNumber();
    row.slot.vapour_permeability_dry = dice.Source().AnyNumber();
    row.slot.vapour_permeability_wet = dice.Source().AnyNumber();
    row.slot.thermal_resistance_m2k_w = dice.Source().AnyNumber();
  }
  return row;
}

/// A fibre or a solid between two leaves.
LayerRow<FibrousMaterial> CavityRow(Dice& dice) {
  LayerRow<FibrousMaterial> row;
  row.multiplicity = dice.FileOnly() ? dice.Whole(1, 9) : dice.Whole(1, 2);
  row.slot.name = dice.Name("Lana");
  if (dice.FileOnly()) row.slot.description = dice.Source().AnyText();
  row.slot.thickness_mm = dice.Number(10, 100);
  row.slot.density_kg_m3 = dice.Number(10, 120);
  row.slot.porous = dice.Whole(0, 3) != 0;
  // A file holds either the one or the other.
  if (row.slot.porous || !dice.FileOnly()) row.slot.flow_resistance_pa_s_m = dice.Number(200, 5000);
  if (!row.slot.porous || !dice.FileOnly()) {
    row.slot.youngs_modulus_gpa = dice.Number(0.001, 5);
    row.slot.loss_factor = dice.Number(0.01, 0.2);
    row.slot.poissons_ratio = dice.Number(0.1, 0.3);
  }
  if (dice.FileOnly()) return Listed(row);
  for (float& band : row.slot.absorption) band = static_cast<float>(0.02 + 1.1 * dice.Source().Unit());
  if (dice.Nasty() && dice.Coin()) row.slot.absorption[3] = elements::kNoAbsorption;
  return Listed(row);
}

/// A fibre of a SEA cavity, of which a file holds the values of a solid.
LayerRow<FibrousMaterial> SeaFibreRow(Dice& dice) {
  if (!dice.FileOnly()) return CavityRow(dice);
  LayerRow<FibrousMaterial> row;
  row.slot = {.name = dice.Name("Lana"),
              .description = dice.Words("in pannelli"),
              .thickness_mm = dice.Number(10, 100),
              .density_kg_m3 = dice.Number(10, 120),
              .youngs_modulus_gpa = dice.Number(0.001, 5),
              .loss_factor = dice.Number(0.01, 0.2),
              .poissons_ratio = dice.Number(0.1, 0.3)};
  return Listed(row);
}

LayerRow<elements::ResilientMaterial> ResilientRow(Dice& dice) {
  LayerRow<elements::ResilientMaterial> row;
  row.multiplicity = dice.FileOnly() ? dice.Whole(1, 9) : dice.Whole(1, 2);
  row.slot = {.name = dice.Name("Materassino"),
              .thickness_mm = dice.Number(3, 40),
              .density_kg_m3 = dice.Number(20, 800),
              .dynamic_stiffness_mn_m3 = dice.Number(4, 100)};
  if (dice.FileOnly()) {
    row.slot.description = dice.Source().AnyText();
    row.slot.impact_improvement_db = dice.Source().AnyNumber();
    row.slot.resonance_frequency_hz = dice.Source().AnyNumber();
  }
  return Listed(row);
}

template <typename Table, typename MakeRow>
void FillTable(Table& table, int lowest, int highest, Dice& dice, MakeRow make_row) {
  table.count = dice.Whole(lowest, highest);
  // Rows that are not counted are in no file, and stay in the set-up when their number falls.
  const int filled = dice.FileOnly() ? table.count : static_cast<int>(table.rows.size());
  for (int i = 0; i < filled; ++i) table.rows.at(static_cast<std::size_t>(i)) = make_row(dice);
}

void FillLeaf(elements::LeafLayers& leaf, Dice& dice) {
  leaf.count = dice.Whole(1, dice.Coin() ? 2 : 10);
  for (int i = 0; i < leaf.count; ++i) leaf.rows.at(static_cast<std::size_t>(i)) = LeafRow(dice);
}

void FillDamping(elements::DampingRow& damping, bool ticked, Dice& dice) {
  damping.ticked = ticked;
  if (ticked || !dice.FileOnly()) damping.row = SeaRow(dice);
}

void FillSeaLeaf(elements::SeaLeaf& leaf, Dice& dice) {
  leaf.count = dice.Whole(1, 3);
  for (std::size_t i = 0; i < static_cast<std::size_t>(leaf.count); ++i) {
    leaf.rows.at(i) = SeaRow(dice);
    for (const std::size_t side : {2 * i, 2 * i + 1})
      FillDamping(leaf.damping.at(side), dice.Whole(0, 3) == 0, dice);
  }
}

void FillSeaCavity(elements::SeaCavity& cavity, int types, Dice& dice) {
  cavity.type = dice.OneOf<elements::SeaCavityType>(types);
  cavity.depth_text = dice.FileOnly() ? FormatShortest(dice.Source().AnySingle()) : dice.Entry(20, 300);
  const auto in_file = [&](std::size_t index, int count) {
    return !dice.FileOnly() || index < static_cast<std::size_t>(count);
  };
  for (std::size_t i = 0; i < cavity.fibres.size(); ++i) {
    if (in_file(i, FibreCount(cavity.type))) cavity.fibres.at(i) = SeaFibreRow(dice);
  }
  for (std::size_t i = 0; i < cavity.masses.size(); ++i) {
    if (in_file(i, MassCount(cavity.type))) cavity.masses.at(i) = SeaRow(dice);
  }
  for (auto& damping : cavity.mass_damping) FillDamping(damping, dice.Coin(), dice);
}

void FillBands(elements::BandTexts& bands, Dice& dice) {
  for (std::string& band : bands) band = dice.FileOnly() && dice.Coin() ? "" : dice.Entry(15, 70);
}

void FillBase(elements::BaseElement& base, Dice& dice) {
  base.name = dice.Name("Parete in forati");
  base.area_text = dice.Entry(20, 60);
  base.rating_text = dice.Entry(35, 60);
  FillBands(base.band_texts, dice);
  base.mass_kg_m2 = dice.Single(dice.Nasty() ? 0 : 100, 500);
  if (!dice.FileOnly()) return;
  base.description = dice.Source().AnyText();
  base.c_text = dice.Source().AnyText();
  base.ctr_text = dice.Source().AnyText();
}

void FillFacade(elements::Facade& facade, Dice& dice) {
  facade.simplified = dice.Coin();
  facade.count_text = dice.FileOnly() && dice.Coin() ? "9 " : std::to_string(dice.Whole(1, 9));
  const int filled = dice.FileOnly() ? facade.Count() : static_cast<int>(facade.components.size());
  for (int i = 0; i < filled; ++i) {
    elements::FacadeComponent& component = facade.components.at(static_cast<std::size_t>(i));
    component.name = dice.Name("Finestra");
    component.description = dice.Words("telaio in legno");
    component.area_text = dice.Whole(0, 4) == 0 ? elements::kSmallElementArea : dice.Entry(0.3, 2);
    component.rating_text = dice.Entry(25, 45);
    component.c_text = dice.FileOnly() ? dice.Source().AnyText() : "-1";
    component.ctr_text = dice.FileOnly() ? dice.Source().AnyText() : "-4";
    FillBands(component.band_texts, dice);
    component.mass_kg_m2 = dice.Single(0, 60);
    component.tightness_class = dice.Whole(0, 4);
  }
}

/// What lies between the leaves of a double wall, as its file holds it.
void FillFileOfCavity(Setup& setup, Dice& dice) {
  setup.cavity.kind = dice.OneOf<elements::CavityKind>(3);
  if (setup.cavity.kind == elements::CavityKind::kGenericMaterial)
    FillTable(setup.cavity.layers, 1, 7, dice, CavityRow);
  setup.cavity.depth_text = dice.Source().AnyText();
  const int mark = RowOf(*setup.calculation).mark;
  if (mark >= 11 && mark <= 16) setup.cavity.fibre_text = "5" + dice.Source().AnyText();
  using enum Calculation;
  if (setup.calculation == kLightWallLineLine || setup.calculation == kLightWallLinePoint ||
      setup.calculation == kLightWallPointPoint) {
    setup.support_distance_text = dice.Coin() ? "60" : "4" + dice.Source().AnyText();
  }
}

void FillFileOfLining(Setup& setup, Dice& dice) {
  FillBase(setup.base, dice);
  setup.base.thickness_mm = dice.Source().AnyNumber();
  FillSeaCavity(setup.sea_cavity, 2, dice);
  FillSeaLeaf(setup.sea_leaf2, dice);
  if (setup.calculation == Calculation::kLiningFrame) setup.support_distance_text = dice.Source().AnyText();
  if (setup.calculation == Calculation::kCeilingSea) setup.hanger = dice.Whole(-1, 2);
}

void FillFileOfSea(Setup& setup, Dice& dice) {
  if (setup.calculation == Calculation::kDoubleWallSeaBrick) {
    setup.decoupled = dice.Coin();
  } else {
    setup.support_distance_text = dice.Source().AnyText();
  }
  FillSeaLeaf(setup.sea_leaf1, dice);
  FillSeaCavity(setup.sea_cavity, elements::kSeaCavityTypeCount, dice);
  FillSeaLeaf(setup.sea_leaf2, dice);
}

void FillFileOfMultilayer(elements::Multilayer& list, Dice& dice) {
  using elements::StratumKind;
  list.framed = dice.Coin();
  list.count = dice.Whole(1, elements::Multilayer::kCapacity);
  for (int i = 0; i < list.count; ++i) {
    elements::Stratum& stratum = list.strata.at(static_cast<std::size_t>(i));
    stratum.kind = dice.OneOf<StratumKind>(elements::kStratumKindCount);
    if (elements::TakesSolid(stratum.kind)) {
      stratum.solid = LeafRow(dice);
    } else if (stratum.kind == StratumKind::kFibre) {
      stratum.fibre = CavityRow(dice);
      stratum.flow_resistivity_pa_s_m2 = dice.Source().AnyNumber();
    } else {
      stratum.thickness_text = dice.Source().AnyText();
    }
    if (stratum.kind == StratumKind::kProfiledSheet) {
      stratum.profile_height_text = dice.Source().AnyText();
      stratum.profile_pitch_text = dice.Source().AnyText();
    }
    if (!list.BeginsCavity(i)) continue;
    stratum.connection = dice.OneOf<elements::CavityConnection>(elements::kCavityConnectionCount);
    stratum.connection_text = dice.Source().AnyText();
  }
}

void FillFileOf(Family family, Setup& setup, Dice& dice) {
  switch (family) {
    case Family::kSingle:
      return FillLeaf(setup.leaf1, dice);
    case Family::kSeaSingle:
      return FillSeaLeaf(setup.sea_leaf1, dice);
    case Family::kSea:
      return FillFileOfSea(setup, dice);
    case Family::kDouble:
    case Family::kSharp:
    case Family::kImpact:
      FillLeaf(setup.leaf1, dice);
      FillLeaf(setup.leaf2, dice);
      if (RowOf(*setup.calculation).button == elements::ElementButton::kFloor)
        return FillTable(setup.resilient, 0, 10, dice, ResilientRow);
      return FillFileOfCavity(setup, dice);
    case Family::kLining:
    case Family::kCeiling:
      return FillFileOfLining(setup, dice);
    case Family::kFacade:
      FillBase(setup.base, dice);
      return FillFacade(setup.facade, dice);
    case Family::kMultilayer:
      return FillFileOfMultilayer(setup.multilayer, dice);
  }
}

/// What is in the file of the calculation, and nothing besides.
void FillFile(Setup& setup, Dice& dice) {
  for (std::size_t row = 0; row < setup.information.size(); ++row) {
    setup.information.at(row) = {dice.Source().AnyText(), dice.Source().AnyText()};
    if (row == elements::kNotesRow)
      setup.information.at(row).value = "prima\r\nseconda\r\n\r\nquarta " + std::to_string(dice.Whole(0, 8));
  }
  const Family family = RowOf(*setup.calculation).family;
  if (family != Family::kLining && family != Family::kCeiling && family != Family::kFacade) {
    setup.width_text = dice.Source().AnyText();
    setup.height_text = dice.Source().AnyText();
  }
  FillFileOf(family, setup, dice);
  setup.further = RandomKeyedValues(dice.Source());
}

/// One to four leaves, the rows between them of air and fibre.
void FillMultilayer(elements::Multilayer& list, Dice& dice) {
  using elements::StratumKind;
  list.framed = dice.Coin();
  list.count = 0;
  const auto add = [&](StratumKind kind) {
    elements::Stratum& stratum = list.strata.at(static_cast<std::size_t>(list.count++));
    const bool any = dice.Nasty() && dice.Whole(0, 15) == 0;
    stratum.kind = any ? dice.OneOf<StratumKind>(elements::kStratumKindCount) : kind;
    stratum.solid = LeafRow(dice);
    stratum.fibre = CavityRow(dice);
    stratum.fibre.slot.porous = stratum.fibre.slot.porous || !dice.Nasty();
    stratum.flow_resistivity_pa_s_m2 = dice.Number(2000, 60000);
    stratum.thickness_text = kind == StratumKind::kInterlayer ? dice.Entry(0.4, 2) : dice.Entry(5, 200);
    stratum.connection = dice.OneOf<elements::CavityConnection>(elements::kCavityConnectionCount);
    stratum.connection_text = dice.Entry(20, 80);
    stratum.profile_height_text = dice.Entry(10, 100);
    stratum.profile_pitch_text = dice.Entry(50, 400);
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

/// Every field, also those that the calculation does not read.
void FillEverything(Setup& setup, Dice& dice) {
  const elements::CalculationRow& row = RowOf(*setup.calculation);
  const bool lining =
      row.button == elements::ElementButton::kLining || row.button == elements::ElementButton::kCeiling;
  setup.width_text = dice.Entry(1, 8);
  setup.height_text = dice.Entry(2, 5);
  FillLeaf(setup.leaf1, dice);
  FillLeaf(setup.leaf2, dice);
  setup.cavity.kind = dice.OneOf<elements::CavityKind>(3);
  setup.cavity.depth_text = dice.Entry(10, 200);
  setup.cavity.fibre_text = dice.Entry(1, 80);
  FillTable(setup.cavity.layers, 1, 7, dice, CavityRow);
  FillTable(setup.resilient, 0, 3, dice, ResilientRow);
  FillSeaLeaf(setup.sea_leaf1, dice);
  FillSeaLeaf(setup.sea_leaf2, dice);
  FillSeaCavity(setup.sea_cavity, lining ? 2 : elements::kSeaCavityTypeCount, dice);
  setup.support_distance_text = dice.Entry(1, 60);
  setup.hanger = dice.Whole(dice.Nasty() ? -1 : 0, 2);
  setup.decoupled = dice.Coin();
  FillBase(setup.base, dice);
  setup.base.thickness_mm = dice.Number(100, 400);
  FillFacade(setup.facade, dice);
  if (row.model == elements::Model::kLayered) FillMultilayer(setup.multilayer, dice);
}

}  // namespace

Setup RandomSetup(Calculation calculation, Wildness wildness, RandomSource& random) {
  Dice dice(wildness, random);
  Setup setup;
  setup.calculation = calculation;
  if (wildness == Wildness::kAnyOfItsFile) {
    FillFile(setup, dice);
  } else {
    FillEverything(setup, dice);
  }
  return setup;
}

}  // namespace velmar::tests
