#pragma once

#include "calculation/facade_parts.h"
#include "elements/setup.h"

namespace velmar::shell {

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
