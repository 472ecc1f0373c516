#include "storage/project/family_part.h"

#include "elements/catalogue.h"

namespace velmar::storage {
namespace {

using elements::CalculationRow;
using elements::FilePart;

/// What closes the double wall of a variant that the catalogue does not hold: files name some that are no
/// longer offered.
ClosingLines ClosingOfRetired(std::string_view variant) {
  const bool fibre = variant == "Parete doppia in calcestruzzo con ossature separate" ||
                     variant.starts_with("Parete doppia in cartongesso, lastra");
  return fibre ? ClosingLines::kFibre : ClosingLines::kBlank;
}

/// The row of `variant` when it belongs to a family whose files have the same shape as those of `family`.
const CalculationRow* KnownRow(FilePart family, std::string_view variant) {
  const std::optional<elements::Calculation> calculation = elements::FindCalculation(variant);
  if (!calculation) return nullptr;
  const CalculationRow& row = elements::RowOf(*calculation);
  return elements::FilePartOf(row.family) == family ? &row : nullptr;
}

}  // namespace

StoredCalculation TextsOf(elements::Calculation calculation) {
  const elements::CalculationRow& row = elements::RowOf(calculation);
  return {std::string(FamilyText(row.family)), std::string(row.variant),
          std::string(OrientationText(row.orientation))};
}

std::optional<PartLayout> FindPartLayout(std::string_view family, std::string_view variant) {
  const std::optional<elements::Family> known_family = elements::FindFamily(family);
  if (!known_family) return std::nullopt;
  const FilePart part = elements::FilePartOf(*known_family);
  const CalculationRow* row = KnownRow(part, variant);
  if (row == nullptr)
    return PartLayout{
        .part = part, .decoupling_line = part == FilePart::kSeaDouble, .closing = ClosingOfRetired(variant)};
  const bool has_lines = part == FilePart::kSeaDouble || part == FilePart::kLining;
  return PartLayout{.part = row->file,
                    .support_line = has_lines && row->Reads(elements::Field::kSupport),
                    .hanger_line = row->Reads(elements::Field::kHanger),
                    .decoupling_line = row->Reads(elements::Field::kDecoupling),
                    .closing = row->closing};
}

}  // namespace velmar::storage
