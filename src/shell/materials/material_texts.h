#pragma once

#include "elements/layer_groups.h"
#include "foundation/catalogue_rows.h"
#include "foundation/message.h"

namespace velmar::shell {

/// The title of `family`.
constexpr MessageRow TitleOf(elements::MaterialFamily family) {
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return kStructuralMaterialsRow;
    case elements::MaterialFamily::kFibrous:
      return kFibrousMaterialsRow;
    case elements::MaterialFamily::kResilient:
      return kResilientMaterialsRow;
  }
  return {};
}

}  // namespace velmar::shell
