#include "presentation/texts/references.h"

#include <algorithm>
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

}  // namespace

std::string ReferenceText(int mark, const Words& words) {
  if (mark < 1 || mark > static_cast<int>(kRelationReferenceRows.size())) return {};
  return "[" + std::to_string(mark) + "] " +
         words(kRelationReferenceRows[static_cast<std::size_t>(mark - 1)]);
}

std::string ModelReference(elements::Calculation calculation, const Words& words) {
  return words(ModelReferenceRow(elements::RowOf(calculation).model));
}

std::vector<std::string> ReferencesOf(elements::Calculation calculation, const Words& words) {
  const elements::CalculationRow& row = elements::RowOf(calculation);
  const bool impact = row.family == elements::Family::kImpact;
  std::vector<int> marks;
  const auto add_mark = [&](int mark) {
    if (mark > 0 && std::find(marks.begin(), marks.end(), mark) == marks.end()) marks.push_back(mark);
  };
  add_mark(row.mark);
  add_mark(row.theory.mark);
  if (impact) {
    add_mark(kFloatingScreedMark);
    add_mark(kFloorEstimateMark);
  }
  std::vector<std::string> references;
  for (const int mark : marks) references.push_back(ReferenceText(mark, words));
  references.push_back(words(kModelCaptionRow) + ": " + ModelReference(calculation, words));
  references.push_back(words(kRatingCaptionRow) + ": " +
                       words(impact ? kRatingStandardImpactRow : kRatingStandardAirborneRow));
  return references;
}

}  // namespace velmar::presentation
