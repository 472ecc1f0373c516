#include "presentation/reports/facade_rows.h"

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/facade_texts.h"

namespace velmar::presentation {
namespace {

constexpr const char* kNoArea = "-";

/// The number without the sign that ShareText() ends in.
std::string ShareOf(const elements::Setup& setup, double area_m2) {
  std::string share = ShareText(setup, area_m2);
  if (share.ends_with('%')) share.pop_back();
  return share;
}

StructureRow OpaquePart(const elements::Setup& setup, const Words& words) {
  const elements::BaseElement& base = setup.base;
  const double area = OpaqueArea(setup);
  return {.kind = StructureKind::kPart,
          .number = 1,
          .name = base.name.empty() ? words(kOpaquePartRow) : base.name,
          .description = base.description,
          .mass_kg_m2 = static_cast<double>(base.mass_kg_m2),
          .rating = base.rating_text,
          .area = FormatFixed(area, 2),
          .share = ShareOf(setup, area),
          .note = words(kOpaquePartRow)};
}

StructureRow Component(const elements::Setup& setup, const elements::FacadeComponent& part, int number,
                       const Words& words) {
  StructureRow row{.kind = StructureKind::kPart,
                   .number = number,
                   .name = part.name,
                   .description = part.description,
                   .rating = part.rating_text,
                   .area = kNoArea,
                   .share = kNoArea,
                   .note = words(kSmallElementRow)};
  const double area = ComponentArea(part);
  if (area == 0.0) return row;
  row.area = FormatFixed(area, 2);
  row.share = ShareOf(setup, area);
  row.note = TightnessText(part.tightness_class, words);
  row.mass_kg_m2 = static_cast<double>(part.mass_kg_m2);
  return row;
}

}  // namespace

std::vector<StructureRow> FacadeRowsOf(const elements::Setup& setup, const Words& words) {
  std::vector<StructureRow> rows = {OpaquePart(setup, words)};
  for (int i = 0; i < setup.facade.Count(); ++i)
    rows.push_back(Component(setup, setup.facade.components[static_cast<std::size_t>(i)], i + 2, words));
  return rows;
}

}  // namespace velmar::presentation
