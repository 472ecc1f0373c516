#pragma once

#include <array>
#include <optional>

#include "acoustics/bands.h"
#include "storage/library/measured_test.h"
#include "storage/tables/schema.h"

namespace velmar::measurements {

/// The octave values of `test` over the third-octave bands, 50 Hz to 5000 Hz: the three thirds of an octave
/// have its value. To be drawn as steps; a band without an octave has none.
std::array<std::optional<double>, acoustics::kBandCount> OctaveSteps(const storage::MeasuredTest& test);

/// Third-octave values that follow from the octaves of `test` where it has no thirds: each third of an octave
/// takes the value of the octave. For R and Dn,e the energy mean over the thirds is the octave value again
/// (ISO 10140-4, 5: combining one-third octaves into octaves); how R falls or rises inside an octave is lost.
/// @return nothing when the octaves from 125 Hz to 4000 Hz are not all there (4000 Hz holds the third of
///         3150 Hz), when the test has thirds, and for impact levels, whose octave is a sum
std::optional<std::array<std::optional<double>, acoustics::kBandCount>> ThirdsFromOctaves(
    const storage::LibraryFolder& folder, const storage::MeasuredTest& test);

}  // namespace velmar::measurements
