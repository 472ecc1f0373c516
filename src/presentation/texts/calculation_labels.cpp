#include "presentation/texts/calculation_labels.h"

#include "foundation/message_rows.h"
#include "presentation/texts/sea_cavity_parts.h"

namespace velmar::presentation {

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
  if (type == elements::SeaCavityType::kEmpty) return words(kEmptySeaCavityRow);
  std::string text;
  for (const SeaCavityPart part : PartsOf(type)) {
    if (!text.empty()) text += "+ ";
    text += words(part == SeaCavityPart::kFibre ? kFibreLayerRow : kMassLayerRow);
  }
  return text;
}

std::string HangerText(int hanger, const Words& words) {
  const auto place = static_cast<std::size_t>(hanger);
  return place < kHangerRows.size() ? words(kHangerRows[place]) : std::string();
}

}  // namespace velmar::presentation
