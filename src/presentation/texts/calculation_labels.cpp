#include "presentation/texts/calculation_labels.h"

#include "presentation/texts/sea_cavity_parts.h"

namespace velmar::presentation {
namespace {

constexpr MessageRow kAirborneTitleRow{274};
constexpr MessageRow kFacadeTitleRow{275};
constexpr MessageRow kImpactTitleRow{276};
constexpr MessageRow kEmptyCavityRow{156};
constexpr MessageRow kFibreRow{157};
constexpr MessageRow kMassRow{158};
constexpr int kFirstHangerRow = 415;
constexpr int kHangerCount = 3;

}  // namespace

std::string WithoutColon(std::string caption) {
  while (!caption.empty() && (caption.back() == ':' || caption.back() == ' ')) caption.pop_back();
  return caption;
}

std::string TheoryText(elements::Calculation calculation, const Words& words) {
  return InWords(elements::RowOf(calculation).theory.Line(), words);
}

std::string ElementTypeText(elements::Calculation calculation, const Words& words) {
  return WithoutColon(InWords(elements::RowOf(calculation).element_type.Line(), words));
}

std::string TitleOf(elements::Family family, const Words& words) {
  if (family == elements::Family::kFacade) return words(kFacadeTitleRow);
  return words(family == elements::Family::kImpact ? kImpactTitleRow : kAirborneTitleRow);
}

std::string SeaCavityTypeText(elements::SeaCavityType type, const Words& words) {
  if (type == elements::SeaCavityType::kEmpty) return words(kEmptyCavityRow);
  std::string text;
  for (const SeaCavityPart part : PartsOf(type)) {
    if (!text.empty()) text += "+ ";
    text += words(part == SeaCavityPart::kFibre ? kFibreRow : kMassRow);
  }
  return text;
}

std::string HangerText(int hanger, const Words& words) {
  if (hanger < 0 || hanger >= kHangerCount) return {};
  return words({kFirstHangerRow + hanger});
}

}  // namespace velmar::presentation
