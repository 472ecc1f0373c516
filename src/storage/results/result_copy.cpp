#include "storage/results/result_copy.h"

#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

constexpr MessageRow kNameRow{371};
constexpr MessageRow kDescriptionRow{94};
constexpr MessageRow kRatingRow{372};
constexpr MessageRow kAreaRow{373};

std::string Shortest(const std::optional<double>& value) {
  return value ? FormatShortest(*value) : std::string();
}

}  // namespace

CopiedTable CopyOf(ResultTable table, const SavedResult& result) {
  const bool impact = table == ResultTable::kImpact;
  std::vector<MessageLine> centres;
  std::vector<MessageLine> values;
  for (std::size_t band = 0; band < result.bands.size(); ++band) {
    centres.push_back({FormatShortest(acoustics::BandCentre(band))});
    const std::optional<double>& value = result.bands.at(band);
    values.push_back({value ? FormatFixed(*value, 1) : std::string()});
  }
  return {{{kNameRow}, {result.name}},
          {{kDescriptionRow}, {result.description}},
          {{kRatingRow, " [dB]"}, {Shortest(result.rating)}},
          {{kAreaRow, " [m²]"}, {Shortest(result.area_m2)}},
          centres,
          values,
          {{impact ? "Ci [dB]" : "C [dB]"}, {impact ? "C50_5000 [dB]" : "Ctr [dB]"}},
          {{Shortest(result.adaptation)}, {Shortest(result.other_adaptation)}}};
}

}  // namespace velmar::storage
