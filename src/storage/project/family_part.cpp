#include "storage/project/family_part.h"

#include <algorithm>
#include <array>

#include "elements/catalogue.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using elements::Family;

std::string_view VariantOf(Calculation calculation) { return elements::RowOf(calculation).variant; }

std::optional<FamilyPart> PartOf(std::string_view family_text, std::string_view variant) {
  const std::optional<Family> family = elements::FindFamily(family_text);
  const bool screed_floor = variant == VariantOf(Calculation::kFloorWithFloatingScreed);
  if (!family) return std::nullopt;
  switch (*family) {
    case Family::kSingle:
      return FamilyPart::kSingle;
    case Family::kSeaSingle:
      return FamilyPart::kSeaSingle;
    case Family::kSea:
      return FamilyPart::kSeaDouble;
    case Family::kDouble:
    case Family::kSharp:
      return screed_floor ? FamilyPart::kFloor : FamilyPart::kDoubleWall;
    case Family::kImpact:
      return FamilyPart::kFloor;
    case Family::kLining:
    case Family::kCeiling:
      return FamilyPart::kLining;
    case Family::kFacade:
      return FamilyPart::kFacade;
  }
  return std::nullopt;
}

ClosingLines ClosingOf(std::string_view variant) {
  // The first stands in files of a variant that is no longer offered.
  constexpr std::array<std::string_view, 2> kFibre = {"Parete doppia in calcestruzzo con ossature separate",
                                                      "Parete doppia in cartongesso con ossatura unica"};
  constexpr std::string_view kMeasuredBoards = "Parete doppia in cartongesso, lastra";
  if (std::ranges::find(kFibre, variant) != kFibre.end() || variant.starts_with(kMeasuredBoards))
    return ClosingLines::kFibre;

  const auto is = [variant](Calculation calculation) { return variant == VariantOf(calculation); };
  if (is(Calculation::kDoubleWallBrickTorvalle) || is(Calculation::kDoubleWallPlasterboardSeparateStuds))
    return ClosingLines::kFibreIfTyped;
  if (is(Calculation::kLightWallLineLine) || is(Calculation::kLightWallLinePoint) ||
      is(Calculation::kLightWallPointPoint))
    return ClosingLines::kSupportIfTyped;
  return ClosingLines::kBlank;
}

}  // namespace

StoredCalculation TextsOf(Calculation calculation) {
  const elements::CalculationRow& row = elements::RowOf(calculation);
  return {std::string(FamilyText(row.family)), std::string(row.variant),
          std::string(OrientationText(row.orientation))};
}

std::optional<PartLayout> FindPartLayout(std::string_view family, std::string_view variant) {
  const std::optional<FamilyPart> part = PartOf(family, variant);
  if (!part) return std::nullopt;
  const bool sea = *part == FamilyPart::kSeaDouble;
  const bool sea_plasterboard = variant == VariantOf(Calculation::kDoubleWallSeaPlasterboardPoint) ||
                                variant == VariantOf(Calculation::kDoubleWallSeaPlasterboardLine);
  return PartLayout{
      .part = *part,
      .support_line = (sea && sea_plasterboard) ||
                      (*part == FamilyPart::kLining && variant == VariantOf(Calculation::kLiningFrame)),
      .hanger_line = *part == FamilyPart::kLining && variant == VariantOf(Calculation::kCeilingSea),
      .decoupling_line = sea && !sea_plasterboard,
      .closing = ClosingOf(variant),
  };
}

}  // namespace velmar::storage
