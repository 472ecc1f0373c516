#pragma once

#include <cmath>
#include <random>

#include "models/layered/layered_element.h"

namespace velmar::models {

inline SolidLayer Glass(double thickness_m) {
  return {thickness_m, 2500, 68e9, 0.23, 0.01, SolidKind::kGlass};
}
inline SolidLayer Board(double thickness_m) {
  return {thickness_m, 850, 4.1e9, 0.3, 0.014, SolidKind::kPlasterboard};
}
inline SolidLayer SteelSheet(double thickness_m) {
  return {thickness_m, 7800, 210e9, 0.3, 0.001, SolidKind::kMetal};
}
inline SolidLayer Concrete(double thickness_m) {
  return {thickness_m, 2300, 30e9, 0.2, 0.006, SolidKind::kMasonry};
}

inline CavityFill Air(double thickness_m) { return {FillKind::kAir, thickness_m, 0, 0}; }
inline CavityFill Wool(double thickness_m) { return {FillKind::kFibre, thickness_m, 14000, 40}; }

inline LayeredElement Pane(const LayeredLeaf& leaf) { return {1.23, 1.48, {leaf}, {}, 0, false}; }

/// 4-16-4 unit with air.
inline LayeredElement InsulatingUnit() {
  LayeredElement unit = Pane(LayeredPlate{{Glass(0.004)}});
  unit.leaves.push_back(LayeredPlate{{Glass(0.004)}});
  unit.cavities.push_back({{Air(0.016)}, CavityEdge::kGlazed, {}});
  return unit;
}

/// 12.5 mm boards on 75 mm steel studs at 600 mm, 60 mm of wool.
inline LayeredElement BoardsOnSteelStuds() {
  LayeredElement wall{3.6, 2.8, {LayeredPlate{{Board(0.0125)}}, LayeredPlate{{Board(0.0125)}}}, {}, 0, true};
  wall.cavities.push_back({{Wool(0.060), Air(0.015)},
                           CavityEdge::kFramed,
                           {{ConnectionKind::kLine, 1.0 / 0.6, kSteelStudCompliance}}});
  return wall;
}

inline const LayeredPrediction Predicted(const LayeredElement& element,
                                         const LayeredIntegration& integration = {}) {
  return std::get<LayeredPrediction>(PredictLayered(element, integration));
}

/// Random stacks from foil to masonry, losses down to those of bare metal.
class StackDice {
 public:
  explicit StackDice(unsigned long seed) : engine_(seed) {}

  double Uniform(double lowest, double highest) {
    return std::uniform_real_distribution<double>(lowest, highest)(engine_);
  }
  double Decades(double lowest, double highest) {
    return std::pow(10.0, Uniform(std::log10(lowest), std::log10(highest)));
  }
  int Whole(int lowest, int highest) { return std::uniform_int_distribution<int>(lowest, highest)(engine_); }

  SolidLayer RollSolid() {
    return {Decades(0.0005, 0.3), Decades(300, 8000), Decades(1e9, 2e11), Uniform(0, 0.4),
            Decades(1e-3, 0.1)};
  }

  LayeredLeaf RollLeaf() {
    switch (Whole(0, 5)) {
      case 0: {
        const SolidLayer pane = Glass(Decades(0.002, 0.012));
        return LaminatedPane{pane, Whole(0, 1) == 0 ? kStandardInterlayer : kAcousticInterlayer,
                             Glass(Decades(0.002, 0.012))};
      }
      case 1: {
        const SandwichCore core{Decades(0.02, 0.2), Decades(20, 150), Decades(1e6, 1e8), Decades(1e6, 1e8),
                                Decades(0.005, 0.1)};
        return SandwichPanel{SteelSheet(Decades(4e-4, 2e-3)), core, SteelSheet(Decades(4e-4, 2e-3))};
      }
      case 2: {
        SolidLayer sheet = SteelSheet(Decades(5e-4, 3e-3));
        sheet.kind = SolidKind::kOther;  // the bare metal's losses
        return LayeredPlate{{sheet}};
      }
      case 3:
        return LayeredPlate{{RollSolid(), RollSolid()},
                            Whole(0, 1) == 0 ? LeafJoint::kBonded : LeafJoint::kSlipping};
      default:
        return LayeredPlate{{RollSolid()}};
    }
  }

  LayeredElement RollStack(int leaves) {
    LayeredElement element{Decades(0.5, 8), Decades(0.5, 4), {}, {}, 0, false};
    for (int leaf = 0; leaf < leaves; ++leaf) {
      element.leaves.push_back(RollLeaf());
      if (leaf + 1 == leaves) break;
      LayeredCavity cavity{{Air(Decades(0.003, 0.4))}, CavityEdge::kFramed, {}};
      if (Whole(0, 1) == 0) cavity.edge = CavityEdge::kGlazed;
      if (Whole(0, 1) == 0) {
        cavity.fills.push_back({FillKind::kFibre, Decades(0.01, 0.1), Decades(1000, 5e4), Decades(10, 150)});
      }
      element.cavities.push_back(cavity);
    }
    return element;
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace velmar::models
