#pragma once

#include <random>

#include "models/sea/double_sea_wall.h"
#include "models/sea/lining.h"
#include "models/sea/single_sea_wall.h"

namespace velmar::models {

/// Constructions as they are built, and beyond: masonry, boards, metal, damping sheets, fibres.
class RandomElements {
 public:
  explicit RandomElements(unsigned seed) : random_(seed) {}

  double Real(double low, double high) { return std::uniform_real_distribution<>(low, high)(random_); }
  int Whole(int low, int high) { return std::uniform_int_distribution<>(low, high)(random_); }
  bool Happens(double share) { return Real(0.0, 1.0) < share; }

  SeaLayer Layer() {
    constexpr std::array<std::array<double, 6>, 4> kKinds = {{{6, 30, 600, 1200, 1.5, 5},
                                                              {60, 350, 600, 2400, 2, 30},
                                                              {0.6, 5, 2600, 7900, 60, 210},
                                                              {8, 60, 350, 900, 0.5, 14}}};
    const auto& kind = kKinds[static_cast<std::size_t>(Whole(0, 3))];
    SeaLayer layer{.thickness_mm = Real(kind[0], kind[1]),
                   .density_kg_m3 = Real(kind[2], kind[3]),
                   .youngs_modulus_gpa = Real(kind[4], kind[5]),
                   .loss_factor = Real(0.002, 0.05),
                   .poissons_ratio = Real(0.1, 0.45)};
    for (auto& sheet : layer.damping) {
      if (Happens(0.3)) sheet = Damping();
    }
    return layer;
  }

  SeaDampingSheet Damping() {
    return {.thickness_mm = Real(0.5, 8.0),
            .density_kg_m3 = Real(800, 3000),
            .youngs_modulus_gpa = Real(0.001, 1.0)};
  }

  SeaElementSize Size() { return {.length_a_m = Real(0.5, 12.0), .length_b_m = Real(0.5, 5.0)}; }

  /// At least one layer; empty slots anywhere unless the first must be filled.
  SeaSide Side(bool first_filled = false) {
    SeaSide side;
    for (auto& layer : side) {
      if (Happens(0.5)) layer = Layer();
    }
    auto& certain = side[first_filled ? 0 : static_cast<std::size_t>(Whole(0, 2))];
    if (!certain) certain = Layer();
    return side;
  }

  SeaFill Fill() {
    SeaFill fill{.name = "fibra", .thickness_mm = Real(20, 120), .density_kg_m3 = Real(10, 120)};
    for (double& band : fill.absorption) band = Real(0.0, 1.2);
    return fill;
  }

  SeaCavityMass Mass() {
    const SeaLayer layer = Layer();
    return {.thickness_mm = layer.thickness_mm,
            .density_kg_m3 = layer.density_kg_m3,
            .youngs_modulus_gpa = layer.youngs_modulus_gpa,
            .loss_factor = layer.loss_factor,
            .poissons_ratio = layer.poissons_ratio,
            .damping = layer.damping[0]};
  }

  SeaCavity Cavity() {
    SeaCavity cavity{.type = static_cast<SeaCavityType>(Whole(0, 6)), .depth_mm = Real(5, 400)};
    for (auto& fill : cavity.fills) {
      if (Happens(0.9)) fill = Fill();
    }
    for (auto& mass : cavity.masses) {
      if (Happens(0.9)) mass = Mass();
    }
    return cavity;
  }

  SingleSeaWallInput Single() {
    return {.size = Size(), .total_thickness_mm = Real(10, 500), .layers = Side()};
  }

  DoubleSeaWallInput Double() {
    DoubleSeaWallInput input{.size = Size(),
                             .total_thickness_mm = Real(10, 500),
                             .first_side = Side(true),
                             .second_side = Side(true),
                             .cavity = Cavity()};
    input.connection = {.kind = static_cast<SeaConnectionKind>(Whole(0, 2)),
                        .is_decoupled = Happens(0.5),
                        .count = static_cast<double>(Whole(0, 60))};
    if (input.first_side[1] && Happens(0.5)) input.connection.first_side_layer = 2;
    return input;
  }

  LiningInput Lining() {
    LiningInput input{.variant = static_cast<LiningVariant>(Whole(1, 2)),
                      .base_rw_db = static_cast<float>(Whole(30, 60)),
                      .base_mass_kg_m2 = static_cast<float>(Real(5, 500)),
                      .layers = Side(),
                      .cavity = Cavity(),
                      .support_distance = Real(0, 60)};
    if (Happens(0.3)) {
      input.variant = LiningVariant::kCeiling;
      input.hanger = Whole(0, 2);
    }
    for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
      if ((band >= acoustics::kFirstRatedBand && band <= acoustics::kLastRatedBand) || Happens(0.8)) {
        input.base_spectrum_db[band] = Real(10, 70);
      }
    }
    return input;
  }

 private:
  std::mt19937 random_;
};

}  // namespace velmar::models
