#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "acoustics/bands.h"
#include "storage/tables/cell.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// The tables of the results database.
enum class ResultTable {
  kAirborne,  ///< "Potere_fonoisolante": R, Rw, C, Ctr
  kImpact,    ///< "Livello_calpestio": Ln, Ln,w, Ci
  kLining,    ///< "DRw": improved R, Delta Rw, C, Ctr
};

/// The values of a spectrum in dB; a band may have none.
using StoredBands = std::array<std::optional<double>, acoustics::kBandCount>;

/// A stored result. Nothing stands for a null.
struct SavedResult {
  std::string name{};
  std::string description{};
  std::optional<double> rating{};  ///< "Rw (dB)", "Lnw (dB)" or "DRw (dB)"
  std::optional<double> area_m2{};
  std::optional<double> thickness_mm{};
  std::optional<double> mass_kg_m2{};
  StoredBands bands{};
  std::optional<double> adaptation{};        ///< C, or Ci
  std::optional<double> other_adaptation{};  ///< Ctr, or CI,50-2500 in the column that is named 50-5000
  std::string picture = "senza";
  std::optional<double> critical_frequency_hz{};
  std::optional<double> loss_factor{};
  std::string messages{};  ///< what the run told, a line each; empty when it told nothing

  bool operator==(const SavedResult&) const = default;
};

/// The longest description that is stored, in characters.
inline constexpr std::size_t kDescriptionLength = 250;

/// The first 250 characters of `description`.
std::string CutDescription(const std::string& description);
/// The same for a facade: a longer one ends in "...", which count.
std::string CutFacadeDescription(const std::string& description);

/// The column of what the run told. Databases of earlier versions have none until a result brings something.
inline constexpr const char* kMessagesColumn = "Messaggi";

/// The column of SavedResult::rating in `table`.
std::string_view RatingColumn(ResultTable table);

/// The schema of `table`, kMessagesColumn included.
TableSchema SchemaOf(ResultTable table);

/// The result that `cells` hold, in the order of SchemaOf().
SavedResult ResultFromCells(ResultTable table, const std::vector<Cell>& cells);
/// The cells of `result` in the order of SchemaOf().
std::vector<Cell> CellsFromResult(ResultTable table, const SavedResult& result);

}  // namespace velmar::storage
