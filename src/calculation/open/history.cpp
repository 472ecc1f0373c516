#include "calculation/open/history.h"

#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "calculation/edits/layer_edits.h"
#include "elements/layer_groups.h"
#include "elements/requirement.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::FieldId;
using elements::LayerGroup;
using elements::Setup;

/// Collects what differs; of one row or element the field that the others follow from stands first.
class Differences {
 public:
  Differences(const Setup& before, const Setup& after) : before_(before), after_(after) {
    if (before.calculation != after.calculation) Add({StepKind::kCalculation});
    Counts();
    Kinds(before.multilayer, after.multilayer);
    for (const elements::LayerGroupRow& row : elements::LayerGroups()) Rows(row);
    elements::VisitSingleFields(
        [this](Field field, const char*, const auto& was, const auto& is) { AddIf(was != is, {field}); },
        before, after);
    FreeLayers(before.multilayer, after.multilayer);
    Element(before.base, after.base, 0);
    for (std::size_t i = 0; i < before.facade.components.size(); ++i)
      Element(before.facade.components[i], after.facade.components[i], static_cast<int>(i) + 1);
    if (before.information != after.information) Add({StepKind::kInformation});
    if (elements::RequirementOf(before) != elements::RequirementOf(after)) Add({StepKind::kRequirement});
  }

  std::optional<Step> AsOne() const {
    if (before_ == after_) return std::nullopt;
    if (steps_.empty()) return Step{};
    const Step& first = steps_.front();
    // Everything else follows from a choice of calculation or a number of layers.
    if (first.kind == StepKind::kCalculation || first.kind == StepKind::kCount) return first;
    for (const Step& step : steps_) {
      if (step != first && !FollowsFrom(step, first)) return Step{};
    }
    return first;
  }

 private:
  void Add(const Step& step) { steps_.push_back(step); }
  void AddIf(bool differs, const FieldId& field) {
    if (differs) Add({StepKind::kField, field});
  }

  static bool FollowsFrom(const Step& step, const Step& first) {
    if (step.kind == StepKind::kField && first.kind == StepKind::kField) {
      const bool depth = step.field.field == Field::kCavityDepth ||
                         step.field.field == Field::kSeaCavityDepth ||
                         step.field.field == Field::kFibreThickness;
      // A row that becomes something else joins or parts cavities, each held as it was.
      const bool joins =
          first.field.field == Field::kStratumKind &&
          (step.field.field == Field::kConnection || step.field.field == Field::kConnectionNumber);
      return depth || joins ||
             (step.field.group == first.field.group && step.field.index == first.field.index &&
              step.field.group.has_value());
    }
    return step == first;
  }

  void Counts() {
    const auto count = [this](int was, int is, LayerGroup group) {
      if (was != is) Add({StepKind::kCount, {.field = Field::kMaterial, .group = group}});
    };
    count(before_.leaf1.count, after_.leaf1.count, LayerGroup::kLeaf1);
    count(before_.cavity.layers.count, after_.cavity.layers.count, LayerGroup::kCavity);
    count(before_.leaf2.count, after_.leaf2.count, LayerGroup::kLeaf2);
    count(before_.resilient.count, after_.resilient.count, LayerGroup::kResilient);
    count(before_.sea_leaf1.count, after_.sea_leaf1.count, LayerGroup::kSeaLeaf1);
    count(before_.sea_leaf2.count, after_.sea_leaf2.count, LayerGroup::kSeaLeaf2);
    count(before_.multilayer.count, after_.multilayer.count, LayerGroup::kStratumSolid);
    if (before_.facade.count_text != after_.facade.count_text)
      Add({StepKind::kCount, {.field = Field::kArea}});
  }

  void Rows(const elements::LayerGroupRow& row) {
    const LayerGroup group = row.group;
    const bool damping = group == LayerGroup::kSeaDamping1 || group == LayerGroup::kSeaDamping2 ||
                         group == LayerGroup::kSeaCavityDamping;
    for (int i = 0; i < row.capacity; ++i) {
      const LayerText was = LayerTextOf(before_, group, i);
      const LayerText is = LayerTextOf(after_, group, i);
      if (damping)
        AddIf(DampingOf(before_, group, i).ticked != DampingOf(after_, group, i).ticked,
              {Field::kTick, group, i});
      AddIf(was.listed != is.listed, {Field::kMaterial, group, i});
      AddIf(was.multiplicity != is.multiplicity, {Field::kSheets, group, i});
      AddIf(was.thickness_text != is.thickness_text, {Field::kThickness, group, i});
    }
  }

  // A row that becomes something else may bring a thickness along, and joins or parts cavities.
  void Kinds(const elements::Multilayer& was, const elements::Multilayer& is) {
    for (int i = 0; i < elements::Multilayer::kCapacity; ++i)
      AddIf(Row(was, i).kind != Row(is, i).kind, {Field::kStratumKind, LayerGroup::kStratumSolid, i});
  }

  void FreeLayers(const elements::Multilayer& was, const elements::Multilayer& is) {
    for (int i = 0; i < elements::Multilayer::kCapacity; ++i) {
      const elements::Stratum& before = Row(was, i);
      const elements::Stratum& after = Row(is, i);
      const auto of_row = [&](bool differs, Field field) {
        AddIf(differs, {field, LayerGroup::kStratumSolid, i});
      };
      of_row(before.thickness_text != after.thickness_text, Field::kStratumThickness);
      of_row(before.connection != after.connection, Field::kConnection);
      of_row(before.connection_text != after.connection_text, Field::kConnectionNumber);
      of_row(before.profile_height_text != after.profile_height_text, Field::kProfileHeight);
      of_row(before.profile_pitch_text != after.profile_pitch_text, Field::kProfilePitch);
    }
  }

  static const elements::Stratum& Row(const elements::Multilayer& list, int index) {
    return list.strata.at(static_cast<std::size_t>(index));
  }

  template <typename PartOfFacade>
  void Element(const PartOfFacade& was, const PartOfFacade& is, int index) {
    const FieldId of{.field = Field::kBand, .index = index};
    if (was.name != is.name) Add({StepKind::kName, of});
    if (was.description != is.description) Add({StepKind::kDescription, of});
    AddIf(was.area_text != is.area_text, {.field = Field::kArea, .index = index});
    AddIf(was.rating_text != is.rating_text, {.field = Field::kRating, .index = index});
    AddIf(was.c_text != is.c_text, {.field = Field::kC, .index = index});
    AddIf(was.ctr_text != is.ctr_text, {.field = Field::kCtr, .index = index});
    AddIf(was.mass_kg_m2 != is.mass_kg_m2, {.field = Field::kMass, .index = index});
    if constexpr (requires { was.tightness_class; })
      AddIf(was.tightness_class != is.tightness_class, {.field = Field::kTightness, .index = index});
    Bands(was.band_texts, is.band_texts, of);
  }

  void Bands(const elements::BandTexts& was, const elements::BandTexts& is, FieldId of) {
    int differing = 0;
    for (std::size_t band = 0; band < was.size(); ++band) {
      if (was.at(band) == is.at(band)) continue;
      of.band = static_cast<int>(band);
      ++differing;
    }
    if (differing == 1) Add({StepKind::kField, of});
    if (differing > 1) Add({StepKind::kBands, {.field = Field::kBand, .index = of.index}});
  }

  const Setup& before_;
  const Setup& after_;
  std::vector<Step> steps_;
};

/// Whether changes of the same thing one after the other are typing.
bool IsTyped(const Step& step) {
  switch (step.kind) {
    case StepKind::kCount:
    case StepKind::kName:
    case StepKind::kDescription:
    case StepKind::kRequirement:
      return true;
    case StepKind::kField:
      break;
    default:
      return false;
  }
  switch (step.field.field) {
    case Field::kMaterial:
    case Field::kTick:
    case Field::kTightness:
    case Field::kStratumKind:
    case Field::kConnection:
      return false;
    default:
      break;
  }
  // Lists and checks are chosen; texts and numbers are typed.
  static const Setup blank;
  bool typed = true;
  elements::VisitSingleFields(
      [&]<typename Value>(Field field, const char*, const Value&) {
        if (field == step.field.field)
          typed = std::is_same_v<Value, std::string> || std::is_floating_point_v<Value>;
      },
      blank);
  return typed;
}

template <typename Entries>
auto TakeLast(Entries& entries) {
  if (entries.empty()) throw std::logic_error("no step to go to");
  auto last = std::move(entries.back());
  entries.pop_back();
  return last;
}

}  // namespace

std::optional<Step> StepBetween(const Setup& before, const Setup& after) {
  return Differences(before, after).AsOne();
}

void History::Note(const Setup& before, const Setup& after, const std::optional<Step>& named) {
  if (before == after) return;
  const std::optional<Step> step = named ? named : StepBetween(before, after);
  redone_from_.clear();
  const bool goes_on = open_ && !undone_from_.empty() && undone_from_.back().step == *step && IsTyped(*step);
  open_ = true;
  if (!goes_on) {
    ++step_number_;
    undone_from_.push_back({*step, before});
    if (undone_from_.size() > kMostSteps) undone_from_.pop_front();
  } else if (undone_from_.back().other == after) {
    undone_from_.pop_back();
  }
}

std::optional<Step> History::ToUndo() const {
  return undone_from_.empty() ? std::nullopt : std::optional(undone_from_.back().step);
}

std::optional<Step> History::ToRedo() const {
  return redone_from_.empty() ? std::nullopt : std::optional(redone_from_.back().step);
}

Setup History::Undo(const Setup& current) {
  Entry entry = TakeLast(undone_from_);
  ++step_number_;
  redone_from_.push_back({entry.step, current});
  open_ = false;
  return std::move(entry.other);
}

Setup History::Redo(const Setup& current) {
  Entry entry = TakeLast(redone_from_);
  ++step_number_;
  undone_from_.push_back({entry.step, current});
  open_ = false;
  return std::move(entry.other);
}

void History::Clear() {
  const std::size_t number = step_number_ + 1;
  *this = {};
  step_number_ = number;
}

}  // namespace velmar::calculation
