#pragma once

#include "elements/setup.h"

namespace velmar::storage {

/// Which damping layers of the SEA families are ticked.
enum class Damping { kEveryOther, kAll };

/// The set-up that the golden file of `calculation` holds. Materials are numbered in the order in which the
/// file has them, and their values follow from their number. Two layers a leaf, SEA cavities of two fibres
/// and two masses, two resilient layers (none in the DOPPIA floor), two facade components.
elements::Setup SampleSetup(elements::Calculation calculation, Damping damping = Damping::kEveryOther);

}  // namespace velmar::storage
