#include "presentation/texts/descriptions.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using elements::Calculation;

/// The row's number in angle brackets; the wall with a letter that changes when upper-cased.
std::string Say(MessageRow row) {
  return row.number == 223 ? "Parete" : "<" + std::to_string(row.number) + ">";
}

TEST(Descriptions, NameLayersThicknessAndCount) {
  const elements::Setup setup = samples::PlasterboardDoubleWall();
  EXPECT_EQ(CompilaDescrizioneParete1(setup), "Cartongesso standard (12,5 mm) x 2");
  EXPECT_EQ(CompilaDescrizioneParete2(setup),
            "Cartongesso ad alta densità (12,5 mm); Cartongesso standard (12,5 mm)");
}

TEST(Descriptions, WalkASeaSideWithItsDamping) {
  const elements::Setup setup = samples::FullSeaWall();
  EXPECT_EQ(CompilaDescrizionePareteSEA1(setup),
            "Cartongesso standard (12,5 mm); Membrana pesante vinilica (4 mm); Lastra in gessofibra (10 mm)");
  EXPECT_EQ(CompilaDescrizionePareteSEA2(setup),
            "Lamina smorzante (3 mm); Cartongesso ad alta densità (12,5 mm)");
  EXPECT_EQ(CompilaDescrizioneIntercapedineSEA(setup, Say),
            " -- <219> (180 mm): Lana di roccia 40 (40 mm); OSB (12 mm); Lamina smorzante (3 mm); "
            "Lana di roccia 40 (40 mm); Cartongesso standard (12,5 mm); Lana di roccia 40 (40 mm)");
}

TEST(ResultDescription, OfASingleWallIsItsLayers) {
  EXPECT_EQ(ResultDescription(samples::PlasteredBrickWall(), Say),
            CompilaDescrizioneParete1(samples::PlasteredBrickWall()));
  elements::Setup sea = samples::FullSeaWall();
  sea.calculation = Calculation::kSingleWallSea;
  EXPECT_EQ(ResultDescription(sea, Say), CompilaDescrizionePareteSEA1(sea));
  EXPECT_EQ(ResultDescription({}, Say), "");
}

TEST(ResultDescription, OfADoubleWallNamesTheCavity) {
  elements::Setup setup = samples::PlasterboardDoubleWall();
  setup.leaf2.count = 1;
  setup.cavity.layers.count = 1;
  samples::SetRow(setup.cavity.layers.rows[0], "EPS", 30.0, 20.0, 2);
  const std::string begin = "PARETE 1: Cartongesso standard (12,5 mm) x 2";
  const std::string end = " -- PARETE 2: Cartongesso ad alta densità (12,5 mm)";
  setup.cavity.kind = elements::CavityKind::kEmpty;
  EXPECT_EQ(ResultDescription(setup, Say), begin + " -- <220>;" + end);
  setup.cavity.kind = elements::CavityKind::kFibrous;
  EXPECT_EQ(ResultDescription(setup, Say), begin + " -- <225>;" + end);
  setup.cavity.kind = elements::CavityKind::kGenericMaterial;
  EXPECT_EQ(ResultDescription(setup, Say), begin + " -- <219>: EPS (30 mm) x 2" + end);
}

TEST(ElementDescription, IsNotCut) {
  elements::Setup facade = samples::FacadeOfNine();
  facade.facade.components[1].name = facade.facade.components[0].name;
  facade.facade.components[4].name = facade.facade.components[0].name;
  const std::string whole = ElementDescription(facade, Say);
  EXPECT_NE(whole.find(facade.facade.components[0].name + " x 3; "), std::string::npos) << whole;
  EXPECT_GT(whole.size(), kLongestDescription);
  EXPECT_TRUE(whole.ends_with("; Bocchetta di ventilazione")) << whole;
  EXPECT_TRUE(ResultDescription(facade, Say).ends_with("..."));
  EXPECT_EQ(ElementDescription({}, Say), "");
}

TEST(ResultDescription, OfASeaWallNamesBothSidesAndTheCavity) {
  elements::Setup setup = samples::FullSeaWall();
  setup.sea_leaf1.count = 1;
  setup.sea_leaf1.damping = {};
  setup.sea_cavity.type = elements::SeaCavityType::kEmpty;
  EXPECT_EQ(ResultDescription(setup, Say),
            "PARETE 1: Cartongesso standard (12,5 mm) -- <156> (180 mm) -- PARETE 2: "
            "Lamina smorzante (3 mm); Cartongesso ad alta densità (12,5 mm)");
}

TEST(ResultDescription, OfAFloorNamesBaseResilientLayersAndScreed) {
  elements::Setup setup = samples::FloatingFloor();
  setup.leaf1.count = 1;
  setup.leaf2.count = 1;
  setup.resilient.count = 2;
  samples::SetRow(setup.resilient.rows[0], "Gomma", 8.0, 700.0);
  samples::SetRow(setup.resilient.rows[1], "Sughero", 3.5, 180.0);
  EXPECT_EQ(ResultDescription(setup, Say),
            "SOLAIO BASE: Intonaco di gesso (15 mm); Mat. resiliente: Gomma X 8, Sughero X 3,5; "
            "MASSETTO: Massetto sabbia-cemento (60 mm)");
  setup.resilient.count = 0;
  EXPECT_EQ(ResultDescription(setup, Say),
            "SOLAIO BASE: Intonaco di gesso (15 mm); MASSETTO: Massetto sabbia-cemento (60 mm)");
}

TEST(ElementDescription, OfAFloorIsInTheWordsOfTheDocument) {
  elements::Setup setup = samples::FloatingFloor();
  setup.leaf1.count = 1;
  setup.leaf2.count = 1;
  setup.resilient.count = 1;
  samples::SetRow(setup.resilient.rows[0], "Gomma", 8.0, 700.0, 2);
  EXPECT_EQ(ElementDescription(setup, Say),
            "<228>: Intonaco di gesso (15 mm) -- <167>: Gomma (8 mm) x 2 -- "
            "<175>: Massetto sabbia-cemento (60 mm)");
  setup.resilient.count = 0;
  EXPECT_EQ(ElementDescription(setup, Say),
            "<228>: Intonaco di gesso (15 mm) -- <175>: Massetto sabbia-cemento (60 mm)");
}

TEST(ResultDescription, OfALiningNamesItsBase) {
  elements::Setup setup = samples::Lining(Calculation::kLiningFrame);
  EXPECT_TRUE(
      ResultDescription(setup, Say)
          .starts_with("<229>: Muratura in laterizio intonacata 25 cm -- <111>: Cartongesso standard"));
  setup.calculation = Calculation::kCeilingSea;
  EXPECT_TRUE(
      ResultDescription(setup, Say)
          .starts_with("<228>: Muratura in laterizio intonacata 25 cm -- <115>: Cartongesso standard"));
}

std::size_t Characters(const std::string& text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

TEST(ResultDescription, IsCutAt250Characters) {
  elements::Setup wall = samples::PlasteredBrickWall();
  wall.leaf1.count = 10;
  for (auto& row : wall.leaf1.rows) samples::SetRow(row, "Malta ad alta densità e umidità", 10.0, 1800.0);
  EXPECT_EQ(Characters(ResultDescription(wall, Say)), 250U);
  EXPECT_FALSE(ResultDescription(wall, Say).ends_with("..."));
  const std::string facade = ResultDescription(samples::FacadeOfNine(), Say);
  EXPECT_EQ(Characters(facade), 250U);
  EXPECT_TRUE(facade.starts_with("<227>: Muratura"));
  EXPECT_TRUE(facade.ends_with("..."));
  elements::Setup small = samples::FacadeOfNine();
  small.facade.count_text = "1";
  EXPECT_FALSE(ResultDescription(small, Say).ends_with("..."));
}

TEST(ProposedName, FollowsTheFamily) {
  const std::pair<Calculation, const char*> names[] = {{Calculation::kDoubleWallGeneric, "Parete x"},
                                                       {Calculation::kImpactFloatingFloor, "<226> x"},
                                                       {Calculation::kLiningGeneric, "<111> x"},
                                                       {Calculation::kCeilingSea, "<115> x"},
                                                       {Calculation::kCompositeElement, "Parete x"}};
  for (const auto& [calculation, name] : names) {
    elements::Setup setup;
    setup.calculation = calculation;
    EXPECT_EQ(ProposedName(setup, Say), name);
  }
}

}  // namespace
}  // namespace velmar::presentation
