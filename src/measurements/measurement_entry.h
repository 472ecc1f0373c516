#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "acoustics/bands.h"
#include "foundation/message.h"
#include "measurements/band_text.h"
#include "storage/library/measured_test.h"
#include "storage/library/rating_check.h"
#include "storage/tables/schema.h"

namespace velmar::measurements {

/// What the window of a measurement holds, as typed. Numbers have a decimal comma or point.
struct MeasurementEntry {
  std::string name{};
  std::string description{};
  std::string keyword{};
  std::string rating{};            ///< as the certificate prints it, dB; empty: that of the bands
  std::string adaptation{};        ///< C, or Ci
  std::string other_adaptation{};  ///< Ctr, or Ci 50-5000
  std::array<std::string, acoustics::kBandCount> thirds{};   ///< dB
  std::array<std::string, storage::kOctaveCount> octaves{};  ///< dB
  std::string area{};                                        ///< m²
  std::string mass{};                                        ///< kg/m²
  std::string thickness{};                                   ///< mm; in a building
  std::string source_volume{};                               ///< m³; in a building
  std::string receiving_volume{};                            ///< m³; in a building
  std::string site{};                                        ///< in a building
  std::string uncertainty{};                                 ///< dB
  std::string certificate{};
  std::string date{};
  std::string laboratory{};
  std::string client{};
  std::string notes{};
  std::string source{};
  std::string picture{};

  bool operator==(const MeasurementEntry&) const = default;
};

/// The fields of an entry that a refusal can be about.
enum class MeasurementField {
  kName,
  kRating,
  kAdaptation,
  kOtherAdaptation,
  kThird,
  kOctave,
  kArea,
  kMass,
  kThickness,
  kSourceVolume,
  kReceivingVolume,
  kUncertainty,
};

/// Why an entry is not stored, and the field that it is about.
struct MeasurementRefusal {
  Message message{};
  MeasurementField field = MeasurementField::kName;
  std::size_t band = 0;  ///< of kThird and kOctave
};

/// The test that `entry` stands for in `folder`. An empty printed rating becomes that of the bands, and the
/// origin of the rating says which it is.
///
/// Refused are: no name; a text where a number is due; a band outside -50 dB to 150 dB; an area, mass,
/// thickness, volume or uncertainty that is negative, or 0 for an area; a test with neither a rating nor
/// bands.
std::variant<storage::MeasuredTest, MeasurementRefusal> TestOf(const storage::LibraryFolder& folder,
                                                               const MeasurementEntry& entry);

/// The entry that shows `test`.
MeasurementEntry EntryOf(const storage::MeasuredTest& test);

/// `entry` with the bands of `text` in place of its own.
MeasurementEntry WithBands(MeasurementEntry entry, const BandText& text);

/// What the bands of `entry` give, beside the printed rating; fields that hold no number count as empty.
storage::RatingCheck CheckEntry(const storage::LibraryFolder& folder, const MeasurementEntry& entry);

}  // namespace velmar::measurements
