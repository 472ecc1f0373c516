#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/bands.h"
#include "elements/catalogue.h"
#include "elements/result_set.h"
#include "elements/variants.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// A curve of a comparison and the single numbers that are stated with it. Levels in dB.
struct ComparedCurve {
  std::string name{};
  acoustics::Spectrum levels{};  ///< 0 in a band without a value
  bool in_octaves = false;       ///< the levels are octaves, each over its three thirds
  std::string symbol{};          ///< of `rating`: "Rw", "R'w", "Ln,w"
  std::optional<double> rating{};
  std::optional<double> term{};        ///< C, or Ci
  std::optional<double> other_term{};  ///< Ctr

  bool operator==(const ComparedCurve&) const = default;
};

/// Curves of one quantity beside each other.
struct Comparison {
  std::vector<ComparedCurve> curves{};   ///< in the order of display
  std::optional<std::size_t> against{};  ///< the curve that differences are counted from
  bool is_impact = false;

  bool operator==(const Comparison&) const = default;
};

/// `result` as a curve called `name`; nothing without a spectrum. The numbers of a lining are those of the
/// element that results from base and lining, as the curve is.
std::optional<ComparedCurve> ComparedResult(std::string name, const elements::ResultSet& result,
                                            elements::Calculation calculation);
/// The same of what a variant of `calculation` keeps.
std::optional<ComparedCurve> ComparedVariant(std::string name, const elements::VariantResult& result,
                                             elements::Calculation calculation);

/// Differences in dB by band; nothing where either curve has no value.
using BandDifferences = std::array<std::optional<double>, acoustics::kBandCount>;

/// By how much `curve` lies above `from`.
BandDifferences DifferencesOf(const ComparedCurve& curve, const ComparedCurve& from);

/// By how much the rating of `curve` lies above that of `from`, dB; nothing where either is missing or they
/// are not the same quantity.
std::optional<double> RatingDifference(const ComparedCurve& curve, const ComparedCurve& from);

/// "52", or with its symbol where that is not the one of the column, "R'w 52"; "–" without a rating.
std::string RatingCell(const ComparedCurve& curve, bool is_impact);
/// A term, a difference: with its sign, "+2", "-5", "0"; "–" for none.
std::string SignedCell(const std::optional<double>& value, int decimals = 0);

/// The heads of rating and terms: "Rw", "C", "Ctr" or "Ln,w", "Ci".
std::vector<std::string> RatingHeads(bool is_impact);

/// `comparison` at the end of `data`: the ratings of its curves, their levels and, where one was chosen, the
/// differences from that one. Nothing for less than two curves.
void AddComparison(CalculationData& data, const Comparison& comparison, const Words& words);

}  // namespace velmar::presentation
