#include "calculation/open/history.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "elements/layer_groups.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::FieldId;
using elements::LayerGroup;

template <typename Change>
elements::Setup Changed(elements::Setup setup, Change&& change) {
  change(setup);
  return setup;
}

TEST(StepBetween, NamesTheFieldThatTheOthersFollow) {
  const elements::Setup before;
  const auto material = StepBetween(before, Changed(before, [](elements::Setup& setup) {
                                      setup.leaf2.rows[1].listed = "Gesso";
                                      setup.leaf2.rows[1].thickness_text = "15";
                                    }));
  EXPECT_EQ(material, (Step{StepKind::kField, {Field::kMaterial, LayerGroup::kLeaf2, 1}}));
  const auto fill = StepBetween(before, Changed(before, [](elements::Setup& setup) {
                                  setup.cavity.layers.rows[0].thickness_text = "80";
                                  setup.cavity.depth_text = "80";
                                }));
  EXPECT_EQ(fill, (Step{StepKind::kField, {Field::kThickness, LayerGroup::kCavity, 0}}));
  const auto count = StepBetween(before, Changed(before, [](elements::Setup& setup) {
                                   setup.leaf1.count = 3;
                                   setup.leaf1.rows[2].listed = "Gesso";
                                 }));
  EXPECT_EQ(count->kind, StepKind::kCount);
  EXPECT_EQ(count->field.group, LayerGroup::kLeaf1);
}

TEST(StepBetween, TellsBandsElementsAndSeveralThingsApart) {
  const elements::Setup before;
  EXPECT_EQ(StepBetween(before, before), std::nullopt);
  const auto band = StepBetween(before, Changed(before, [](elements::Setup& setup) {
                                  setup.facade.components[1].band_texts[4] = "31";
                                }));
  EXPECT_EQ(band, (Step{StepKind::kField, {.field = Field::kBand, .index = 2, .band = 4}}));
  const auto bands = StepBetween(before, Changed(before, [](elements::Setup& setup) {
                                   setup.base.band_texts[4] = "31";
                                   setup.base.band_texts[5] = "32";
                                 }));
  EXPECT_EQ(bands->kind, StepKind::kBands);
  const auto several = StepBetween(before, Changed(before, [](elements::Setup& setup) {
                                     setup.leaf1.rows[0].thickness_text = "1";
                                     setup.leaf1.rows[1].thickness_text = "2";
                                   }));
  EXPECT_EQ(several->kind, StepKind::kSeveral);
}

class Edited : public testing::Test {
 protected:
  template <typename Change>
  void Edit(Change&& change) {
    const elements::Setup before = setup_;
    change(setup_);
    history_.Note(before, setup_);
  }
  void TypeThickness(const std::string& text) {
    Edit([&](elements::Setup& setup) { setup.leaf1.rows[0].thickness_text = text; });
  }

  elements::Setup setup_{};
  History history_{};
};

TEST_F(Edited, IsUndoneAndRedoneStepByStep) {
  const elements::Setup start = setup_;
  TypeThickness("12");
  history_.EndStep();
  Edit([](elements::Setup& setup) { setup.hanger = 2; });
  const elements::Setup end = setup_;
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_.hanger, 0);
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_, start);
  EXPECT_EQ(history_.ToUndo(), std::nullopt);
  setup_ = history_.Redo(setup_);
  setup_ = history_.Redo(setup_);
  EXPECT_EQ(setup_, end);
  EXPECT_EQ(history_.ToRedo(), std::nullopt);
}

TEST_F(Edited, TypingInOneFieldIsOneStep) {
  const elements::Setup start = setup_;
  for (const char* text : {"1", "12", "120"}) TypeThickness(text);
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_, start);
  TypeThickness("8");
  history_.EndStep();
  TypeThickness("80");
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_.leaf1.rows[0].thickness_text, "8") << "the field was left in between";
}

TEST_F(Edited, ChoicesOneAfterTheOtherAreStepsOfTheirOwn) {
  Edit([](elements::Setup& setup) { setup.leaf1.rows[0].listed = "A"; });
  Edit([](elements::Setup& setup) { setup.leaf1.rows[0].listed = "B"; });
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_.leaf1.rows[0].listed, "A");
}

TEST_F(Edited, ListsAndChecksAreChosenTextsAndNumbersAreTyped) {
  Edit([](elements::Setup& setup) { setup.hanger = 1; });
  Edit([](elements::Setup& setup) { setup.hanger = 2; });
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_.hanger, 1);
  Edit([](elements::Setup& setup) { setup.width_text = "1"; });
  Edit([](elements::Setup& setup) { setup.width_text = "12"; });
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_.width_text, "4");
}

TEST_F(Edited, AChangeAfterAnUndoForgetsWhatWasUndone) {
  TypeThickness("12");
  setup_ = history_.Undo(setup_);
  Edit([](elements::Setup& setup) { setup.decoupled = true; });
  EXPECT_EQ(history_.ToRedo(), std::nullopt);
}

TEST_F(Edited, WhatIsTypedBackIsNoStep) {
  setup_.leaf1.rows[0].thickness_text = "12";
  TypeThickness("1");
  TypeThickness("12");
  EXPECT_EQ(history_.ToUndo(), std::nullopt);
}

TEST_F(Edited, ManyStepsAreKeptAndTheOldestGoFirst) {
  for (int i = 0; i < 1200; ++i) {
    TypeThickness(std::to_string(i));
    history_.EndStep();
  }
  int steps = 0;
  for (; history_.ToUndo(); ++steps) setup_ = history_.Undo(setup_);
  EXPECT_EQ(steps, 1000);
  EXPECT_EQ(setup_.leaf1.rows[0].thickness_text, "199");
}

TEST_F(Edited, WhatIsNamedIsAStepOfItsOwn) {
  const elements::Setup start = setup_;
  const Step move{StepKind::kLayerMoved, {Field::kMaterial, LayerGroup::kLeaf1, 1}};
  for (const int count : {2, 3}) {
    const elements::Setup before = setup_;
    setup_.leaf1.count = count;
    history_.Note(before, setup_, move);
  }
  EXPECT_EQ(history_.ToUndo(), move);
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_.leaf1.count, 2);
  setup_ = history_.Undo(setup_);
  EXPECT_EQ(setup_, start);
  history_.Note(setup_, setup_, move);
  EXPECT_EQ(history_.ToUndo(), std::nullopt) << "nothing differs";
}

TEST(History, HasNothingToGoToAtFirst) {
  History history;
  EXPECT_THROW(history.Undo({}), std::logic_error);
  EXPECT_THROW(history.Redo({}), std::logic_error);
}

}  // namespace
}  // namespace velmar::calculation
