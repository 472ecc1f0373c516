#pragma once

#include <vector>

#include "presentation/reports/structure_rows.h"

namespace velmar::presentation {

/// The parts of a facade: the opaque part, then its components in their order, counted from 1.
std::vector<StructureRow> FacadeRowsOf(const elements::Setup& setup, const Words& words);

}  // namespace velmar::presentation
