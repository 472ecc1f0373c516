#pragma once

#include <string>

#include "elements/layers.h"
#include "storage/project/family_parts.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

/// How a count line counts.
enum class CountLine {
  kLessOne,  ///< SEA SINGOLO
  kItself    ///< SEA and the linings
};

/// The layers of one side: the count, then for each layer: label; the layer (10 lines); and twice, for its
/// left and right damping layer: "check" or "uncheck", and behind "check" the damping layer (10 lines).
void WriteSeaLeaf(LineWriter& out, const elements::SeaLeaf& leaf, CountLine count_line);
/// Files of the older layouts have no check lines: every damping layer is there. One that stands all the same
/// is taken as what it is.
void ReadSeaLeaf(PartInput& in, elements::SeaLeaf& leaf, CountLine count_line);

/// A cavity's type (integer), then for its three positions: "Fibra_presente" or "Fibra_assente" and the
/// fibre, and for the first two of them: "Massa_presente" or "Massa_assente" and the mass; "Check" or
/// "Uncheck" and the damping layer of that position, also where there is no mass.
void WriteSeaCavityContents(LineWriter& out, const elements::SeaCavity& cavity);
void ReadSeaCavityContents(PartInput& in, elements::SeaCavity& cavity);

/// `TextSpessoreIntercSEA` as a single; empty, or no number, is written as 0.
void WriteSeaCavityDepth(LineWriter& out, const elements::SeaCavity& cavity);
void ReadSeaCavityDepth(PartInput& in, elements::SeaCavity& cavity);

/// The type of a cavity in today's order: files of code 4 counted the empty cavity last (0 to 5 are 1 to 6
/// today, 6 is 0).
/// @param type 0 to 6
int MigraTipoIntercSEA(int version_code, int type);

}  // namespace velmar::storage
