#include "calculation/edits/layer_moves.h"

#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include "calculation/edits/copied_layers.h"
#include "elements/catalogue.h"
#include "elements/parts.h"
#include "elements/setup_text.h"
#include "tests/support/random_setup.h"

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::LayerGroup;

constexpr LayerGroup kFreeGroups[] = {LayerGroup::kLeaf1,    LayerGroup::kLeaf2,  LayerGroup::kSeaLeaf1,
                                      LayerGroup::kSeaLeaf2, LayerGroup::kCavity, LayerGroup::kResilient};

std::vector<std::string> Names(const elements::Setup& setup, LayerGroup group) {
  std::vector<std::string> names;
  for (const elements::Part& part : PartsOf(setup)) {
    for (const elements::Layer& layer : part.layers) {
      if (layer.group == group) names.push_back(layer.name);
    }
  }
  return names;
}

void Fill(elements::LeafLayers& leaf, const std::vector<std::string>& names) {
  leaf.count = static_cast<int>(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    leaf.rows.at(i).listed = leaf.rows.at(i).slot.name = names[i];
    leaf.rows.at(i).slot.thickness_mm = 10.0 * static_cast<double>(i + 1);
  }
}

elements::Setup DoubleWall(const std::vector<std::string>& first, const std::vector<std::string>& second) {
  elements::Setup setup;
  setup.calculation = Calculation::kDoubleWallGeneric;
  Fill(setup.leaf1, first);
  Fill(setup.leaf2, second);
  return setup;
}

using NameList = std::vector<std::string>;

TEST(LayerMoves, PutTakeDoubleAndMove) {
  elements::Setup setup = DoubleWall({"a", "b", "c"}, {"x"});
  setup.leaf1.rows[3].listed = setup.leaf1.rows[3].slot.name = "spare";
  InsertLayer(setup, LayerGroup::kLeaf1, 1);
  EXPECT_EQ(Names(setup, LayerGroup::kLeaf1), (NameList{"a", "spare", "b", "c"}));
  RemoveLayer(setup, LayerGroup::kLeaf1, 0);
  EXPECT_EQ(Names(setup, LayerGroup::kLeaf1), (NameList{"spare", "b", "c"}));
  DuplicateLayer(setup, LayerGroup::kLeaf1, 1);
  EXPECT_EQ(Names(setup, LayerGroup::kLeaf1), (NameList{"spare", "b", "b", "c"}));
  MoveLayer(setup, LayerGroup::kLeaf1, 3, 0);
  EXPECT_EQ(Names(setup, LayerGroup::kLeaf1), (NameList{"c", "spare", "b", "b"}));
  MoveLayer(setup, LayerGroup::kLeaf1, 0, 2);
  EXPECT_EQ(Names(setup, LayerGroup::kLeaf1), (NameList{"spare", "b", "c", "b"}));
}

TEST(LayerMoves, KeepTheLimitsOfTheCounts) {
  for (const LayerGroup group : kFreeGroups) {
    elements::Setup setup;
    while (CanInsertLayer(setup, group)) InsertLayer(setup, group, 0);
    EXPECT_EQ(RowsInUse(setup, group), RowOf(group).capacity);
    EXPECT_THROW(InsertLayer(setup, group, 0), std::out_of_range);
    EXPECT_THROW(DuplicateLayer(setup, group, 0), std::out_of_range);
    while (CanRemoveLayer(setup, group)) RemoveLayer(setup, group, 0);
    EXPECT_EQ(RowsInUse(setup, group), group == LayerGroup::kResilient ? 0 : 1);
    EXPECT_THROW(RemoveLayer(setup, group, 0), std::out_of_range);
    EXPECT_FALSE(CanMoveLayers(setup, group));
  }
  elements::Setup setup;
  EXPECT_THROW(InsertLayer(setup, LayerGroup::kSeaDamping1, 0), std::out_of_range);
  EXPECT_THROW(MoveLayer(setup, LayerGroup::kSeaDamping1, 0, 1), std::out_of_range);
  EXPECT_THROW(InsertLayer(setup, LayerGroup::kSeaCavityFibre, 0), std::out_of_range);
}

TEST(LayerMoves, ACountTypedAboveTheRowsOfTheCavityComesDownByALayer) {
  elements::Setup setup;
  setup.cavity.layers.count = 9;
  EXPECT_FALSE(CanInsertLayer(setup, LayerGroup::kCavity));
  RemoveLayer(setup, LayerGroup::kCavity, 2);
  EXPECT_EQ(setup.cavity.layers.count, 6);
}

TEST(LayerMoves, ACavityIsNeverThinnerThanWhatItHolds) {
  elements::Setup setup;
  setup.cavity.kind = elements::CavityKind::kGenericMaterial;
  setup.cavity.depth_text = "50";
  setup.cavity.layers.rows[0].slot.thickness_mm = 40.0;
  DuplicateLayer(setup, LayerGroup::kCavity, 0);
  EXPECT_EQ(setup.cavity.depth_text, "80");
}

/// Any set-up of any calculation.
class AnySetup : public testing::Test {
 protected:
  template <typename Check>
  void ForEach(Check&& check) {
    tests::RandomSource random(20261122);
    for (const elements::CalculationRow& row : elements::Catalogue()) {
      for (int i = 0; i < 5; ++i)
        check(tests::RandomSetup(row.calculation, tests::Wildness::kPlausible, random), random);
    }
  }
};

TEST_F(AnySetup, TakingOutWhatWasPutInLeavesEverythingAsItWas) {
  ForEach([](const elements::Setup& setup, tests::RandomSource& random) {
    for (const LayerGroup group : kFreeGroups) {
      if (!CanInsertLayer(setup, group) || group == LayerGroup::kCavity) continue;
      elements::Setup changed = setup;
      const int at = random.Below(RowsInUse(setup, group) + 1);
      InsertLayer(changed, group, at);
      EXPECT_EQ(RowsInUse(changed, group), RowsInUse(setup, group) + 1);
      RemoveLayer(changed, group, at);
      EXPECT_EQ(changed, setup);
    }
  });
}

TEST_F(AnySetup, AMoveThereAndBackLeavesEverythingAsItWas) {
  ForEach([](const elements::Setup& setup, tests::RandomSource& random) {
    for (const LayerGroup group : kFreeGroups) {
      if (!CanMoveLayers(setup, group)) continue;
      const int from = random.Below(RowsInUse(setup, group));
      const int to = random.Below(RowsInUse(setup, group));
      elements::Setup changed = setup;
      MoveLayer(changed, group, from, to);
      EXPECT_EQ(changed == setup, from == to);
      MoveLayer(changed, group, to, from);
      EXPECT_EQ(changed, setup);
    }
  });
}

TEST_F(AnySetup, TurnedTwiceStandsAsItStood) {
  int turned = 0;
  ForEach([&](const elements::Setup& setup, tests::RandomSource& /*random*/) {
    if (!CanTurn(setup)) return;
    elements::Setup once = setup;
    TurnElement(once);
    elements::Setup twice = once;
    TurnElement(twice);
    // A free list of layers says after the first turn in every row what it said before in one row for
    // several.
    if (setup.calculation == elements::Calculation::kMultilayerGeneric) {
      elements::Setup thrice = twice;
      TurnElement(thrice);
      EXPECT_EQ(thrice, once);
    } else {
      EXPECT_EQ(twice, setup);
    }
    ++turned;
  });
  EXPECT_GT(turned, 100);
}

TEST_F(AnySetup, TurningReversesTheLayersOfTheWholeElement) {
  ForEach([](const elements::Setup& setup, tests::RandomSource& /*random*/) {
    if (!CanTurn(setup)) return;
    // In a SEA cavity the damping keeps the side of its mass, the only one that it has there.
    if (setup.calculation && RowOf(*setup.calculation).stacks.Has(elements::Stack::kSeaCavity)) return;
    const auto names = [](const elements::Setup& element) {
      NameList all;
      for (const elements::Part& part : PartsOf(element)) {
        for (const elements::Layer& layer : part.layers)
          all.push_back(layer.name + " " + std::to_string(layer.thickness_mm));
      }
      return all;
    };
    elements::Setup changed = setup;
    TurnElement(changed);
    NameList expected = names(setup);
    std::reverse(expected.begin(), expected.end());
    EXPECT_EQ(names(changed), expected);
  });
}

TEST_F(AnySetup, AMirrorOfAMirrorIsTheLeafItself) {
  int mirrored = 0;
  ForEach([&](const elements::Setup& setup, tests::RandomSource& /*random*/) {
    if (!CanMirror(setup)) return;
    elements::Setup changed = setup;
    MirrorFirstLeaf(changed);
    const elements::Setup once = changed;
    MirrorSecondLeaf(changed);
    EXPECT_EQ(changed, once) << "the first leaf is the mirror of the second";
    EXPECT_EQ(changed.leaf1, setup.leaf1);
    EXPECT_EQ(changed.sea_leaf1, setup.sea_leaf1);
    ++mirrored;
  });
  EXPECT_GT(mirrored, 50);
}

TEST_F(AnySetup, WhatIsCopiedReplacesItself) {
  ForEach([](const elements::Setup& setup, tests::RandomSource& /*random*/) {
    for (const LayerGroup group : kFreeGroups) {
      if (RowsInUse(setup, group) == 0 || group == LayerGroup::kCavity) continue;
      elements::Setup changed = setup;
      ASSERT_TRUE(ReplaceLayers(changed, group, CopyLayers(setup, group, 0, RowsInUse(setup, group))));
      const bool sea = group == LayerGroup::kSeaLeaf1 || group == LayerGroup::kSeaLeaf2;
      EXPECT_EQ(CopyLayers(changed, group, 0, RowsInUse(changed, group)),
                CopyLayers(setup, group, 0, RowsInUse(setup, group)))
          << sea;
    }
  });
}

TEST_F(AnySetup, WhatIsCopiedReadsBackFromItsText) {
  ForEach([](const elements::Setup& setup, tests::RandomSource& /*random*/) {
    for (const LayerGroup group : kFreeGroups) {
      CopiedLayers layers = CopyLayers(setup, group, 0, RowsInUse(setup, group));
      if (auto* leaf = std::get_if<std::vector<CopiedLeafLayer>>(&layers)) {
        // Damping that is not there is not told.
        for (CopiedLeafLayer& layer : *leaf) {
          for (elements::DampingRow& damping : layer.damping) {
            if (!damping.ticked) damping = {};
          }
        }
      }
      EXPECT_EQ(ReadLayers(WriteLayers(layers)), layers);
    }
  });
}

TEST(CopiedLayers, AreRefusedAsAWhole) {
  const CopiedLayers layers = CopyLayers(DoubleWall({"a", "b"}, {"x"}), LayerGroup::kLeaf1, 0, 2);
  const std::string text = WriteLayers(layers);
  ASSERT_EQ(ReadLayers(text), layers);
  for (const std::string& wrong : {std::string(), std::string("famiglia=3\n"), "strato=\n" + text,
                                   text + "strato=a\tb\tc\t1\n", text.substr(0, text.size() / 2)})
    EXPECT_NE(ReadLayers(wrong), layers) << wrong;
  EXPECT_FALSE(ReadLayers("famiglia=0\nsx=" + elements::WriteRowText(CopiedResilientLayer()) + '\n'));
}

TEST(Mirror, IsForTwoLeavesWithACavity) {
  elements::Setup setup = DoubleWall({"a", "b"}, {"x", "y", "z"});
  MirrorFirstLeaf(setup);
  EXPECT_EQ(Names(setup, LayerGroup::kLeaf2), (NameList{"b", "a"}));
  setup.calculation = Calculation::kImpactFloatingFloor;
  EXPECT_FALSE(CanMirror(setup));
  EXPECT_THROW(MirrorFirstLeaf(setup), std::logic_error);
  EXPECT_FALSE(CanTurn(setup));
  EXPECT_THROW(TurnElement(setup), std::logic_error);
}

TEST(Mirror, PutsDampingOnTheOtherSide) {
  elements::Setup setup;
  setup.calculation = Calculation::kDoubleWallSeaBrick;
  setup.sea_leaf1.count = 2;
  setup.sea_leaf1.damping[0].ticked = true;
  MirrorFirstLeaf(setup);
  EXPECT_TRUE(setup.sea_leaf2.damping[3].ticked);
  EXPECT_FALSE(setup.sea_leaf2.damping[0].ticked);
}

TEST(Turn, NeedsACavityThatReadsTheSameFromBothSides) {
  elements::Setup setup;
  setup.calculation = Calculation::kDoubleWallSeaBrick;
  for (const auto& [type, turns] : {std::pair(elements::SeaCavityType::kEmpty, true),
                                    {elements::SeaCavityType::kFibre, true},
                                    {elements::SeaCavityType::kFibreMass, false},
                                    {elements::SeaCavityType::kMassFibreMass, true},
                                    {elements::SeaCavityType::kFibreMassFibre, true},
                                    {elements::SeaCavityType::kFibreMassFibreMass, false},
                                    {elements::SeaCavityType::kFibreMassFibreMassFibre, true}}) {
    setup.sea_cavity.type = type;
    EXPECT_EQ(CanTurn(setup), turns) << static_cast<int>(type);
  }
}

TEST(Paste, TakesSheetsAndDampingAcrossKindsOfLeaves) {
  elements::Setup setup = DoubleWall({"a", "b"}, {"x"});
  setup.leaf1.rows[0].multiplicity = 2;
  ASSERT_TRUE(ReplaceLayers(setup, LayerGroup::kSeaLeaf1, CopyLayers(setup, LayerGroup::kLeaf1, 0, 2)));
  EXPECT_EQ(setup.sea_leaf1.count, 3);
  EXPECT_EQ(setup.sea_leaf1.rows[0].listed, "a");
  EXPECT_EQ(setup.sea_leaf1.rows[1].listed, "a");
  EXPECT_EQ(setup.sea_leaf1.rows[1].multiplicity, 1);
  EXPECT_EQ(setup.sea_leaf1.rows[2].listed, "b");

  setup.sea_leaf1.damping[1] = {.ticked = true};
  setup.sea_leaf1.damping[1].row.listed = "gomma";
  ASSERT_TRUE(PasteLayers(setup, LayerGroup::kLeaf2, 1, CopyLayers(setup, LayerGroup::kSeaLeaf1, 0, 1)));
  EXPECT_EQ(setup.leaf2.count, 3);
  EXPECT_EQ(setup.leaf2.rows[0].listed, "x");
  EXPECT_EQ(setup.leaf2.rows[1].listed, "a");
  EXPECT_EQ(setup.leaf2.rows[2].listed, "gomma");
}

TEST(Paste, LeavesEverythingAsItWasWhereTheLayersDoNotFit) {
  elements::Setup setup = DoubleWall({"a", "b", "c", "d", "e", "f"}, {"x"});
  const elements::Setup before = setup;
  const CopiedLayers six = CopyLayers(setup, LayerGroup::kLeaf1, 0, 6);
  EXPECT_EQ(CountOf(six), 6);
  EXPECT_FALSE(PasteLayers(setup, LayerGroup::kLeaf1, 3, six)) << "twelve in ten rows";
  EXPECT_FALSE(PasteLayers(setup, LayerGroup::kSeaLeaf1, 0, six));
  EXPECT_FALSE(PasteLayers(setup, LayerGroup::kCavity, 0, six)) << "of another family";
  EXPECT_FALSE(PasteLayers(setup, LayerGroup::kLeaf2, 0, CopiedLayers(std::vector<CopiedLeafLayer>())));
  EXPECT_EQ(setup, before);
  EXPECT_THROW(PasteLayers(setup, LayerGroup::kSeaDamping1, 0, six), std::out_of_range);
  EXPECT_THROW(PasteLayers(setup, LayerGroup::kLeaf2, 2, six), std::out_of_range);
}

}  // namespace
}  // namespace velmar::calculation
