#pragma once

#include "models/layered/leaf.h"
#include "models/plates/loss_factor.h"

namespace velmar::models {

enum class ConnectionKind {
  kLine,   ///< studs, battens, rails: two plates held along lines
  kPoint,  ///< ties, hangers, clips without a rail
};

/// What joins the leaves on both sides of a cavity.
struct Connection {
  ConnectionKind kind = ConnectionKind::kLine;
  double density = 0.0;     ///< metres of line, or points, per m² of the element; above 0
  double compliance = 0.0;  ///< C, 0 and above: m²/N for lines, m/N for points
};

/// Compliances of lines, m²/N: solid wood; light steel C-studs (Davy 2010); resilient channels, acoustic
/// studs and clips (found on measured walls, which leave it open between half of it and itself).
inline constexpr double kWoodStudCompliance = 0.0;
inline constexpr double kSteelStudCompliance = 1e-6;
inline constexpr double kResilientCompliance = 3e-6;

/// The share of an ideal rigid line that head and floor of a framed wall transmit: found on all measured
/// framed walls together, which only hold it between 0.4 and 0.7.
inline constexpr double kTrackShare = 0.7;

/// The transmission coefficient of one connection between two leaves, mean of both directions.
///
/// The driven leaf moves as the mass law says, the force of the line or point works against the mobilities of
/// both leaves and its own compliance, the other leaf radiates its near field (below its critical frequency)
/// and its free bending waves (Cremer and Heckl; Davy 1991, 2010 for the compliance). The pressure that
/// drives is twice the mean square of the room: a diffuse field before a rigid wall. The free waves of the
/// driven leaf are left out.
/// @param dimensions of the element, both above 0
double ConnectionTransmission(const Connection& connection, const LeafProperties& first,
                              const LeafProperties& second, double frequency_hz,
                              const PlateDimensions& dimensions);

}  // namespace velmar::models
