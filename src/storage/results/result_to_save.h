#pragma once

#include <optional>
#include <string>

#include "elements/catalogue.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "storage/results/saved_result.h"

namespace velmar::storage {

/// The table that results of `family` go to.
ResultTable TableFor(elements::Family family);

/// What only the caller knows of a result.
struct ResultHeading {
  std::string name{};
  std::string description{};             ///< whole; it is cut here, with "..." for a facade
  std::optional<double> thickness_mm{};  ///< `Text3`
  std::optional<double> mass_kg_m2{};    ///< `Text4`; a facade's own mass goes before it
  std::string messages{};                ///< what the run told, in words, a line each
};

/// The row that stores the result of a set-up. The area is width times height; of a facade its whole area,
/// and of a lining the area of its base, when the base has a rating (`Text25`). A facade band without a value
/// is stored as null, so that it is not taken for 0 dB later.
/// @param setup its calculation must be chosen
SavedResult ResultToSave(const elements::Setup& setup, const elements::ResultSet& result,
                         const ResultHeading& heading);

}  // namespace velmar::storage
