#pragma once

#include <optional>

#include "acoustics/constructions.h"
#include "foundation/message.h"
#include "models/sea/cavity.h"
#include "models/sea/layers.h"
#include "models/sea/wall_outcome.h"

namespace velmar::models {

using acoustics::SeaConnectionKind;

/// The connection of a double wall.
struct SeaConnection {
  SeaConnectionKind kind = SeaConnectionKind::kMasonryTies;
  bool is_decoupled = false;      ///< masonry ties only: `CheckDesolidarizza`
  std::optional<double> count{};  ///< `Text8`, nothing when blank; not read for masonry ties
  std::size_t first_side_layer =
      1;  ///< 1 to 3: the layer of side 1 that it holds; of side 2 always the first
};

/// Two sides with a cavity between them.
struct DoubleSeaWallInput {
  SeaElementSize size{};  ///< length b is the length of the connection
  double total_thickness_mm = 0.0;
  SeaSide first_side{};
  SeaSide second_side{};
  SeaCavity cavity{};
  SeaConnection connection{};
};

/// The depth in mm that the cavity is calculated with: at least its contents. Nothing when both are missing.
/// @param depth_mm nothing when the field is blank
std::optional<double> RaisedCavityDepth(std::optional<double> depth_mm, double contents_mm);

/// Why the wall cannot be calculated, the first reason alone: a cavity of 1 mm or less, fills without
/// absorption (their names follow), a connection without a number.
/// @return no line when it can
Message CheckDoubleSeaWall(const DoubleSeaWallInput& input);

/// Sound reduction index of a double wall by energy balance at every Hz. The lighter side carries the
/// connection, side 2 when both weigh the same.
/// @throws ArithmeticFailure when a side has no layer or something has no balance
/// @throws std::invalid_argument when CheckDoubleSeaWall() has an objection
SeaWallOutcome CalculateDoubleSeaWall(const DoubleSeaWallInput& input);

}  // namespace velmar::models
