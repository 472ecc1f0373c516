#include "storage/results/result_copy.h"

#include <utility>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::storage {
namespace {

CopiedField BandField(const std::optional<double>& value) {
  if (!value) return {};
  return {{FormatFixed(*value, 1)}, RoundToEven(*value, 1)};
}

}  // namespace

CopiedField TextField(MessageLine text) { return {std::move(text), std::nullopt}; }

CopiedField NumberField(const std::optional<double>& value) {
  return value ? CopiedField{{FormatShortest(*value)}, value} : CopiedField{};
}

CopiedTable CopyOf(ResultTable table, const SavedResult& result) {
  const bool impact = table == ResultTable::kImpact;
  std::vector<CopiedField> centres;
  std::vector<CopiedField> values;
  for (std::size_t band = 0; band < result.bands.size(); ++band) {
    centres.push_back(NumberField(acoustics::BandCentre(band)));
    values.push_back(BandField(result.bands.at(band)));
  }
  CopiedTable copy = {
      {TextField({kNameHeadingRow}), TextField({result.name})},
      {TextField({kDescriptionRow}), TextField({result.description})},
      {TextField({kRatingHeadingRow, " [dB]"}), NumberField(result.rating)},
      {TextField({kAreaHeadingRow, " [m²]"}), NumberField(result.area_m2)},
      centres,
      values,
      {TextField({impact ? "Ci [dB]" : "C [dB]"}), TextField({impact ? "C50_5000 [dB]" : "Ctr [dB]"})},
      {NumberField(result.adaptation), NumberField(result.other_adaptation)}};
  if (!result.messages.empty())
    copy.push_back({TextField({kMessagesTitleRow}), TextField({result.messages})});
  return copy;
}

}  // namespace velmar::storage
