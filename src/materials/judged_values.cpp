#include "materials/judged_values.h"

#include <cmath>
#include <vector>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::materials {
namespace {

using elements::MaterialProperty;
using enum MaterialProperty;
using elements::Plausibility;
using elements::PropertyFinding;

/// "- density (kg/m³): -5 (from 0 to 12000)"
MessageLine LineOf(const PropertyFinding& finding, double lowest, double highest) {
  MessageLine line = {"- ", NameOf(finding.property), ": " + FormatShortest(finding.value) + " ("};
  if (std::isfinite(highest)) {
    line.insert(line.end(), {kUsualRangeFromRow, " " + FormatShortest(lowest) + " ", kUsualRangeToRow,
                             " " + FormatShortest(highest) + ")"});
  } else {
    line.insert(line.end(), {kUsualRangeAtLeastRow, " " + FormatShortest(lowest) + ")"});
  }
  return line;
}

}  // namespace

MessageRow NameOf(MaterialProperty property) {
  switch (property) {
    case kThickness:
      return kThicknessMissingRow;
    case kDensity:
      return kDensityMissingRow;
    case kSurfaceMass:
      return kSurfaceMassMissingRow;
    case kYoungsModulus:
      return kYoungsModulusMissingRow;
    case kCriticalFrequency:
      return kCriticalFrequencyNameRow;
    case kLossFactor:
      return kLossFactorMissingRow;
    case kPoissonsRatio:
      return kPoissonsRatioNameRow;
    case kFlowResistance:
      return kFlowResistanceMissingRow;
    case kDynamicStiffness:
      return kDynamicStiffnessNameRow;
    case kImpactImprovement:
      return kImpactImprovementNameRow;
    case kResonanceFrequency:
      return kResonanceNameRow;
    case kAbsorption:
      break;
  }
  return kAbsorptionNameRow;
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
