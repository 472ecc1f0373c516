#pragma once

#include <optional>

#include "presentation/texts/compared_curves.h"
#include "shell/structures/structure_sources.h"

namespace velmar::structures {

/// `test` of `branch` as a curve of a comparison: its thirds, or its octaves where it has none. Its numbers
/// are those that it states; what it does not state comes from its bands as long as that does not contradict
/// it. Nothing without any band.
std::optional<presentation::ComparedCurve> Compared(Branch branch, const MeasuredTest& test);

}  // namespace velmar::structures
