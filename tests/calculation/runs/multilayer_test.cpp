#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "calculation/edits/layer_moves.h"
#include "calculation/edits/multilayer_edits.h"
#include "calculation/runs/multilayer_input.h"
#include "calculation/runs/run.h"
#include "calculation/runs/totals.h"
#include "elements/layer_groups.h"
#include "foundation/decimal.h"

namespace velmar::calculation {
namespace {

using elements::CavityConnection;
using elements::Field;
using elements::LayerGroup;
using elements::Stratum;
using elements::StratumKind;

elements::LayerRow<elements::StructuralMaterial> Glass(double thickness_mm) {
  return {.slot = {.name = "Vetro",
                   .thickness_mm = thickness_mm,
                   .density_kg_m3 = 2500,
                   .youngs_modulus_gpa = 68,
                   .loss_factor = 0.004,
                   .poissons_ratio = 0.23}};
}

elements::LayerRow<elements::StructuralMaterial> Board() {
  return {.slot = {.name = "Cartongesso",
                   .thickness_mm = 12.5,
                   .density_kg_m3 = 850,
                   .youngs_modulus_gpa = 4.1,
                   .loss_factor = 0.014,
                   .poissons_ratio = 0.3}};
}

Stratum Plate(const elements::LayerRow<elements::StructuralMaterial>& solid,
              StratumKind kind = StratumKind::kPlate) {
  Stratum stratum;
  stratum.kind = kind;
  stratum.solid = solid;
  return stratum;
}

Stratum Air(const char* thickness) {
  Stratum stratum;
  stratum.kind = StratumKind::kAir;
  stratum.thickness_text = thickness;
  return stratum;
}

/// 40 kg/m³, 14 kPa·s/m².
Stratum Wool(double thickness_mm) {
  Stratum stratum;
  stratum.kind = StratumKind::kFibre;
  stratum.fibre.slot = {.name = "Lana",
                        .thickness_mm = thickness_mm,
                        .density_kg_m3 = 40,
                        .porous = true,
                        .flow_resistance_pa_s_m = 700};
  stratum.flow_resistivity_pa_s_m2 = 14000;
  return stratum;
}

elements::Setup Of(const std::vector<Stratum>& strata, const char* width, const char* height) {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kMultilayerGeneric;
  setup.width_text = width;
  setup.height_text = height;
  setup.multilayer.count = static_cast<int>(strata.size());
  std::copy(strata.begin(), strata.end(), setup.multilayer.strata.begin());
  return setup;
}

RunOutcome RunOf(const elements::Setup& setup) {
  return RunCalculation(setup, 0.0, [](const Message&) { return true; });
}

void ExpectSpectrum(const elements::Setup& setup, const acoustics::Spectrum& printed, double rw) {
  const RunOutcome outcome = RunOf(setup);
  ASSERT_EQ(outcome.status, RunStatus::kDone);
  for (std::size_t band = 0; band < printed.size(); ++band)
    EXPECT_NEAR(outcome.result->spectrum->at(band), printed[band], 0.1) << band;
  EXPECT_EQ(outcome.result->rw, rw);
}

// Printed outputs of an independent program with the same formulas.

TEST(Multilayer, OfOnePaneIsThePane) {
  ExpectSpectrum(Of({Plate(Glass(6))}, "1,23", "1,48"),
                 {17.0, 18.3, 19.4, 20.5, 21.8, 23.3, 24.8, 26.3, 27.6, 29.1, 30.5,
                  31.9, 33.2, 34.1, 34.5, 32.9, 26.6, 27.9, 33.6, 37.9, 41.7},
                 32);
}

elements::Setup StudWall() {
  elements::Setup wall = Of({Plate(Board()), Wool(60), Air("15"), Plate(Board())}, "3,6", "2,8");
  wall.multilayer.framed = true;
  wall.multilayer.strata[1].connection = CavityConnection::kSteelStuds;
  wall.multilayer.strata[1].connection_text = "60";
  return wall;
}

TEST(Multilayer, OfBoardsOnSteelStudsIsTheWall) {
  ExpectSpectrum(StudWall(), {13.6, 12.5, 8.5,  13.3, 22.0, 27.8, 32.9, 37.3, 40.9, 43.8, 46.2,
                              48.3, 50.3, 52.0, 53.5, 54.4, 51.1, 47.1, 50.4, 53.8, 56.8},
                 45);
  const Totals totals = ComputeTotals(StudWall());
  EXPECT_DOUBLE_EQ(totals.thickness_mm, 100.0);
  EXPECT_NEAR(totals.surface_mass_kg_m2, 2 * 10.625 + 2.4, 1e-9);
}

TEST(Multilayer, OfTwoPanesLosesEnergyAtTheEdges) {
  ExpectSpectrum(Of({Plate(Glass(4)), Air("16"), Plate(Glass(4))}, "1,23", "1,48"),
                 {22.1, 22.2, 22.5, 23.0, 23.5, 23.6, 21.4, 20.4, 23.4, 26.7, 30.0,
                  33.4, 36.6, 39.5, 42.1, 43.9, 44.0, 39.3, 32.3, 48.0, 62.4},
                 33);
}

double RwOf(const elements::Setup& setup) {
  const RunOutcome outcome = RunOf(setup);
  EXPECT_EQ(outcome.status, RunStatus::kDone);
  return outcome.result ? outcome.result->rw.value_or(0.0) : 0.0;
}

TEST(Multilayer, TakesUpToFourLeavesOfEveryKind) {
  Stratum interlayer;
  interlayer.kind = StratumKind::kAcousticInterlayer;
  interlayer.thickness_text = "0,76";
  const elements::Setup triple = Of(
      {Plate(Glass(4)), interlayer, Plate(Glass(4)), Air("16"), Plate(Glass(4)), Air("16"), Plate(Glass(6))},
      "1,23", "1,48");
  EXPECT_GE(RwOf(triple), 38.0);
  EXPECT_LE(RwOf(triple), 48.0);
  auto sheet = Board();
  sheet.slot = {.name = "Acciaio",
                .thickness_mm = 0.6,
                .density_kg_m3 = 7800,
                .youngs_modulus_gpa = 210,
                .loss_factor = 0.001,
                .poissons_ratio = 0.3};
  auto foam = Board();
  foam.slot = {.name = "Poliuretano",
               .thickness_mm = 80,
               .density_kg_m3 = 40,
               .youngs_modulus_gpa = 0.006,
               .loss_factor = 0.05,
               .poissons_ratio = 0.2};
  const elements::Setup sandwich =
      Of({Plate(sheet), Plate(foam, StratumKind::kCore), Plate(sheet)}, "4", "3");
  // Roof panels of steel on polyurethane are declared with 24 to 27 dB.
  EXPECT_GE(RwOf(sandwich), 22.0);
  EXPECT_LE(RwOf(sandwich), 29.0);
  const elements::Setup profiled = Of({Plate(sheet, StratumKind::kProfiledSheet)}, "4", "3");
  EXPECT_LE(RwOf(profiled), RwOf(Of({Plate(sheet)}, "4", "3")) + 1.0);
}

TEST(Multilayer, BondsOrSlipsAsItsRowsSay) {
  const auto two = [](StratumKind kind) { return Of({Plate(Board()), Plate(Board(), kind)}, "3,6", "2,8"); };
  EXPECT_GT(RwOf(two(StratumKind::kPlate)), RwOf(two(StratumKind::kBondedPlate)));
  elements::Setup sheets = Of({Plate(Board())}, "3,6", "2,8");
  sheets.multilayer.strata[0].solid.multiplicity = 2;
  EXPECT_EQ(RwOf(sheets), RwOf(two(StratumKind::kPlate)));
}

struct Wrong {
  const char* name;
  elements::Setup setup;
  elements::FieldId field;
  int row;
};

std::vector<Wrong> WrongLists() {
  Stratum interlayer;
  interlayer.kind = StratumKind::kInterlayer;
  const auto pane = [] { return Plate(Glass(4)); };
  elements::Setup spacing = StudWall();
  spacing.multilayer.strata[1].connection_text = "0";
  elements::Setup pitch = Of({Plate(Board(), StratumKind::kProfiledSheet)}, "4", "3");
  pitch.multilayer.strata[0].profile_pitch_text = "0";
  elements::Setup thin = StudWall();
  thin.multilayer.strata[3].solid.slot.thickness_mm = 0.0;
  elements::Setup light = StudWall();
  light.multilayer.strata[0].solid.slot.density_kg_m3 = 0.5;
  elements::Setup tiny = StudWall();
  tiny.width_text = "0,01";
  return {
      {"BeginsWithAir", Of({Air("10"), pane()}, "1", "1"), {.field = Field::kStratumKind}, 2225},
      {"EndsWithAir", Of({pane(), Air("10")}, "1", "1"), {.field = Field::kStratumKind, .index = 1}, 2225},
      {"FiveLeaves",
       Of({pane(), Air("9"), pane(), Air("9"), pane(), Air("9"), pane(), Air("9"), pane()}, "1", "1"),
       {.field = Field::kStratumKind, .index = 8},
       2226},
      {"LooseInterlayer", Of({pane(), interlayer}, "1", "1"), {.field = Field::kStratumKind}, 2227},
      {"ProfileOnPlate",
       Of({pane(), Plate(Board(), StratumKind::kProfiledSheet)}, "1", "1"),
       {.field = Field::kStratumKind},
       2228},
      {"MixedJoints",
       Of({pane(), pane(), Plate(Glass(4), StratumKind::kBondedPlate)}, "1", "1"),
       {.field = Field::kStratumKind, .index = 2},
       2229},
      {"NoSpacing", spacing, {.field = Field::kConnectionNumber, .index = 1}, 2230},
      {"NoPitch", pitch, {.field = Field::kProfilePitch}, 2235},
      {"NoThickness",
       thin,
       {.field = Field::kThickness, .group = LayerGroup::kStratumSolid, .index = 3},
       2230},
      {"TooLight", light, {.field = Field::kDensity, .group = LayerGroup::kStratumSolid, .index = 0}, 2230},
      {"TooNarrow", tiny, {.field = Field::kWidth}, 2230},
  };
}

TEST(Multilayer, RefusesWhatIsNoElementWithItsField) {
  for (const Wrong& wrong : WrongLists()) {
    const RunOutcome outcome = RunOf(wrong.setup);
    ASSERT_EQ(outcome.status, RunStatus::kRefused) << wrong.name;
    ASSERT_TRUE(outcome.refusal.has_value()) << wrong.name;
    EXPECT_TRUE(outcome.refusal->field == wrong.field) << wrong.name;
    bool told = false;
    for (const auto& piece : outcome.refusal->reason) {
      const auto* row = std::get_if<MessageRow>(&piece);
      told = told || (row != nullptr && row->number == wrong.row);
    }
    EXPECT_TRUE(told) << wrong.name;
  }
}

// Nothing, below nothing, beyond all measure: a refusal with the field, or a result of finite numbers.
TEST(Multilayer, RefusesHostileValuesWithTheirField) {
  struct Spot {
    const char* name;
    elements::FieldId field;
    std::function<void(elements::Setup&, double)> put;
    bool zero_is_possible = false;
  };
  const auto text = [](double value) { return FormatShortest(value); };
  const auto solid = [](elements::Setup& setup) -> elements::StructuralMaterial& {
    return setup.multilayer.strata[0].solid.slot;
  };
  constexpr auto kSolid = LayerGroup::kStratumSolid;
  const std::vector<Spot> spots = {
      {"thickness",
       {Field::kThickness, kSolid, 0},
       [&](elements::Setup& s, double v) { solid(s).thickness_mm = v; }},
      {"density",
       {Field::kDensity, kSolid, 0},
       [&](elements::Setup& s, double v) { solid(s).density_kg_m3 = v; }},
      {"stiffness",
       {Field::kYoungsModulus, kSolid, 0},
       [&](elements::Setup& s, double v) { solid(s).youngs_modulus_gpa = v; }},
      {"loss",
       {Field::kLossFactor, kSolid, 0},
       [&](elements::Setup& s, double v) { solid(s).loss_factor = v; },
       true},
      {"poisson",
       {Field::kPoissonsRatio, kSolid, 0},
       [&](elements::Setup& s, double v) { solid(s).poissons_ratio = v; },
       true},
      {"fibre",
       {Field::kThickness, LayerGroup::kStratumFibre, 1},
       [](elements::Setup& s, double v) { s.multilayer.strata[1].fibre.slot.thickness_mm = v; },
       true},
      {"air",
       {.field = Field::kStratumThickness, .index = 2},
       [&](elements::Setup& s, double v) { s.multilayer.strata[2].thickness_text = text(v); },
       true},
      {"spacing",
       {.field = Field::kConnectionNumber, .index = 1},
       [&](elements::Setup& s, double v) { s.multilayer.strata[1].connection_text = text(v); }},
      {"width", {.field = Field::kWidth}, [&](elements::Setup& s, double v) { s.width_text = text(v); }},
      {"height", {.field = Field::kHeight}, [&](elements::Setup& s, double v) { s.height_text = text(v); }},
  };
  for (const Spot& spot : spots) {
    for (const double value : {0.0, -3.0, 1e12}) {
      if (value == 0.0 && spot.zero_is_possible) continue;
      elements::Setup wall = StudWall();
      spot.put(wall, value);
      const RunOutcome outcome = RunOf(wall);
      ASSERT_EQ(outcome.status, RunStatus::kRefused) << spot.name << " " << value;
      ASSERT_TRUE(outcome.refusal.has_value()) << spot.name << " " << value;
      EXPECT_TRUE(outcome.refusal->field == spot.field)
          << spot.name << " " << value << ": field " << static_cast<int>(outcome.refusal->field.field)
          << " row " << outcome.refusal->field.index;
    }
  }
}

TEST(Multilayer, RefusesAFillThatIsNotPorous) {
  elements::Setup wall = StudWall();
  wall.multilayer.strata[1].fibre.slot.porous = false;
  const RunOutcome outcome = RunOf(wall);
  ASSERT_EQ(outcome.status, RunStatus::kRefused);
  EXPECT_TRUE((outcome.refusal->field ==
               elements::FieldId{.field = Field::kMaterial, .group = LayerGroup::kStratumFibre, .index = 1}));
}

TEST(Multilayer, FillsByTheFlowResistivityWhateverTheThickness) {
  elements::Setup thin = StudWall();
  elements::Setup thick = StudWall();
  thick.multilayer.strata[1].fibre.slot.flow_resistance_pa_s_m = 9;
  EXPECT_EQ(RunOf(thin).result->spectrum, RunOf(thick).result->spectrum);
  thick.multilayer.strata[1].flow_resistivity_pa_s_m2 = 5000;
  EXPECT_NE(RunOf(thin).result->spectrum, RunOf(thick).result->spectrum);
}

// Masonry and its plaster are one plate, whoever forgets to say so.
TEST(Multilayer, BondsHeavyLeaves) {
  auto block = Board();
  block.slot = {.name = "Mattone",
                .thickness_mm = 120,
                .density_kg_m3 = 1800,
                .youngs_modulus_gpa = 13,
                .loss_factor = 0.01,
                .poissons_ratio = 0.2};
  auto plaster = block;
  plaster.slot.thickness_mm = 15;
  const auto wall = [&](StratumKind kind) {
    return Of({Plate(plaster), Plate(block, kind), Plate(plaster, StratumKind::kBondedPlate)}, "4", "3");
  };
  EXPECT_EQ(RunOf(wall(StratumKind::kPlate)).result->spectrum,
            RunOf(wall(StratumKind::kBondedPlate)).result->spectrum);
}

TEST(Multilayer, InsulatesAlikeTurnedRound) {
  elements::Setup wall = Of({Plate(Board()), Plate(Glass(6), StratumKind::kBondedPlate), Wool(60), Air("15"),
                             Plate(Board()), Plate(Board()), Plate(Board())},
                            "3,6", "2,8");
  wall.multilayer.strata[2].connection = CavityConnection::kSteelStuds;
  elements::Setup turned = wall;
  TurnElement(turned);
  EXPECT_NE(turned, wall);
  const RunOutcome one = RunOf(wall);
  const RunOutcome other = RunOf(turned);
  ASSERT_TRUE(one.result && other.result);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band)
    EXPECT_NEAR(one.result->spectrum->at(band), other.result->spectrum->at(band), 0.001) << band;
}

// Entered as one plate of its own material a laminated pane is still two plies on a sheet.
TEST(Multilayer, KnowsALaminatedPaneByItsLossFactor) {
  auto whole = Glass(8.76);
  whole.slot.loss_factor = 0.02;
  Stratum sheet;
  sheet.kind = StratumKind::kInterlayer;
  sheet.thickness_text = "0,76";
  auto ply = Glass(4);
  ply.slot.youngs_modulus_gpa = 72;
  ply.slot.poissons_ratio = 0.22;
  const RunOutcome one = RunOf(Of({Plate(whole)}, "1,23", "1,48"));
  const RunOutcome other = RunOf(Of({Plate(ply), sheet, Plate(ply)}, "1,23", "1,48"));
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band)
    EXPECT_NEAR(one.result->spectrum->at(band), other.result->spectrum->at(band), 1e-6) << band;
}

TEST(Multilayer, FailsWithTheFieldThatHoldsNoNumber) {
  elements::Setup wall = StudWall();
  wall.multilayer.strata[2].thickness_text = "abc";
  const RunOutcome outcome = RunOf(wall);
  EXPECT_EQ(outcome.status, RunStatus::kFailed);
  EXPECT_TRUE((outcome.refusal->field == elements::FieldId{.field = Field::kStratumThickness, .index = 2}));
}

TEST(Multilayer, GivesANewInterlayerItsUsualThickness) {
  elements::Setup setup = Of({Plate(Glass(4)), Air("50"), Plate(Glass(4))}, "1", "1");
  ChooseStratumKind(setup, 1, StratumKind::kInterlayer);
  EXPECT_EQ(setup.multilayer.strata[1].thickness_text, "0,76");
  ChooseStratumKind(setup, 1, StratumKind::kAcousticInterlayer);
  EXPECT_EQ(setup.multilayer.strata[1].thickness_text, "0,76");
  ChooseStratumKind(setup, 1, StratumKind::kAir);
  EXPECT_EQ(setup.multilayer.strata[1].thickness_text, "50");
  EnterStratumCount(setup, "99");
  EXPECT_EQ(setup.multilayer.count, 16);
  EnterStratumCount(setup, "0");
  EXPECT_EQ(setup.multilayer.count, 1);
}

}  // namespace
}  // namespace velmar::calculation
