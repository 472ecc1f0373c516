#include "calculation/runs/facade_input.h"

#include <utility>

#include "calculation/runs/entered_numbers.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::FieldId;

constexpr const char* kRating = "Rw (dB)";

bool IsBlank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

bool IsNegative(const std::string& text) { return ParseDecimal(text).value_or(0.0) < 0.0; }

/// Says `what` of a field of an element: 0 the opaque part, 1 to 9 a component.
Refusal About(MessageRow what, Field field, int element) {
  MessageLine line = {what, " "};
  if (element == 0) {
    line.emplace_back(kOpaquePartTabRow);
  } else {
    line.insert(line.end(), {MessagePiece(kComponentInMessageRow), " " + std::to_string(element)});
  }
  line.emplace_back(", ");
  if (field == Field::kArea) {
    line.emplace_back(kPartAreaRow);
  } else {
    line.emplace_back(kRating);
  }
  return {{.field = field, .index = element}, std::move(line)};
}

/// What an element lacks that no number can stand in for: a blank is no 0, and only "-" and "0" make a small
/// element.
template <typename Element>
std::optional<Refusal> MissingOf(const Element& element, bool simplified, int number) {
  if (IsBlank(element.area_text)) return About(kValueMissingRow, Field::kArea, number);
  if (simplified && IsBlank(element.rating_text)) return About(kValueMissingRow, Field::kRating, number);
  return std::nullopt;
}

/// Opaque part or component `number` as the model reads it.
template <typename Element>
models::FacadePart PartOf(const Element& element, bool simplified, int number) {
  models::FacadePart part{.surface_mass_kg_m2 = static_cast<double>(element.mass_kg_m2)};
  if (simplified) {
    part.rating_db = EnteredNumber(element.rating_text, {.field = Field::kRating, .index = number});
    part.c_db = EnteredNumberOrZero(element.c_text, {.field = Field::kC, .index = number});
    part.ctr_db = EnteredNumberOrZero(element.ctr_text, {.field = Field::kCtr, .index = number});
    return part;
  }
  for (std::size_t band = 0; band < element.band_texts.size(); ++band) {
    const FieldId field{.field = Field::kBand, .index = number, .band = static_cast<int>(band)};
    part.bands_db[band] = EnteredNumberOrZero(element.band_texts[band], field);
  }
  return part;
}

double ComponentArea(const std::string& text, int number) {
  if (text == elements::kSmallElementArea) return 0.0;
  return EnteredNumber(text, {.field = Field::kArea, .index = number});
}

}  // namespace

std::optional<Refusal> FindMissingFacadeValue(const elements::Setup& setup) {
  const bool simplified = setup.facade.simplified;
  if (auto missing = MissingOf(setup.base, simplified, 0)) return missing;
  if (IsNegative(setup.base.area_text)) return Refusal{{Field::kArea}, {kComponentsFillFacadeRow}};
  for (int i = 0; i < setup.facade.Count(); ++i) {
    const elements::FacadeComponent& component = setup.facade.components.at(static_cast<std::size_t>(i));
    if (auto missing = MissingOf(component, simplified, i + 1)) return missing;
    if (IsNegative(component.area_text)) return About(kNegativeRow, Field::kArea, i + 1);
  }
  return std::nullopt;
}

models::CompositeElementInput FacadeInputOf(const elements::Setup& setup) {
  const bool simplified = setup.facade.simplified;
  models::CompositeElementInput input;
  input.area_m2 = EnteredNumber(setup.base.area_text, {Field::kArea});
  input.opaque = PartOf(setup.base, simplified, 0);
  for (int i = 0; i < setup.facade.Count(); ++i) {
    const elements::FacadeComponent& component = setup.facade.components.at(static_cast<std::size_t>(i));
    input.components.push_back({.part = PartOf(component, simplified, i + 1),
                                .area_m2 = ComponentArea(component.area_text, i + 1),
                                .tightness_class = component.tightness_class});
  }
  return input;
}

}  // namespace velmar::calculation
