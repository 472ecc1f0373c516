#pragma once

#include "elements/layers.h"
#include "storage/project/family_parts.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

/// One layer of a cavity, behind its label.
void WriteCavityLayer(LineWriter& out, const elements::LayerRow<elements::FibrousMaterial>& row);
void ReadCavityLayer(PartInput& in, elements::LayerRow<elements::FibrousMaterial>& row);

/// The layers of a cavity of "materiale generico": the count less one, then for each layer: label; blank;
/// name; description; s; number of sheets (integer); density; porous (boolean); E, loss factor and Poisson's
/// ratio when it is false, Rs when it is true; blank. A typed count above the seven rows there are is written
/// as 7.
void WriteCavityLayers(LineWriter& out, const elements::CavityLayers& layers);
void ReadCavityLayers(PartInput& in, elements::CavityLayers& layers);

/// A fibre of a SEA cavity, 7 lines: name; description; s; density; E; loss factor; Poisson's ratio. What the
/// lines do not tell (absorption, flow resistance, porous) is the material table's, or unknown.
void WriteSeaFibre(LineWriter& out, const elements::LayerRow<elements::FibrousMaterial>& row);
void ReadSeaFibre(PartInput& in, elements::LayerRow<elements::FibrousMaterial>& row);

}  // namespace velmar::storage
