#include "materials/judged_values.h"

#include <array>
#include <cmath>
#include <vector>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::materials {
namespace {

using elements::MaterialKind;
using elements::MaterialProperty;
using elements::Plausibility;
using elements::PropertyFinding;

/// A property: its name, and its box in the editors of structural, fibrous and resilient materials.
struct Named {
  MaterialProperty property{};
  MessageRow name{};
  std::array<const char*, 3> boxes{};
};

constexpr Named kProperties[] = {
    {MaterialProperty::kThickness, kThicknessMissingRow, {"Text3", "Text10", "Text6"}},
    {MaterialProperty::kDensity, kDensityMissingRow, {"Text4", "Text9", "Text7"}},
    {MaterialProperty::kSurfaceMass, kSurfaceMassMissingRow, {"Text5", "", ""}},
    {MaterialProperty::kYoungsModulus, kYoungsModulusMissingRow, {"Text6", "Text11", ""}},
    {MaterialProperty::kCriticalFrequency, kCriticalFrequencyNameRow, {"Text7", "", ""}},
    {MaterialProperty::kLossFactor, kLossFactorMissingRow, {"Text8", "Text12", ""}},
    {MaterialProperty::kPoissonsRatio, kPoissonsRatioNameRow, {"Text9", "Text13", ""}},
    {MaterialProperty::kFlowResistance, kFlowResistanceMissingRow, {"", "Text14", ""}},
    {MaterialProperty::kDynamicStiffness, kDynamicStiffnessNameRow, {"", "", "Text3"}},
    {MaterialProperty::kImpactImprovement, kImpactImprovementNameRow, {"", "", "Text4"}},
    {MaterialProperty::kResonanceFrequency, kResonanceNameRow, {"", "", "Text5"}},
    {MaterialProperty::kAbsorption, kAbsorptionNameRow, {"", "TextAlfa_0", ""}},
};

const Named& Of(MaterialProperty property) {
  for (const Named& named : kProperties) {
    if (named.property == property) return named;
  }
  return kProperties[0];
}

/// "- density (kg/m³): -5 (from 0 to 12000)"
MessageLine LineOf(const PropertyFinding& finding, double lowest, double highest) {
  MessageLine line = {"- ", Of(finding.property).name, ": " + FormatShortest(finding.value) + " ("};
  if (std::isfinite(highest)) {
    line.insert(line.end(), {kUsualRangeFromRow, " " + FormatShortest(lowest) + " ", kUsualRangeToRow,
                             " " + FormatShortest(highest) + ")"});
  } else {
    line.insert(line.end(), {kUsualRangeAtLeastRow, " " + FormatShortest(lowest) + ")"});
  }
  return line;
}

}  // namespace

std::string BoxOf(MaterialKind kind, MaterialProperty property) {
  return Of(property).boxes.at(static_cast<std::size_t>(kind));
}

std::optional<Message> ImpossibleValues(std::span<const PropertyFinding> findings) {
  Message message = {{kImpossibleValuesRow}};
  for (const PropertyFinding& finding : elements::Only(findings, Plausibility::kImpossible)) {
    const elements::PropertyRange& range = elements::RangeOf(finding.kind, finding.property);
    message.push_back(LineOf(finding, range.lowest_possible, range.highest_possible));
  }
  if (message.size() == 1) return std::nullopt;
  return message;
}

std::optional<Message> ImprobableValues(std::span<const PropertyFinding> findings) {
  Message message = {{kImprobableValuesRow}};
  for (const PropertyFinding& finding : elements::Only(findings, Plausibility::kImprobable)) {
    const elements::PropertyRange& range = elements::RangeOf(finding.kind, finding.property);
    message.push_back(LineOf(finding, range.lowest_usual, range.highest_usual));
  }
  if (message.size() == 1) return std::nullopt;
  return message;
}

}  // namespace velmar::materials
