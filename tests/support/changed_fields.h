#pragma once

#include <string>
#include <type_traits>

#include "elements/fields.h"
#include "elements/setup.h"

namespace velmar::tests {

/// Another value than `value`, which a user may enter as well.
template <typename Value>
Value AnotherThan(const Value& value) {
  if constexpr (std::is_same_v<Value, std::string>) {
    return value == "17" ? "23" : "17";
  } else if constexpr (std::is_floating_point_v<Value>) {
    return value + 83;
  } else {
    return static_cast<Value>(value == Value{} ? 1 : 0);
  }
}

/// Gives another value to those of `fields` that a set-up has once. @return those that it has
inline elements::FieldSet ChangeSingleFields(elements::Setup& setup, elements::FieldSet fields) {
  elements::FieldSet changed;
  elements::VisitSingleFields(
      [&](elements::Field field, const char*, auto& value) {
        if (!fields.Has(field)) return;
        value = AnotherThan(value);
        changed = changed.With({field});
      },
      setup);
  return changed;
}

}  // namespace velmar::tests
