#pragma once

#include <optional>
#include <string>
#include <vector>

#include "elements/setup.h"

namespace velmar::elements {

/// What holds the leaves of a light double wall together, as the source of a measurement states it. A `Setup`
/// does not say this: its fields know a distance of supports, never what the supports are.
enum class Frame {
  kNone,               ///< masonry, glass, one leaf alone
  kWoodStuds,          ///< boards screwed to wooden studs
  kSteelStuds,         ///< boards screwed to light steel studs
  kResilientStuds,     ///< light steel studs that are made to yield ("acoustic" studs)
  kResilientChannels,  ///< boards on resilient channels, on one side at least
  kSeparate,           ///< staggered studs, or two frames
  kUnframed,           ///< no studs at all: the leaves stand by themselves
};

/// A value per frequency, of octave or one-third-octave bands.
struct BandValue {
  double frequency_hz = 0.0;  ///< nominal centre
  double level_db = 0.0;

  bool operator==(const BandValue&) const = default;
};

enum class BandWidth { kNone, kOctave, kThirdOctave };

/// What a set-up of a measured construction predicts.
enum class MeasuredQuantity {
  kReduction,             ///< R and Rw
  kReductionImprovement,  ///< the improvement of a rating by a lining
  kImpactLevel,           ///< Ln,w
  kImpactImprovement,     ///< the improvement of Ln,w by a floor covering
  kImpactLevelAndImprovement,
};

/// A measured construction as one of the calculations is given it.
struct MeasuredSetup {
  Setup setup{};        ///< with its calculation chosen
  std::string group{};  ///< kind of element: "brick and clay", "steel studs, direct", ...
  MeasuredQuantity quantity{};
  std::string note{};  ///< what had to be assumed; empty when the source says everything
};

/// A construction that somebody measured, with the numbers that were published. A number that the source does
/// not give is absent. Levels in dB.
struct MeasuredConstruction {
  std::string id{};
  std::string description{};
  Frame frame{};
  std::string source{};        ///< short name of the source: constructions of one source share their errors
  std::string source_title{};  ///< as a reader looks for it
  std::string source_place{};  ///< table and page there
  char quality =
      'C';  ///< A: one-third octaves of a laboratory, B: octaves of a handbook or study, C: ratings

  std::optional<double> rw{};
  std::optional<double> c{};
  std::optional<double> ctr{};
  std::optional<double> stc{};
  std::optional<double> rw_plus_c{};
  std::optional<double> rw_of_octaves{};  ///< Rw after ISO 717-1 out of the octave bands
  std::optional<double> delta_stc{};      ///< improvement by a lining
  std::optional<double> lnw{};
  std::optional<double> delta_lw{};

  BandWidth band_width = BandWidth::kNone;
  std::vector<BandValue> bands{};         ///< sound reduction index
  std::vector<BandValue> impact_bands{};  ///< impact sound level

  std::vector<MeasuredSetup> setups{};
};

/// A measured construction that no calculation describes.
struct UncoveredConstruction {
  std::string id{};
  std::string reason{};  ///< in Italian, as shown
};

/// All measurements that stand behind the statements on accuracy.
struct MeasuredData {
  std::vector<MeasuredConstruction> constructions{};
  std::vector<UncoveredConstruction> uncovered{};
};

}  // namespace velmar::elements
