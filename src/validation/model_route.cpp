#include "validation/model_route.h"

#include <cmath>
#include <optional>
#include <string>

#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/layered/layered_element.h"
#include "validation/footfall_prediction.h"
#include "validation/layered_input.h"
#include "validation/model_choice.h"
#include "validation/model_prediction.h"
#include "validation/monolithic_input.h"

namespace velmar::validation {
namespace {

constexpr double kMillimetresPerMetre = 1000.0;

std::string Millimetres(double metres) {
  return " " + FormatShortest(std::round(metres * kMillimetresPerMetre * 10.0) / 10.0) + " mm";
}

/// "1,2·10⁻⁶ m²/N"
std::string Compliance(double m2_per_n) {
  if (m2_per_n == 0.0) return " 0 m²/N";
  return " " + FormatShortest(std::round(m2_per_n * 1e9) / 1e3) + "·10⁻⁶ m²/N";
}

MessageLine LeafLine(std::size_t number, const models::LeafProperties& leaf) {
  return {kLeafInputRow, " " + std::to_string(number) + ": m' " + FormatFixed(leaf.mass_kg_m2, 1) +
                             " kg/m², fc " + FormatFixed(leaf.critical_frequency_hz, 0) + " Hz, η " +
                             FormatFixed(leaf.loss_factor, 3)};
}

MessageLine CavityLine(const models::LayeredCavity& cavity) {
  double depth_m = 0.0;
  for (const models::CavityFill& fill : cavity.fills) depth_m += fill.thickness_m;
  MessageLine line = {kCavityInputRow, Millimetres(depth_m) + ": "};
  for (std::size_t i = 0; i < cavity.fills.size(); ++i) {
    const models::CavityFill& fill = cavity.fills[i];
    const bool fibre = fill.kind == models::FillKind::kFibre;
    if (i > 0) line.emplace_back(std::string(", "));
    line.emplace_back(fibre ? kFibreInputRow : kAirInputRow);
    std::string words = Millimetres(fill.thickness_m);
    if (fibre) {
      words += " (" + FormatFixed(fill.flow_resistivity_pa_s_m2, 0) + " Pa·s/m², " +
               FormatFixed(fill.density_kg_m3, 0) + " kg/m³)";
    }
    line.emplace_back(words);
  }
  return line;
}

void AddConnections(const models::LayeredElement& element, Message& inputs) {
  bool connected = false;
  for (const models::LayeredCavity& cavity : element.cavities) {
    for (const models::Connection& connection : cavity.connections) {
      connected = true;
      inputs.push_back({kStudsInputRow, Millimetres(1.0 / connection.density) + ", ", kComplianceInputRow,
                        Compliance(connection.compliance)});
    }
  }
  if (!connected) inputs.push_back({kNoStudsInputRow});
  if (element.framed) inputs.push_back({kTracksInputRow});
}

Message LayeredInputs(const elements::Setup& setup) {
  Message inputs;
  const std::optional<models::LayeredElement> element = LayeredElementOf(setup);
  if (!element) return inputs;
  inputs.push_back({kSizeInputRow, " " + FormatShortest(element->width_m) + " × " +
                                       FormatShortest(element->height_m) + " m"});
  for (std::size_t i = 0; i < element->leaves.size(); ++i) {
    inputs.push_back(LeafLine(i + 1, models::FindLeafProperties(element->leaves[i])));
    if (i < element->cavities.size()) inputs.push_back(CavityLine(element->cavities[i]));
  }
  if (!element->cavities.empty()) AddConnections(*element, inputs);
  return inputs;
}

Message MonolithicInputs(const elements::Setup& setup) {
  const std::optional<models::MonolithicElement> element = MonolithicElementOf(setup);
  if (!element) return {};
  return {{kSizeInputRow,
           " " + FormatShortest(element->length1_m) + " × " + FormatShortest(element->length2_m) + " m"},
          {kLeafInputRow, Millimetres(element->thickness_m) + ", " + FormatFixed(element->density_kg_m3, 0) +
                              " kg/m³, cL " + FormatFixed(element->longitudinal_speed_m_s, 0) + " m/s, η " +
                              FormatFixed(element->internal_loss_factor, 3) + ", + " +
                              FormatFixed(element->coating_mass_kg_m2, 1) + " kg/m²"}};
}

Message FootfallInputs(const elements::Setup& setup) {
  try {
    const auto floor = FootfallOf(setup);
    if (!floor) return {};
    const models::FootfallPlate& plate = floor->plate;
    Message inputs = {{kPlateInputRow, ": m' " + FormatFixed(plate.mass_kg_m2, 1) + " kg/m², fc " +
                                           FormatFixed(plate.critical_frequency_hz, 0) + " Hz, η " +
                                           FormatFixed(plate.internal_loss_factor, 3)}};
    if (floor->improvement.topping == models::FloorTopping::kNone) {
      inputs.push_back({kNoToppingInputRow});
    } else {
      inputs.push_back({kToppingInputRow, ": f0 " + FormatFixed(floor->improvement.resonance_hz, 0) + " Hz"});
    }
    return inputs;
  } catch (const ArithmeticFailure&) {
    return {};  // a side that is no number: the model says nothing then either
  }
}

}  // namespace

ModelRoute RouteOf(std::string_view id, const elements::Setup& setup) {
  ModelRoute route;
  if (!setup.calculation) return route;
  std::string_view model = id;
  if (id == kLayeredModel) {
    route = {.model = {kLayeredNameRow},
             .source = {kLayeredSourceRow},
             .assumptions = {kLayeredAssumptionsRow},
             .limits = {kLayeredLimitsRow},
             .inputs = LayeredInputs(setup)};
  } else if (id == kMonolithicModel) {
    route = {.model = {kMonolithicNameRow},
             .source = {kMonolithicSourceRow},
             .assumptions = {kMonolithicAssumptionsRow},
             .limits = {kMonolithicLimitsRow},
             .inputs = MonolithicInputs(setup)};
  } else if (id == kFootfallModel) {
    route = {.model = {kFootfallNameRow},
             .source = {kFootfallSourceRow},
             .assumptions = {kFootfallAssumptionsRow},
             .limits = {kFootfallLimitsRow},
             .inputs = FootfallInputs(setup)};
  } else {
    const elements::Calculation calculation = elements::FindCalculation(id).value_or(*setup.calculation);
    const elements::CalculationRow& row = elements::RowOf(calculation);
    model = row.variant;
    MessageLine source = {kCalculationSourceRow, std::string(" ")};
    for (MessagePiece& piece : row.theory.Line()) source.push_back(std::move(piece));
    route = {.model = {std::string(row.variant)},
             .source = std::move(source),
             .assumptions = {kCalculationAssumptionsRow},
             .limits = {kCalculationLimitsRow}};
  }
  const auto rule = RuleFor(KindOf(setup));
  if (rule && rule->model == model) route.reason = {rule->reason};
  return route;
}

}  // namespace velmar::validation
