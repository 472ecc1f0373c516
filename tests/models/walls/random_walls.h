#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "models/walls/double_wall.h"
#include "models/walls/light_double_wall.h"
#include "models/walls/single_wall.h"

namespace velmar::models {

/// Set-ups rolled at random: what a consultant might build, or, wild, anything that fits into the fields.
class WallDice {
 public:
  WallDice(std::uint64_t seed, bool wild) : engine_(seed), wild_(wild) {}

  SingleWallInput RollSingle() { return {RollLayers(), RollDimensions()}; }

  DoubleWallInput RollDouble() {
    DoubleWallInput wall{RollLayers(), RollLayers(), RollDimensions(), Decades(0.002, 0.4), RollKind(), {}};
    for (int row = Whole(0, 7); row > 0; --row) {
      wall.cavity_layers.push_back({Whole(1, 3), Decades(1, 80), Whole(0, 1) == 1, Decades(0.01, 70),
                                    Decades(0.001, 0.5), Uniform(0, 0.45), Decades(10, 2500),
                                    Decades(10, 3000)});
    }
    return wall;
  }

  LightDoubleWallInput RollLight() {
    LightDoubleWallInput wall;
    wall.leaf1 = RollRows();
    wall.leaf2 = RollRows();
    wall.depth_m = Decades(0.01, 0.3);
    wall.stud_distance_m = Decades(0.1, 1.2);
    wall.dim_b_m = Decades(0.5, 6);
    wall.cavity_kind = RollKind();
    wall.form = static_cast<LightWallForm>(Whole(0, 4));
    return wall;
  }

 private:
  double Uniform(double lowest, double highest) {
    return std::uniform_real_distribution<double>(lowest, highest)(engine_);
  }
  int Whole(int lowest, int highest) { return std::uniform_int_distribution<int>(lowest, highest)(engine_); }
  /// Spread over decades; a wild roll is now and then zero, negative or far outside.
  double Decades(double lowest, double highest) {
    if (wild_) {
      const int kind = Whole(0, 19);
      if (kind == 0) return 0.0;
      if (kind == 1) return -std::pow(10.0, Uniform(std::log10(lowest), std::log10(highest)));
      if (kind == 2) return std::pow(10.0, Uniform(-12, 12));
    }
    return std::pow(10.0, Uniform(std::log10(lowest), std::log10(highest)));
  }
  PlateLayer RollLayer() {
    return {Whole(wild_ ? 0 : 1, 4), Decades(3, 300),     Decades(300, 2800),
            Decades(0.5, 80),        Decades(0.002, 0.1), wild_ ? Uniform(0, 1.05) : Uniform(0, 0.45)};
  }
  std::vector<PlateLayer> RollLayers() {
    std::vector<PlateLayer> layers;
    for (int row = Whole(wild_ ? 0 : 1, 10); row > 0; --row) layers.push_back(RollLayer());
    return layers;
  }
  LeafRows RollRows() {
    LeafRows leaf;
    leaf.count = static_cast<std::size_t>(Whole(wild_ ? 0 : 1, 3));
    // Rows beyond the count may hold what was chosen before.
    for (std::size_t row = 0; row < 3; ++row) {
      leaf.rows[row] = RollLayer();
      if (!wild_) leaf.rows[row].thickness_mm = Uniform(3, 40);
    }
    return leaf;
  }
  PlateDimensions RollDimensions() { return {Decades(0.5, 12), Decades(0.5, 6)}; }
  CavityKind RollKind() { return static_cast<CavityKind>(Whole(0, 2)); }

  std::mt19937_64 engine_;
  bool wild_;
};

}  // namespace velmar::models
