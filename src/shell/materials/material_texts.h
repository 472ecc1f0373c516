#pragma once

#include "elements/layer_groups.h"
#include "foundation/message.h"

namespace velmar::shell {

// Texts that the windows here share.
inline constexpr MessageRow kListCaptionRow{322};
inline constexpr MessageRow kSearchRow{1600};
inline constexpr MessageRow kTreeSearchRow{1616};
inline constexpr MessageRow kMaterialGoneRow{1601};  ///< another program deleted it

/// The title of `family`.
constexpr MessageRow TitleOf(elements::MaterialFamily family) {
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return {132};
    case elements::MaterialFamily::kFibrous:
      return {133};
    case elements::MaterialFamily::kResilient:
      return {134};
  }
  return {};
}

}  // namespace velmar::shell
