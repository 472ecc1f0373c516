#include "storage/validation/layer_texts.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

constexpr double kMetresPerMillimetre = 0.001;

std::runtime_error Unreadable(const std::string& text) {
  return std::runtime_error("\"" + text + "\" describes no layer");
}

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = std::min(text.find(separator, begin), text.size());
    parts.push_back(text.substr(begin, end - begin));
    begin = end + separator.size();
  }
  return parts;
}

double Number(const std::string& text) {
  const std::optional<double> number = ParseDecimal(text);
  if (!number) throw Unreadable(text);
  return *number;
}

/// One layer as it stands in the text.
struct LayerText {
  int multiplicity = 1;
  double thickness_mm = 0.0;
  std::string name{};
  std::vector<double> properties{};
};

/// @param property_count how many numbers stand in brackets behind the name; 0 for no brackets
LayerText ReadLayer(std::string text, std::size_t property_count) {
  const std::string whole = text;
  LayerText layer;
  if (const std::size_t times = text.find(" x "); times < text.find(' ') + 1) {
    layer.multiplicity = static_cast<int>(std::lround(Number(text.substr(0, times))));
    text.erase(0, times + 3);
  }
  const std::size_t name = text.find(' ');
  const std::size_t bracket = property_count == 0 ? text.size() : text.rfind(" (");
  if (name == std::string::npos || bracket == std::string::npos || bracket <= name) throw Unreadable(whole);
  layer.thickness_mm = Number(text.substr(0, name));
  layer.name = text.substr(name + 1, bracket - name - 1);
  if (property_count > 0) {
    if (text.back() != ')') throw Unreadable(whole);
    for (const std::string& number : Split(text.substr(bracket + 2, text.size() - bracket - 3), " ")) {
      layer.properties.push_back(Number(number));
    }
  }
  if (layer.properties.size() != property_count || layer.multiplicity < 1) throw Unreadable(whole);
  return layer;
}

template <typename Material>
elements::LayerRow<Material> RowOf(const LayerText& layer) {
  elements::LayerRow<Material> row{.listed = layer.name,
                                   .thickness_text = FormatShortest(layer.thickness_mm),
                                   .multiplicity = layer.multiplicity};
  row.slot.name = layer.name;
  row.slot.thickness_mm = layer.thickness_mm;
  return row;
}

constexpr const char* kBetweenLayers = " + ";

}  // namespace

std::vector<elements::LayerRow<elements::StructuralMaterial>> ReadSheets(const std::string& text) {
  std::vector<elements::LayerRow<elements::StructuralMaterial>> rows;
  for (const std::string& part : Split(text, kBetweenLayers)) {
    const LayerText layer = ReadLayer(part, 4);
    auto& row = rows.emplace_back(RowOf<elements::StructuralMaterial>(layer));
    row.slot.density_kg_m3 = layer.properties[0];
    row.slot.youngs_modulus_gpa = layer.properties[1];
    row.slot.loss_factor = layer.properties[2];
    row.slot.poissons_ratio = layer.properties[3];
    row.slot.surface_mass_kg_m2 = layer.properties[0] * layer.thickness_mm * kMetresPerMillimetre;
  }
  return rows;
}

std::vector<elements::LayerRow<elements::ResilientMaterial>> ReadMats(const std::string& text) {
  std::vector<elements::LayerRow<elements::ResilientMaterial>> rows;
  for (const std::string& part : Split(text, kBetweenLayers)) {
    const LayerText layer = ReadLayer(part, 2);
    auto& row = rows.emplace_back(RowOf<elements::ResilientMaterial>(layer));
    row.slot.density_kg_m3 = layer.properties[0];
    row.slot.dynamic_stiffness_mn_m3 = layer.properties[1];
  }
  return rows;
}

std::vector<elements::LayerRow<elements::FibrousMaterial>> ReadFills(const std::string& text,
                                                                     const std::vector<FibreKind>& kinds) {
  std::vector<elements::LayerRow<elements::FibrousMaterial>> rows;
  for (const std::string& part : Split(text, kBetweenLayers)) {
    const LayerText layer = ReadLayer(part, 0);
    const auto kind = std::ranges::find_if(
        kinds, [&](const FibreKind& known) { return known.material.name == layer.name; });
    if (kind == kinds.end()) throw Unreadable(part);
    auto& row = rows.emplace_back(RowOf<elements::FibrousMaterial>(layer));
    row.slot = kind->material;
    row.slot.thickness_mm = layer.thickness_mm;
    row.slot.flow_resistance_pa_s_m =
        kind->flow_resistivity_pa_s_m2 * layer.thickness_mm * kMetresPerMillimetre;
  }
  return rows;
}

}  // namespace velmar::storage
