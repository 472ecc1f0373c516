#pragma once

#include "elements/material_record.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// What the commands are given of the data folder.
struct Services {
  presentation::Words words{};
  elements::MaterialLookup materials{};
};

}  // namespace velmar::cli
