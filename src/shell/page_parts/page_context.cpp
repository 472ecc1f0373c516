#include "shell/page_parts/page_context.h"

#include <algorithm>

namespace velmar::shell {

PageContext::PageContext(calculation::OpenCalculation& open_calculation, const Speech& how_to_speak,
                         const PageServices& page_services, MaterialLists& lists)
    : open(open_calculation), speech(how_to_speak), services(page_services), materials(lists) {}

QWidget* PageContext::ControlOf(const elements::FieldId& field) const {
  const auto placed = [this](const elements::FieldId& wanted) {
    const auto found = std::ranges::find(places_, wanted, &std::pair<elements::FieldId, QWidget*>::first);
    return found != places_.end() ? found->second : nullptr;
  };
  QWidget* own = placed(field);
  if (own != nullptr || !field.group) return own;
  return placed({.field = elements::Field::kMaterial, .group = field.group, .index = field.index});
}

}  // namespace velmar::shell
