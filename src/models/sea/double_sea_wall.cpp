#include "models/sea/double_sea_wall.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "models/sea/band_average.h"
#include "models/sea/bridges.h"
#include "models/sea/side.h"
#include "models/sea/wall_assembly.h"

namespace velmar::models {
namespace {

constexpr double kTieCount = 1.5;
constexpr double kDecoupledTieCount = 2.5;

long WholeCount(double count) {
  const double rounded = RoundToEven(count);
  if (!(std::abs(rounded) <= std::numeric_limits<int>::max())) {
    throw ArithmeticFailure(kNoConnectionBalanceRow, "more fixings than a number holds");
  }
  return static_cast<long>(rounded);
}

std::size_t ConnectedSlot(const SeaConnection& connection, const SeaSideBalance& side, bool is_second) {
  if (connection.kind == SeaConnectionKind::kMasonryTies) return side.heaviest_slot;
  const std::size_t layer = is_second ? 1 : connection.first_side_layer;
  if (layer < 1 || layer > kSeaLayerSlots || !(side.plates[layer - 1].surface_mass_kg_m2 > 0.0)) {
    throw ArithmeticFailure(kNoConnectedLayerRow, "the layer under the connection is missing");
  }
  return layer - 1;
}

HzSpectrum Coupling(const DoubleSeaWallInput& input, const SeaSideBalance& side, bool is_second) {
  const SeaConnection& connection = input.connection;
  const std::size_t slot = ConnectedSlot(connection, side, is_second);
  const SeaPlate& plate = side.plates[slot];
  if (connection.kind == SeaConnectionKind::kPoints) {
    return SeaPointBridgeCoupling({.surface_mass_kg_m2 = side.surface_mass_kg_m2,
                                   .thickness_m = side.thickness_m,
                                   .loss_factor = side.loss_factor_sum,
                                   .longitudinal_speed_m_s = plate.longitudinal_speed_m_s,
                                   .count = WholeCount(*connection.count)},
                                  plate.radiation_efficiency);
  }
  SeaLineBridge bridge{.surface_mass_kg_m2 = side.surface_mass_kg_m2,
                       .loss_factor = side.loss_factor_sum,
                       .critical_frequency_hz = plate.critical_frequency_hz,
                       .count = connection.count.value_or(0.0),
                       .length_m = input.size.length_b_m};
  if (connection.kind == SeaConnectionKind::kMasonryTies) {
    bridge.loss_factor = side.loss_factors[slot];
    bridge.count = connection.is_decoupled ? kDecoupledTieCount : kTieCount;
  }
  HzSpectrum coupling{};
  SeaLineBridgeCoupling(bridge, plate.radiation_efficiency, coupling);
  return coupling;
}

}  // namespace

std::optional<double> RaisedCavityDepth(std::optional<double> depth_mm, double contents_mm) {
  if (!(contents_mm > 0.0)) return depth_mm;
  return std::max(depth_mm.value_or(contents_mm), contents_mm);
}

Message CheckDoubleSeaWall(const DoubleSeaWallInput& input) {
  if (!IsCavityDeepEnough(input.cavity.depth_mm / 1000.0)) return {{kCheckCavityRow}};
  if (const auto names = FillsWithoutAbsorption(input.cavity); !names.empty()) {
    Message message{{kNoAbsorptionRow}};
    for (const std::string& name : names) message.push_back({name});
    return message;
  }
  if (!input.connection.count) {
    if (input.connection.kind == SeaConnectionKind::kPoints) return {{kNoPointCountRow}};
    if (input.connection.kind == SeaConnectionKind::kLines) return {{kNoLineCountRow}};
  }
  return {};
}

SeaWallOutcome CalculateDoubleSeaWall(const DoubleSeaWallInput& input) {
  if (!CheckDoubleSeaWall(input).empty()) throw std::invalid_argument("the wall has not passed its check");
  SeaSideBalance first;
  SeaSideBalance second;
  BalanceSide(input.first_side, input.size, first);
  BalanceSide(input.second_side, input.size, second);

  const bool second_is_coupled = first.surface_mass_kg_m2 >= second.surface_mass_kg_m2;
  SeaSideBalance& coupled = second_is_coupled ? second : first;
  const HzSpectrum coupling = Coupling(input, coupled, second_is_coupled);
  AddBridge(coupling, coupled.power_ratio);

  const SeaCavityPower cavity = CavityPower(input.cavity, input.size, coupling);
  const SeaMassPair masses{.first_kg_m2 = first.surface_mass_kg_m2,
                           .second_kg_m2 = second.surface_mass_kg_m2,
                           .distance_m = input.cavity.depth_mm / 1000.0};
  // The heavier side takes what the masses in the cavity hold back.
  AddExtraPower(cavity, second_is_coupled ? first.power_ratio : second.power_ratio);
  const HzSpectrum total = TotalPower(first.power_ratio, second.power_ratio, cavity, masses);
  return {
      .reduction_index_db = MeanLevelOfBands(total),
      .critical_frequency_hz = std::max(HighestCriticalFrequency(first), HighestCriticalFrequency(second)),
      .surface_mass_kg_m2 = masses.Total(),
      .loss_factor = MeanLossFactor(
          LossFactorTimesThickness(input.first_side) + LossFactorTimesThickness(input.second_side),
          input.total_thickness_mm)};
}

}  // namespace velmar::models
