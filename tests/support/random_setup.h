#pragma once

#include "elements/setup.h"
#include "tests/support/random_source.h"

namespace velmar::tests {

/// How far from a real construction a random set-up may go.
enum class Wildness {
  kPlausible,  ///< masonry, boards, glass, wool: every calculation comes to a result or a refusal
  kNasty,      ///< zeros, negatives, huge numbers, texts that are none, empty fields
  /// Any number and text, but only where the project file of the calculation holds one: the rest is as in a
  /// new set-up, so that reading the file must give the same set-up again.
  kAnyOfItsFile
};

/// A set-up of `calculation` with random layers, cavity, base element and components. The same seed gives the
/// same set-up on every machine.
elements::Setup RandomSetup(elements::Calculation calculation, Wildness wildness, RandomSource& random);

}  // namespace velmar::tests
