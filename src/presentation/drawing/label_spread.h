#pragma once

#include <span>
#include <vector>

namespace velmar::presentation {

/// Centres for labels in a row, as near to the wanted ones as possible without overlap. Order is kept.
/// @param wanted ascending centres
/// @param sizes extent of each label along the row
/// @param from, to the row; the labels stay within it when their sizes fit, else they begin at `from`
std::vector<double> SpreadLabels(std::span<const double> wanted, std::span<const double> sizes, double from,
                                 double to);

}  // namespace velmar::presentation
