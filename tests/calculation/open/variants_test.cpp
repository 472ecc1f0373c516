#include "calculation/open/variants.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "elements/setup_text.h"
#include "tests/support/random_setup.h"

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::VariantsOf;

elements::Setup Wall(const std::string& thickness) {
  elements::Setup setup;
  setup.calculation = Calculation::kSingleWallGeneric;
  auto& row = setup.leaf1.rows[0];
  row.listed = row.slot.name = "Laterizio";
  row.thickness_text = thickness;
  row.slot.thickness_mm = std::stod(thickness);
  row.slot.density_kg_m3 = 1000.0;
  row.slot.youngs_modulus_gpa = 6.0;
  row.slot.loss_factor = 0.015;
  row.slot.poissons_ratio = 0.2;
  return setup;
}

bool Yes(const Message& /*question*/) { return true; }
bool No(const Message& /*question*/) { return false; }

std::vector<std::string> Names(const elements::Setup& setup) {
  std::vector<std::string> names;
  for (const elements::Variant& variant : VariantsOf(setup.further)) names.push_back(variant.name);
  return names;
}

TEST(SetupText, GivesBackEverySetupOfEveryCalculation) {
  tests::RandomSource random(7);
  for (const auto wildness : {tests::Wildness::kPlausible, tests::Wildness::kNasty}) {
    for (const elements::CalculationRow& row : elements::Catalogue()) {
      for (int i = 0; i < 4; ++i) {
        const elements::Setup setup = tests::RandomSetup(row.calculation, wildness, random);
        const auto back = elements::ReadSetupText(elements::WriteSetupText(setup));
        ASSERT_TRUE(back.has_value());
        EXPECT_EQ(*back, setup) << row.variant;
      }
    }
  }
}

TEST(SetupText, KeepsAnyCharacter) {
  elements::Setup setup = Wall("80");
  setup.leaf1.rows[0].slot.description = "riga 1\nriga 2\r\tcon \\ e = e €";
  setup.leaf1.rows[7].listed = "@1";
  setup.base.band_texts[3] = "\t";
  setup.facade.components[8].name = "=";
  EXPECT_EQ(elements::ReadSetupText(elements::WriteSetupText(setup)), setup);
}

/// `text` with one more line, and with the number of lines that it has then.
std::string With(const std::string& text, const std::string& line) {
  const std::size_t end = text.rfind("fine=");
  const int lines = std::stoi(text.substr(end + 5));
  return text.substr(0, end) + line + "\nfine=" + std::to_string(lines + 1) + '\n';
}

TEST(SetupText, IsRefusedAsAWhole) {
  const std::string text = elements::WriteSetupText(Wall("80"));
  EXPECT_TRUE(elements::ReadSetupText(text));
  EXPECT_TRUE(elements::ReadSetupText(With(text, "altezza=3")));
  EXPECT_FALSE(elements::ReadSetupText(With(text, "nuovo=1"))) << "a field that this program does not know";
  EXPECT_FALSE(elements::ReadSetupText(With(text, "parete1.strati=11")));
  EXPECT_FALSE(elements::ReadSetupText(With(text, "parete1.strati=uno")));
  EXPECT_FALSE(elements::ReadSetupText(With(text, "altezza=\\x")));
  EXPECT_FALSE(elements::ReadSetupText(With(text, "parete1.2=@99\ta\tb\t1"))) << "no such material";
  EXPECT_FALSE(elements::ReadSetupText(With(text, "calcolo=Parete di nebbia")));
  for (std::size_t length = 0; length + 1 < text.size(); ++length)
    EXPECT_FALSE(elements::ReadSetupText(text.substr(0, length))) << length;
}

TEST(Variants, AreFixedWithSetupAndResult) {
  OpenCalculation open;
  open.Replace(Wall("80"));
  open.Run(Yes);
  ASSERT_TRUE(open.Result());
  const double rw = *open.Result()->rw;
  open.EditKeepingResult([&](elements::Setup& setup) { FixVariant(setup, "A", open.Result()); });
  EXPECT_TRUE(open.Result()) << "fixing changes no input";
  const auto variants = VariantsOf(open.Setup().further);
  ASSERT_EQ(variants.size(), 1U);
  EXPECT_EQ(variants[0].Result()->rw, rw);
  EXPECT_EQ(variants[0].Result()->spectrum, open.Result()->spectrum);
  EXPECT_TRUE(IsVariant(open.Setup(), variants[0]));
}

TEST(Variants, AreGoneBackToInOneStepWithTheResultOfToday) {
  OpenCalculation open;
  open.Replace(Wall("80"));
  open.Run(Yes);
  const auto first = open.Result();
  open.EditKeepingResult([&](elements::Setup& setup) { FixVariant(setup, "A", open.Result()); });
  open.Edit([](elements::Setup& setup) {
    const auto information = setup.further;
    setup = Wall("300");
    setup.further = information;
  });
  open.EditKeepingResult([&](elements::Setup& setup) { FixVariant(setup, "B", open.Result()); });
  const elements::Setup before = open.Setup();
  ASSERT_TRUE(GoToVariant(open, 0));
  EXPECT_EQ(open.Setup().leaf1.rows[0].thickness_text, "80");
  EXPECT_EQ(Names(open.Setup()), (std::vector<std::string>{"A", "B"})) << "the list belongs to the project";
  EXPECT_EQ(open.Result(), first);
  EXPECT_EQ(open.Steps().ToUndo(), (Step{StepKind::kVariantTaken, {.index = 0}}));
  open.Undo();
  EXPECT_EQ(open.Setup(), before);
  ASSERT_TRUE(GoToVariant(open, 1));
  EXPECT_FALSE(open.Result()) << "B was fixed without one";
  EXPECT_FALSE(GoToVariant(open, 2));
}

TEST(Variants, GoOnOutsideARangeOnlyWhereTheUserDid) {
  elements::Setup setup = Wall("80");
  setup.calculation = Calculation::kSingleWallBrick;
  setup.leaf1.rows[0].slot.density_kg_m3 = 300.0;
  for (const bool went_on : {true, false}) {
    OpenCalculation open;
    open.Replace(setup);
    const RunOutcome outcome = open.Run(Yes);
    ASSERT_TRUE(outcome.result && !outcome.result->ranges_left.empty()) << "a wall outside its relation";
    elements::ResultSet kept = *open.Result();
    if (!went_on) kept.ranges_left.clear();
    open.EditKeepingResult([&](elements::Setup& now) { FixVariant(now, "A", kept); });
    open.Edit([](elements::Setup& now) { now.leaf1.rows[0].slot.thickness_mm = 120.0; });
    ASSERT_TRUE(GoToVariant(open, 0));
    EXPECT_EQ(open.Result().has_value(), went_on);
  }
}

TEST(Variants, AreRenamedMovedAndRemoved) {
  elements::Setup setup = Wall("80");
  setup.further.Set(elements::ValueKey<double>{"requisito.valore"}, std::optional(50.0));
  for (const char* name : {"A", "B", "C"}) FixVariant(setup, name, std::nullopt);
  EXPECT_EQ(NextVariantName(setup), "D");
  MoveVariant(setup, 2, 0);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"C", "A", "B"}));
  MoveVariant(setup, 0, 2);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"A", "B", "C"}));
  RenameVariant(setup, 1, "con lana");
  EXPECT_EQ(NextVariantName(setup), "B");
  EXPECT_THROW(RenameVariant(setup, 1, "A"), std::logic_error);
  EXPECT_THROW(RenameVariant(setup, 1, "  "), std::logic_error);
  RenameVariant(setup, 1, "con lana");
  RemoveVariant(setup, 0);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"con lana", "C"}));
  EXPECT_THROW(RemoveVariant(setup, 2), std::out_of_range);
  EXPECT_THROW(MoveVariant(setup, 0, 2), std::out_of_range);
  RemoveVariant(setup, 0);
  RemoveVariant(setup, 0);
  EXPECT_EQ(setup.further.Entries().size(), 1U) << "other values of the project stay, and nothing else";
}

TEST(Variants, AreNoMoreThanTheirLetters) {
  elements::Setup setup = Wall("80");
  for (int i = 0; i < elements::kMostVariants; ++i) FixVariant(setup, NextVariantName(setup), std::nullopt);
  EXPECT_EQ(Names(setup).back(), "Z");
  EXPECT_FALSE(CanFixVariant(setup));
  EXPECT_THROW(FixVariant(setup, "altra", std::nullopt), std::logic_error);
}

TEST(Variants, ThatCannotBeReadStayInTheProject) {
  elements::Setup setup = Wall("80");
  FixVariant(setup, "A", std::nullopt);
  auto variants = VariantsOf(setup.further);
  variants[0].setup_text = "cosa.nuova=1\nfine=1\n";
  variants[0].result_text = "Rw=quaranta\n";
  PutVariants(setup.further, variants);
  OpenCalculation open;
  open.Replace(setup);
  EXPECT_FALSE(GoToVariant(open, 0));
  EXPECT_EQ(open.Setup(), setup);
  EXPECT_EQ(variants[0].Result(), std::nullopt);
  FixVariant(setup, "B", std::nullopt);
  EXPECT_EQ(VariantsOf(setup.further)[0], variants[0]);
}

TEST(VariantSteps, AStepThatNoResultDependsOnKeepsTheResultWhenItIsUndone) {
  OpenCalculation open;
  open.Replace(Wall("80"));
  open.Run(No);
  open.EditKeepingResult([&](elements::Setup& setup) { FixVariant(setup, "A", open.Result()); });
  open.Undo();
  EXPECT_TRUE(open.Result());
  EXPECT_TRUE(VariantsOf(open.Setup().further).empty());
  open.Redo();
  EXPECT_TRUE(open.Result());
  EXPECT_EQ(Names(open.Setup()), (std::vector<std::string>{"A"}));
}

}  // namespace
}  // namespace velmar::calculation
