#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "calculation/open_calculation.h"
#include "presentation/drawing/section.h"
#include "shell/pages/material_lists.h"
#include "shell/pages/window_services.h"

namespace velmar::shell {

/// What an input page is given. A page shows the set-up and reports edits to the open calculation; it knows
/// neither its window nor the other pages.
struct PageContext {
  calculation::OpenCalculation& open;
  const WindowServices& services;
  MaterialLists& materials;
  /// Told which layer row is under the mouse, nothing when none is.
  std::function<void(const std::optional<presentation::LayerPlace>&)> on_hover{};

  /// Told which layer is under the mouse in the section drawing; layer rows listen.
  std::vector<std::function<void(const std::optional<presentation::LayerPlace>&)>> on_section_hover{};

  const presentation::Words& Words() const { return services.words; }
};

}  // namespace velmar::shell
