#include "presentation/texts/references.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "presentation/texts/calculation_data.h"

namespace velmar::presentation {
namespace {

using elements::Model;

/// Every floor's airborne estimate is formed after it.
constexpr int kFloorEstimateMark = 27;
constexpr int kFloatingScreedMark = 22;

MessageRow ModelReferenceRow(Model model) {
  switch (model) {
    case Model::kSingleWall:
      return kThinPlateReferenceRow;
    case Model::kDoubleWall:
    case Model::kFloatingScreedFloor:
      return kTwoPlatesReferenceRow;
    case Model::kLightDoubleWall:
      return kSharpReferenceRow;
    case Model::kSingleSeaWall:
    case Model::kDoubleSeaWall:
    case Model::kSeaLining:
      return kSeaReferenceRow;
    case Model::kGenericLining:
      return kResonanceReferenceRow;
    case Model::kCompositeElement:
      return kFacadeReferenceRow;
    case Model::kImpactFloor:
      return kImpactReferenceRow;
    case Model::kLayered:
      return kLayeredSourceRow;
  }
  return {};
}

bool IsImpact(const elements::CalculationRow& row) { return row.family == elements::Family::kImpact; }

MessageRow RatingRow(const elements::CalculationRow& row) {
  return IsImpact(row) ? kRatingStandardImpactRow : kRatingStandardAirborneRow;
}

/// The marks of what a calculation rests on, each once.
std::vector<int> MarksOf(const elements::CalculationRow& row) {
  std::vector<int> marks;
  const auto add = [&](int mark) {
    if (mark > 0 && std::ranges::count(marks, mark) == 0) marks.push_back(mark);
  };
  add(row.mark);
  add(row.theory.mark);
  if (IsImpact(row)) {
    add(kFloatingScreedMark);
    add(kFloorEstimateMark);
  }
  return marks;
}

}  // namespace

std::string ReferenceText(int mark, const Words& words) {
  if (mark < 1 || mark > static_cast<int>(kRelationReferenceRows.size())) return {};
  return "[" + std::to_string(mark) + "] " +
         words(kRelationReferenceRows[static_cast<std::size_t>(mark - 1)]);
}

std::string ModelReference(elements::Calculation calculation, const Words& words) {
  return words(ModelReferenceRow(elements::RowOf(calculation).model));
}

const char* KindText(ReferenceKind kind) {
  switch (kind) {
    case ReferenceKind::kRelation:
      return "relation";
    case ReferenceKind::kModel:
      return "model";
    case ReferenceKind::kRating:
      return "rating";
  }
  return "";
}

std::vector<Reference> AllReferences(const Words& words) {
  std::vector<Reference> references;
  for (int mark = 1; mark <= static_cast<int>(kRelationReferenceRows.size()); ++mark) {
    Reference relation{.kind = ReferenceKind::kRelation, .mark = mark, .text = ReferenceText(mark, words)};
    for (const elements::CalculationRow& row : elements::Catalogue()) {
      const std::vector<int> marks = MarksOf(row);
      if (std::ranges::count(marks, mark) > 0) relation.calculations.emplace_back(row.variant);
    }
    references.push_back(std::move(relation));
  }
  const auto add = [&](ReferenceKind kind, std::string text, std::string_view calculation) {
    auto known = std::ranges::find(references, text, &Reference::text);
    if (known == references.end())
      known = references.insert(known, Reference{.kind = kind, .text = std::move(text)});
    known->calculations.emplace_back(calculation);
  };
  for (const elements::CalculationRow& row : elements::Catalogue())
    add(ReferenceKind::kModel, ModelReference(row.calculation, words), row.variant);
  for (const elements::CalculationRow& row : elements::Catalogue())
    add(ReferenceKind::kRating, words(RatingRow(row)), row.variant);
  return references;
}

std::vector<std::string> ReferencesOf(elements::Calculation calculation, const Words& words) {
  const elements::CalculationRow& row = elements::RowOf(calculation);
  std::vector<std::string> references;
  for (const int mark : MarksOf(row)) references.push_back(ReferenceText(mark, words));
  references.push_back(words(kModelCaptionRow) + ": " + ModelReference(calculation, words));
  references.push_back(words(kRatingCaptionRow) + ": " + words(RatingRow(row)));
  return references;
}

}  // namespace velmar::presentation
