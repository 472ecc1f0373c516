#pragma once

#include <QString>
#include <string>

#include "elements/layer_groups.h"
#include "elements/material_record.h"

namespace velmar::shell {

/// What tells the material `name` of a list from others: density, thickness, and s' or the flow resistance
/// where it has one. Empty for a name that no table holds.
QString MaterialFacts(const elements::MaterialLookup& materials, elements::MaterialFamily family,
                      const std::string& name);

}  // namespace velmar::shell
