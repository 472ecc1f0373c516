#include "calculation/edits/cavity_rules.h"

#include <algorithm>

#include "calculation/edits/count_rules.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::calculation {
namespace {

constexpr const char* kFallbackDepth = "10";

double LayersThickness(const elements::CavityLayers& layers) {
  double sum_mm = 0.0;
  const int shown = std::min(layers.count, elements::CavityLayers::kCapacity);
  for (int i = 0; i < shown; ++i) {
    const auto& row = layers.rows.at(static_cast<std::size_t>(i));
    sum_mm += row.multiplicity * row.slot.thickness_mm;
  }
  return sum_mm;
}

bool IsBelow(const std::string& text, double value) {
  const std::optional<double> number = ParseDecimal(text);
  return number && *number < value;
}

void RaiseDepthToFibre(elements::Cavity& cavity) {
  const std::optional<double> fibre_mm = ParseDecimal(cavity.fibre_text);
  if (fibre_mm && IsBelow(cavity.depth_text, *fibre_mm)) cavity.depth_text = cavity.fibre_text;
}

}  // namespace

double CavityContentThickness(const elements::SeaCavity& cavity) {
  double sum_mm = 0.0;
  for (std::size_t k = 0; k < static_cast<std::size_t>(MassCount(cavity.type)); ++k) {
    sum_mm += cavity.masses.at(k).slot.thickness_mm;
    if (cavity.mass_damping.at(k).ticked) sum_mm += cavity.mass_damping.at(k).row.slot.thickness_mm;
  }
  for (std::size_t j = 0; j < static_cast<std::size_t>(FibreCount(cavity.type)); ++j) {
    sum_mm += cavity.fibres.at(j).slot.thickness_mm;
  }
  return sum_mm;
}

void LeaveSeaCavityDepth(elements::Setup& setup) {
  std::string& depth = setup.sea_cavity.depth_text;
  const double content_mm = CavityContentThickness(setup.sea_cavity);
  if (!ParseDecimal(depth) || IsBelow(depth, content_mm)) depth = FormatShortest(RoundToEven(content_mm));
}

void RaiseSeaCavityDepth(elements::Setup& setup) {
  std::string& depth = setup.sea_cavity.depth_text;
  const double content_mm = CavityContentThickness(setup.sea_cavity);
  if (content_mm > 0.0 && (!ParseDecimal(depth) || IsBelow(depth, content_mm)))
    depth = FormatShortest(content_mm);
}

std::optional<Message> LeaveCavityDepth(elements::Setup& setup) {
  elements::Cavity& cavity = setup.cavity;
  std::optional<Message> told;
  if (!(ParseDecimal(cavity.depth_text).value_or(0.0) > 0.0)) {
    told = Message{{kCavityDepthSetRow}};
    cavity.depth_text = kFallbackDepth;
  }
  if (FibreThicknessEnabled(setup)) {
    LeaveFibreThickness(setup);
    RaiseDepthToFibre(cavity);
  }
  RaiseCavityDepthToLayers(setup);
  if (told && cavity.depth_text != kFallbackDepth)
    told = Message{{kContentDepthRow, " " + cavity.depth_text + " mm."}};
  return told;
}

void EnterFibreThickness(elements::Setup& setup, const std::string& text) {
  setup.cavity.fibre_text = text;
  RaiseDepthToFibre(setup.cavity);
}

void LeaveFibreThickness(elements::Setup& setup) {
  if (setup.cavity.fibre_text.empty()) setup.cavity.fibre_text = "0";
}

void EnterCavityLayerThickness(elements::Setup& setup, int index, const std::string& text) {
  if (text.empty() || text == "," || text == ".") return;
  EnterThickness(setup.cavity.layers.rows.at(static_cast<std::size_t>(index)), text);
  RaiseCavityDepthToLayers(setup);
}

void ChooseCavityKind(elements::Setup& setup, elements::CavityKind kind) {
  if (setup.cavity.kind == kind) return;
  setup.cavity.kind = kind;
  if (kind == elements::CavityKind::kGenericMaterial) {
    RaiseCavityDepthToLayers(setup);
  } else {
    setup.cavity.fibre_text = "0";
  }
}

bool RaiseCavityDepthToLayers(elements::Setup& setup) {
  elements::Cavity& cavity = setup.cavity;
  if (cavity.kind != elements::CavityKind::kGenericMaterial) return false;
  const double layers_mm = LayersThickness(cavity.layers);
  if (!IsBelow(cavity.depth_text, layers_mm)) return false;
  cavity.depth_text = FormatShortest(layers_mm);
  return true;
}

bool FibreThicknessEnabled(const elements::Setup& setup) {
  return setup.cavity.kind == elements::CavityKind::kFibrous && setup.calculation &&
         RowOf(*setup.calculation).Reads(elements::Field::kFibreThickness);
}

}  // namespace velmar::calculation
