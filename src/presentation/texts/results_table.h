#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "acoustics/bands.h"
#include "elements/catalogue.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// The reference curve that rates results of `family`: airborne, or impact for floors.
const std::array<double, acoustics::kRatedBandCount>& ReferenceCurve(elements::Family family);

/// What stands over the bands' values: "Ri [dB]", "Li [dB]" for impact sound.
std::string ValueHeading(elements::Family family, const Words& words);

/// The bands for which a calculation shows values, both inclusive.
struct BandSpan {
  std::size_t first = 0;
  std::size_t last = 0;
};

/// All bands; 100 to 3150 Hz for linings and ceilings; nothing for generic linings, for a facade by single
/// numbers and before a choice.
std::optional<BandSpan> ShownBands(const elements::Setup& setup);

inline constexpr std::size_t kResultsRowCount = acoustics::kBandCount + 3;

/// One row of the results table. A row without a title holds nothing and is not shown.
struct ResultsTableRow {
  std::string title{};      ///< `Text1`
  std::string value{};      ///< `Text2`
  std::string reference{};  ///< shifted reference curve; only in the copy, only from 100 to 3150 Hz
  bool visible = false;

  bool operator==(const ResultsTableRow&) const = default;
};

/// The window `Form4`: 21 bands, then the single numbers.
struct ResultsTable {
  std::string frequency_heading{};  ///< `Label1`
  std::string value_heading{};      ///< `Label2`
  std::string reference_heading{};  ///< only in the copy
  std::array<ResultsTableRow, kResultsRowCount> rows{};
};

/// `CompilaTabella`: the table of `result`. Levels with one decimal, ties to even; the adaptation terms as
/// plain numbers; a number that the calculation does not give stays empty.
ResultsTable ResultsTableOf(const elements::Setup& setup, const elements::ResultSet& result,
                            const Words& words);

/// The copy for the clipboard: heading and 24 rows, cells parted by tabs, each row ended by a line feed.
std::string ClipboardText(const ResultsTable& table);

}  // namespace velmar::presentation
