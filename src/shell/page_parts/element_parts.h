#pragma once

#include "calculation/edits/facade_parts.h"
#include "elements/setup.h"

namespace velmar::shell {

/// Gives `visit` an element of `setup`: 0 the base element, 1 to 9 a component; both have the same fields.
template <typename AnySetup, typename Visit>
auto Visited(AnySetup& setup, int element, Visit&& visit) {
  if (element == 0) return visit(setup.base);
  return visit(setup.facade.components.at(static_cast<std::size_t>(element - 1)));
}

/// `part` becomes an element of `setup`: 0 the base element of its calculation, 1 to 9 a component.
inline void TakePart(elements::Setup& setup, int element, const calculation::FacadePart& part) {
  const bool facade = setup.calculation && RowOf(*setup.calculation).family == elements::Family::kFacade;
  if (element > 0) {
    calculation::TakeAsComponent(setup, element, part);
  } else if (facade) {
    calculation::TakeAsOpaquePart(setup, part);
  } else {
    calculation::TakeAsLiningBase(setup, part);
  }
}

}  // namespace velmar::shell
