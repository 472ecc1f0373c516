#pragma once

#include "elements/layers.h"
#include "storage/project/family_parts.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

/// The resilient layers of a floor: the count less one (-1 for none), then for each layer: label; blank;
/// name; description; s; number of sheets (text); density; s'; Delta Ln,w; f0; blank.
void WriteResilientLayers(LineWriter& out, const elements::ResilientLayers& layers);
/// "Niente" where a label or a name is due ends the list and means that the floor has no resilient layer.
void ReadResilientLayers(PartInput& in, elements::ResilientLayers& layers);

}  // namespace velmar::storage
