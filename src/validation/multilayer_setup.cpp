#include "validation/multilayer_setup.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

#include "calculation/runs/run.h"
#include "foundation/decimal.h"
#include "validation/layered_input.h"
#include "validation/model_prediction.h"

namespace velmar::validation {
namespace {

using elements::CavityConnection;
using elements::Multilayer;
using elements::Setup;
using elements::Stratum;
using elements::StratumKind;

constexpr double kMillimetresPerMetre = 1e3;
constexpr double kCentimetresPerMetre = 1e2;
constexpr double kGigapascalPerPascal = 1e-9;

Stratum PlateOf(const models::SolidLayer& solid, StratumKind kind) {
  Stratum stratum{.kind = kind};
  elements::StructuralMaterial& slot = stratum.solid.slot;
  slot.thickness_mm = solid.thickness_m * kMillimetresPerMetre;
  slot.density_kg_m3 = solid.density_kg_m3;
  slot.youngs_modulus_gpa = solid.youngs_modulus_pa * kGigapascalPerPascal;
  slot.poissons_ratio = solid.poissons_ratio;
  slot.loss_factor = solid.loss_factor;
  return stratum;
}

Stratum FillOf(const models::CavityFill& fill) {
  Stratum stratum{.kind = fill.kind == models::FillKind::kFibre ? StratumKind::kFibre : StratumKind::kAir};
  stratum.thickness_text = FormatShortest(fill.thickness_m * kMillimetresPerMetre);
  stratum.fibre.slot = {.thickness_mm = fill.thickness_m * kMillimetresPerMetre,
                        .density_kg_m3 = fill.density_kg_m3,
                        .porous = true};
  stratum.flow_resistivity_pa_s_m2 = fill.flow_resistivity_pa_s_m2;
  return stratum;
}

/// Adds the rows of one leaf. Sandwich and profiled leaves do not come out of a set-up of another
/// calculation.
struct LeafRows {
  std::vector<Stratum>& rows;

  void operator()(const models::LayeredPlate& plate) const {
    const StratumKind further =
        plate.joint == models::LeafJoint::kBonded ? StratumKind::kBondedPlate : StratumKind::kPlate;
    for (const models::SolidLayer& layer : plate.layers) rows.push_back(PlateOf(layer, further));
  }
  void operator()(const models::LaminatedPane& pane) const {
    rows.push_back(PlateOf(pane.outer, StratumKind::kPlate));
    const bool acoustic = pane.interlayer.loss_tangent == models::kAcousticInterlayer.loss_tangent;
    Stratum sheet{.kind = acoustic ? StratumKind::kAcousticInterlayer : StratumKind::kInterlayer};
    sheet.thickness_text = FormatShortest(pane.interlayer.thickness_m * kMillimetresPerMetre);
    rows.push_back(std::move(sheet));
    rows.push_back(PlateOf(pane.inner, StratumKind::kPlate));
  }
  void operator()(const models::SandwichPanel&) const {}
  void operator()(const models::OrthotropicPlate&) const {}
};

CavityConnection ConnectionOf(const models::Connection& connection) {
  if (connection.kind == models::ConnectionKind::kPoint) return CavityConnection::kPoints;
  if (connection.compliance >= models::kResilientCompliance) return CavityConnection::kResilient;
  return connection.compliance > 0.0 ? CavityConnection::kSteelStuds : CavityConnection::kWoodStuds;
}

void AddCavity(const models::LayeredCavity& cavity, std::vector<Stratum>& rows) {
  const std::size_t first = rows.size();
  for (const models::CavityFill& fill : cavity.fills) rows.push_back(FillOf(fill));
  if (cavity.connections.empty() || first == rows.size()) return;
  const models::Connection& connection = cavity.connections.front();
  rows[first].connection = ConnectionOf(connection);
  const bool points = connection.kind == models::ConnectionKind::kPoint;
  rows[first].connection_text =
      FormatShortest(points ? connection.density : kCentimetresPerMetre / connection.density);
}

}  // namespace

std::optional<Setup> MultilayerSetupOf(const Setup& setup, elements::Frame frame) {
  const std::optional<models::LayeredElement> element = LayeredElementOf(setup, frame);
  if (!element) return std::nullopt;
  std::vector<Stratum> rows;
  for (std::size_t leaf = 0; leaf < element->leaves.size(); ++leaf) {
    std::visit(LeafRows{rows}, element->leaves[leaf]);
    if (leaf < element->cavities.size()) AddCavity(element->cavities[leaf], rows);
  }
  if (rows.empty() || rows.size() > static_cast<std::size_t>(Multilayer::kCapacity)) return std::nullopt;
  Setup listed;
  listed.calculation = elements::Calculation::kMultilayerGeneric;
  listed.width_text = setup.width_text;
  listed.height_text = setup.height_text;
  listed.multilayer.count = static_cast<int>(rows.size());
  listed.multilayer.framed = element->framed;
  std::ranges::move(rows, listed.multilayer.strata.begin());
  return listed;
}

std::optional<elements::MeasuredSetup> MultilayerSetupOf(const elements::MeasuredConstruction& construction) {
  std::optional<elements::MeasuredSetup> fullest = FullestSetup(construction);
  if (!fullest) return std::nullopt;
  std::optional<Setup> listed = MultilayerSetupOf(fullest->setup, construction.frame);
  if (!listed) return std::nullopt;
  fullest->setup = std::move(*listed);
  return fullest;
}

PredictionOutcome PredictWithMultilayer(const elements::MeasuredData& data) {
  PredictionOutcome outcome;
  const std::string model(elements::RowOf(elements::Calculation::kMultilayerGeneric).variant);
  for (const elements::MeasuredConstruction& construction : data.constructions) {
    const auto listed = MultilayerSetupOf(construction);
    if (!listed) continue;
    const calculation::RunOutcome run =
        calculation::RunCalculation(listed->setup, 0.0, [](const Message&) { return true; });
    if (!run.result || !run.result->spectrum) {
      outcome.refused.push_back({.id = construction.id, .reason = model});
      continue;
    }
    if (auto prediction = PredictionOf(construction, *listed, model, *run.result->spectrum))
      outcome.predictions.push_back(std::move(*prediction));
  }
  return outcome;
}

}  // namespace velmar::validation
