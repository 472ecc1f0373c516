#include "storage/project/keyed_fields.h"

#include <optional>
#include <string>
#include <utility>

#include "elements/catalogue.h"
#include "elements/setup_text.h"

namespace velmar::storage {
namespace {

using elements::Field;
using elements::FieldSet;
using elements::KeyedValues;

FieldSet KeyedFieldsOf(const elements::Setup& setup, FieldSet of_lines) {
  FieldSet keyed;
  if (!setup.calculation) return keyed;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  for (int i = 0; i <= static_cast<int>(elements::kLastField); ++i) {
    const auto field = static_cast<Field>(i);
    if (row.Reads(field) && !of_lines.Has(field)) keyed = keyed.With({field});
  }
  return keyed;
}

}  // namespace

KeyedValues KeyedValuesOf(const elements::Setup& setup, FieldSet of_lines) {
  KeyedValues values = setup.further;
  for (const auto& [name, text] : elements::SingleFieldTexts(setup, KeyedFieldsOf(setup, of_lines)))
    values.Set<std::string>({name}, text);
  return values;
}

bool TakeKeyedValues(const KeyedValues& values, elements::Setup& setup, FieldSet of_lines) {
  const FieldSet keyed = KeyedFieldsOf(setup, of_lines);
  setup.further = values;
  elements::VisitSingleFields(
      [&](Field field, const char* name, const auto&) {
        if (keyed.Has(field)) setup.further.Set<std::string>({name}, std::nullopt);
      },
      std::as_const(setup));
  return elements::TakeSingleFields(values.Entries(), keyed, setup);
}

}  // namespace velmar::storage
