#include "materials/coupled_boxes.h"

#include <cmath>

#include "acoustics/logarithm.h"
#include "foundation/decimal.h"

namespace velmar::materials {
namespace {

constexpr double kMmPerM = 1000.0;

std::optional<double> Magnitude(const std::string& text) {
  const std::optional<double> number = ParseDecimal(text);
  if (!number) return std::nullopt;
  return std::abs(*number);
}

/// Writes a result into a box, unless it is none.
void Fill(std::string& box, double value, int decimals) {
  if (std::isfinite(value)) box = FormatFixed(value, decimals);
}

constexpr int kMassDecimals = 2;

constexpr double kScreedMass = 100.0;  // kg/m²

double Resonance(double stiffness) { return 160.0 * std::sqrt(stiffness / kScreedMass); }

double Improvement(double stiffness) {
  return stiffness > 0.0 ? 18.3 - 15.0 * acoustics::Log10(stiffness / kScreedMass) : HUGE_VAL;
}

void FillStiffness(ResilientBoxes& boxes, double stiffness) {
  Fill(boxes.dynamic_stiffness_mn_m3, stiffness, 0);
}
void FillImprovement(ResilientBoxes& boxes, double stiffness) {
  Fill(boxes.impact_improvement_db, Improvement(stiffness), 1);
}
void FillResonance(ResilientBoxes& boxes, double stiffness) {
  Fill(boxes.resonance_frequency_hz, Resonance(stiffness), 1);
}

}  // namespace

MassBoxes CoupleMass(MassBoxes boxes, MassBox left) {
  const std::optional<double> thickness = Magnitude(boxes.thickness_mm);
  const std::optional<double> density = Magnitude(boxes.density_kg_m3);
  const std::optional<double> mass = Magnitude(boxes.surface_mass_kg_m2);
  const auto fill_density = [&] { Fill(boxes.density_kg_m3, *mass / (*thickness / kMmPerM), kMassDecimals); };
  const auto fill_thickness = [&] { Fill(boxes.thickness_mm, *mass / (*density / kMmPerM), kMassDecimals); };
  const auto fill_mass = [&] {
    Fill(boxes.surface_mass_kg_m2, *density * *thickness / kMmPerM, kMassDecimals);
  };
  // An empty box asks for its value, a text that is no number does not.
  const bool no_thickness = boxes.thickness_mm.empty();
  const bool no_density = boxes.density_kg_m3.empty();

  if (left == MassBox::kThickness && thickness) {
    if (density) fill_mass();
    if (no_density && mass) fill_density();
  } else if (left == MassBox::kDensity && density) {
    if (thickness) fill_mass();
    if (no_thickness && mass) fill_thickness();
  } else if (left == MassBox::kSurfaceMass && mass) {
    if (density) fill_thickness();
    if (no_density && thickness) fill_density();
  }
  return boxes;
}

ResilientBoxes CoupleResilient(ResilientBoxes boxes, ResilientBox left) {
  const auto value_of = [](const std::string& text) {
    const std::optional<double> number = ParseDecimal(text);
    return number && *number >= 0.0 ? number : std::nullopt;
  };
  if (left == ResilientBox::kStiffness) {
    if (const auto stiffness = value_of(boxes.dynamic_stiffness_mn_m3)) {
      FillResonance(boxes, *stiffness);
      FillImprovement(boxes, *stiffness);
    }
  } else if (left == ResilientBox::kImprovement) {
    if (const auto improvement = value_of(boxes.impact_improvement_db)) {
      const double stiffness = kScreedMass * std::pow(10.0, -(*improvement - 18.3) / 15.0);
      FillStiffness(boxes, stiffness);
      FillResonance(boxes, stiffness);
    }
  } else if (const auto resonance = value_of(boxes.resonance_frequency_hz)) {
    const double stiffness = kScreedMass * (*resonance / 160.0) * (*resonance / 160.0);
    FillStiffness(boxes, stiffness);
    FillImprovement(boxes, stiffness);
  }
  return boxes;
}

std::string StandardImprovement(const std::string& dynamic_stiffness_mn_m3) {
  const std::optional<double> stiffness = ParseDecimal(dynamic_stiffness_mn_m3);
  if (!stiffness || !(*stiffness > 0.0)) return {};
  return FormatFixed(13.0 * std::log10(kScreedMass) - 14.2 * std::log10(*stiffness) + 20.8, 1);
}

}  // namespace velmar::materials
