#pragma once

#include <optional>

#include "foundation/catalogue_rows.h"
#include "foundation/message.h"
#include "models/sea/lining.h"

namespace velmar::models {

/// Why a lining has no cavity: the one box that is shown before all other checks, when neither the depth nor
/// any content is given.
/// @param depth_mm what RaisedCavityDepth() came to
/// @return no line when there is a depth
Message CheckLiningDepth(std::optional<double> depth_mm);

/// Everything that keeps a lining from being calculated, in one box: kCheckCavityRow and a colon, then a line
/// for each reason in the order of the checks.
/// @return no line when there is none
Message CheckLining(const LiningInput& input);

}  // namespace velmar::models
