#pragma once

#include <random>

#include "elements/setup.h"

namespace velmar::tests {

/// How far from a real construction a random set-up may go.
enum class Wildness {
  kPlausible,  ///< masonry, boards, glass, wool: every calculation comes to a result or a refusal
  kNasty       ///< zeros, negatives, huge numbers, texts that are none, empty fields
};

/// A set-up of `calculation` with random layers, cavity, base element and components. The same seed gives the
/// same set-up on every machine.
elements::Setup RandomSetup(elements::Calculation calculation, Wildness wildness, std::mt19937_64& random);

}  // namespace velmar::tests
