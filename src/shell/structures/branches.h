#pragma once

#include <string_view>

namespace velmar::structures {

/// A kind of structures: a folder of the library, or a table of the calculated results.
enum class Branch {
  kWalls,
  kLinings,
  kFloors,
  kCoverings,
  kOpenings,
  kSmallElements,
  kFieldWalls,
  kFieldFloors,
  kCalculatedWalls,
  kCalculatedFloors,
  kCalculatedLinings,
};

/// What the numbers of a branch are called: symbols, the same in every language.
struct BranchSymbols {
  std::string_view rating = "";      ///< "Rw"
  std::string_view term = "";        ///< "C"
  std::string_view other_term = "";  ///< "Ctr"; empty where there is one term
  std::string_view bands = "";       ///< "Ri [dB]"
  bool rated_with_both = false;      ///< the rating is written with both terms
};

/// The symbols of `branch`: those of its table.
const BranchSymbols& SymbolsOf(Branch branch);

}  // namespace velmar::structures
