#include "elements/single_numbers.h"
#include "foundation/message_rows.h"

#include <optional>

namespace velmar::elements {
namespace {

template <typename Numbers>
struct Row {
  const char* key;
  const char* symbol;
  std::optional<double> Numbers::*value;
  MessageRow meaning;
  bool further = true;
  int decimals = 0;
  const char* unit = "dB";
};

using acoustics::AirborneNumbers;
using acoustics::ImpactNumbers;


constexpr Row<AirborneNumbers> kAirborneRows[] = {
    {"Rw", "Rw", &AirborneNumbers::rw, kRwMeaningRow, false},
    {"Rw,0.1", "Rw (0,1)", &AirborneNumbers::rw_tenths, kRwTenthsMeaningRow, true, 1},
    {"C", "C", &AirborneNumbers::c, kCMeaningRow, false},
    {"Ctr", "Ctr", &AirborneNumbers::ctr, kCtrMeaningRow, false},
    {"C50-3150", "C50-3150", &AirborneNumbers::c_50_3150, kC50To3150MeaningRow},
    {"C50-5000", "C50-5000", &AirborneNumbers::c_50_5000, kC50To5000MeaningRow},
    {"C100-5000", "C100-5000", &AirborneNumbers::c_100_5000, kC100To5000MeaningRow},
    {"Ctr,50-3150", "Ctr,50-3150", &AirborneNumbers::ctr_50_3150, kCtr50To3150MeaningRow},
    {"Ctr,50-5000", "Ctr,50-5000", &AirborneNumbers::ctr_50_5000, kCtr50To5000MeaningRow},
    {"Ctr,100-5000", "Ctr,100-5000", &AirborneNumbers::ctr_100_5000, kCtr100To5000MeaningRow},
    {"STC", "STC", &AirborneNumbers::stc, kStcMeaningRow, true, 0, ""},
    {"OITC", "OITC", &AirborneNumbers::oitc, kOitcMeaningRow, true, 0, ""},
};

// The calculations show a term named Ci that ends at 3150 Hz; the range tells them apart.
constexpr Row<ImpactNumbers> kImpactRows[] = {
    {"Ln,w", "Ln,w", &ImpactNumbers::lnw, kLnwMeaningRow, false},
    {"CI", "CI (100-2500)", &ImpactNumbers::ci, kCiMeaningRow},
    {"CI,50-2500", "CI,50-2500", &ImpactNumbers::ci_50_2500, kCi50To2500MeaningRow},
    {"IIC", "IIC", &ImpactNumbers::iic, kIicMeaningRow, true, 0, ""},
};

template <typename Numbers, std::size_t N>
std::vector<SingleNumber> ListOf(const Numbers& numbers, const Row<Numbers> (&rows)[N]) {
  std::vector<SingleNumber> list;
  for (const Row<Numbers>& row : rows) {
    if (const std::optional<double>& value = numbers.*row.value) {
      list.push_back({row.key, row.symbol, *value, row.decimals, row.unit, row.meaning, row.further});
    }
  }
  return list;
}

}  // namespace

std::vector<SingleNumber> SingleNumbersOf(const AirborneNumbers& numbers) {
  return ListOf(numbers, kAirborneRows);
}

std::vector<SingleNumber> SingleNumbersOf(const ImpactNumbers& numbers) {
  return ListOf(numbers, kImpactRows);
}

std::vector<SingleNumber> SingleNumbersOf(const ResultSet& result, Calculation calculation) {
  if (!result.spectrum) return {};
  acoustics::BandLevels levels = acoustics::LevelsOf(*result.spectrum);
  if (RowOf(calculation).model == Model::kCompositeElement) {
    for (std::optional<double>& level : levels) {
      if (level == 0.0) level.reset();
    }
  }
  if (result.lnw) return SingleNumbersOf(acoustics::FindImpactNumbers(levels));
  return SingleNumbersOf(acoustics::FindAirborneNumbers(levels, result.rw));
}

}  // namespace velmar::elements
