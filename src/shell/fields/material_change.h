#pragma once

#include <string>

#include "elements/layer_groups.h"

namespace velmar::shell {

/// What the editor of a material has stored: the windows that show materials follow it.
struct MaterialChange {
  elements::MaterialFamily family{};
  std::string old_name{};  ///< the name before; empty: the row is new
  std::string name{};
  std::string keyword{};
};

}  // namespace velmar::shell
