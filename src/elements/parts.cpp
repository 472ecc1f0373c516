#include "elements/parts.h"

#include <algorithm>
#include <numeric>

#include "foundation/decimal.h"

namespace velmar::elements {
namespace {

double NumberIn(const std::string& text) { return ParseDecimal(text).value_or(0.0); }

template <typename Material>
Layer LayerOf(const LayerRow<Material>& row, LayerGroup group, int index) {
  return {.group = group,
          .row = index,
          .name = row.slot.name.empty() ? row.listed : row.slot.name,
          .description = row.slot.description,
          .thickness_mm = row.slot.thickness_mm,
          .sheets = row.multiplicity,
          .density_kg_m3 = row.slot.density_kg_m3,
          .mass_kg_m2 = MassOf(row)};
}

template <typename Material, std::size_t N>
std::vector<Layer> LayersOf(const Setup& setup, const LayerTable<Material, N>& table, LayerGroup group) {
  std::vector<Layer> layers;
  for (int i = 0; i < RowsInUse(setup, group); ++i)
    layers.push_back(LayerOf(table.rows.at(static_cast<std::size_t>(i)), group, i));
  return layers;
}

void AddDamping(std::vector<Layer>& layers, const DampingRow& damping, LayerGroup group, int index) {
  if (damping.ticked) layers.push_back(LayerOf(damping.row, group, index));
}

/// "Lato sx" stands before the layer it damps, "Lato dx" behind it.
std::vector<Layer> LayersOf(const Setup& setup, const SeaLeaf& leaf, LayerGroup group, LayerGroup damping) {
  std::vector<Layer> layers;
  for (int i = 0; i < RowsInUse(setup, group); ++i) {
    const auto row = static_cast<std::size_t>(i);
    AddDamping(layers, leaf.damping.at(2 * row), damping, 2 * i);
    layers.push_back(LayerOf(leaf.rows.at(row), group, i));
    AddDamping(layers, leaf.damping.at(2 * row + 1), damping, 2 * i + 1);
  }
  return layers;
}

std::vector<Layer> LayersOf(const SeaCavity& cavity) {
  std::vector<Layer> layers;
  int fibre = 0;
  int mass = 0;
  for (const acoustics::SeaCavityContent content : acoustics::ContentsOf(cavity.type)) {
    if (content == acoustics::SeaCavityContent::kFibre) {
      layers.push_back(
          LayerOf(cavity.fibres.at(static_cast<std::size_t>(fibre)), LayerGroup::kSeaCavityFibre, fibre));
      ++fibre;
      continue;
    }
    const auto row = static_cast<std::size_t>(mass);
    layers.push_back(LayerOf(cavity.masses.at(row), LayerGroup::kSeaCavityMass, mass));
    AddDamping(layers, cavity.mass_damping.at(row), LayerGroup::kSeaCavityDamping, mass);
    ++mass;
  }
  return layers;
}

Part CavityOf(const Setup& setup) {
  Part part{.stack = Stack::kCavity, .depth_mm = NumberIn(setup.cavity.depth_text)};
  if (setup.cavity.kind == CavityKind::kGenericMaterial)
    part.layers = LayersOf(setup, setup.cavity.layers, LayerGroup::kCavity);
  if (setup.cavity.kind == CavityKind::kFibrous) {
    const bool own = setup.calculation && RowOf(*setup.calculation).Reads(Field::kFibreThickness);
    part.fibre_mm = own ? NumberIn(setup.cavity.fibre_text) : part.depth_mm;
  }
  return part;
}

Part BaseOf(const Setup& setup) {
  const BaseElement& base = setup.base;
  const bool lining = setup.calculation && RowOf(*setup.calculation).Reads(Field::kBaseThickness);
  Layer layer{
      .name = base.name, .description = base.description, .mass_kg_m2 = static_cast<double>(base.mass_kg_m2)};
  if (lining) layer.thickness_mm = base.thickness_mm == 0.0 ? kDefaultBaseThicknessMm : base.thickness_mm;
  return {.stack = Stack::kBase, .layers = {std::move(layer)}};
}

Part ComponentsOf(const Facade& facade) {
  Part part{.stack = Stack::kComponents};
  for (int i = 0; i < facade.Count(); ++i) {
    const FacadeComponent& component = facade.components.at(static_cast<std::size_t>(i));
    part.layers.push_back({.row = i + 1,
                           .name = component.name,
                           .description = component.description,
                           .mass_kg_m2 = static_cast<double>(component.mass_kg_m2)});
  }
  return part;
}

/// Trade names, the same in every language.
constexpr const char* kInterlayerName = "PVB";
constexpr const char* kAcousticInterlayerName = "PVB acustico";
constexpr double kInterlayerDensity = 1070.0;

Layer SolidStratum(const Stratum& stratum, int index) {
  Layer layer = LayerOf(stratum.solid, LayerGroup::kStratumSolid, index);
  if (stratum.kind == StratumKind::kProfiledSheet) {
    layer.mass_kg_m2 *=
        DevelopedRatio(NumberIn(stratum.profile_height_text), NumberIn(stratum.profile_pitch_text));
  }
  return layer;
}

Layer Interlayer(const Stratum& stratum, int index) {
  const double thickness_mm = NumberIn(stratum.thickness_text);
  return {.group = LayerGroup::kStratumSolid,
          .row = index,
          .name = stratum.kind == StratumKind::kInterlayer ? kInterlayerName : kAcousticInterlayerName,
          .thickness_mm = thickness_mm,
          .density_kg_m3 = kInterlayerDensity,
          .mass_kg_m2 = kInterlayerDensity * thickness_mm / 1000.0};
}

Layer StratumLayer(const Stratum& stratum, int index) {
  Layer layer = TakesSolid(stratum.kind) ? SolidStratum(stratum, index)
                : stratum.kind == StratumKind::kFibre
                    ? LayerOf(stratum.fibre, LayerGroup::kStratumFibre, index)
                    : Interlayer(stratum, index);
  layer.stratum = stratum.kind;
  return layer;
}

Part CavityPart(const Stratum& stratum, int index) {
  Part part{.stack = Stack::kCavity, .stratum = index};
  if (stratum.kind == StratumKind::kAir) {
    part.depth_mm = NumberIn(stratum.thickness_text);
    return part;
  }
  part.layers = {StratumLayer(stratum, index)};
  part.depth_mm = part.ThicknessMm();
  return part;
}

}  // namespace

bool Layer::IsDamping() const {
  return group == LayerGroup::kSeaDamping1 || group == LayerGroup::kSeaDamping2 ||
         group == LayerGroup::kSeaCavityDamping;
}

double Part::MassKgM2() const {
  return std::accumulate(layers.begin(), layers.end(), 0.0,
                         [](double sum, const Layer& layer) { return sum + layer.mass_kg_m2; });
}

double Part::ThicknessMm() const {
  return std::accumulate(layers.begin(), layers.end(), 0.0,
                         [](double sum, const Layer& layer) { return sum + layer.ThicknessOfSheets(); });
}

std::vector<Part> PartsOfList(const Multilayer& list) {
  std::vector<Part> parts;
  int leaf = 0;
  for (int i = 0; i < list.Count(); ++i) {
    const Stratum& stratum = list.strata.at(static_cast<std::size_t>(i));
    if (IsBetweenLeaves(stratum.kind)) {
      parts.push_back(CavityPart(stratum, i));
      continue;
    }
    if (parts.empty() || parts.back().depth_mm)
      parts.push_back({.stack = Stack::kMultilayer, .leaf = ++leaf});
    parts.back().layers.push_back(StratumLayer(stratum, i));
  }
  return parts;
}

Part PartOf(const Setup& setup, Stack stack) {
  switch (stack) {
    case Stack::kLeaf1:
      return {.stack = stack, .layers = LayersOf(setup, setup.leaf1, LayerGroup::kLeaf1)};
    case Stack::kLeaf2:
      return {.stack = stack, .layers = LayersOf(setup, setup.leaf2, LayerGroup::kLeaf2)};
    case Stack::kResilient:
      return {.stack = stack, .layers = LayersOf(setup, setup.resilient, LayerGroup::kResilient)};
    case Stack::kSeaLeaf1:
      return {.stack = stack,
              .layers = LayersOf(setup, setup.sea_leaf1, LayerGroup::kSeaLeaf1, LayerGroup::kSeaDamping1)};
    case Stack::kSeaLeaf2:
      return {.stack = stack,
              .layers = LayersOf(setup, setup.sea_leaf2, LayerGroup::kSeaLeaf2, LayerGroup::kSeaDamping2)};
    case Stack::kSeaCavity:
      return {.stack = stack,
              .layers = LayersOf(setup.sea_cavity),
              .depth_mm = NumberIn(setup.sea_cavity.depth_text)};
    case Stack::kCavity:
      return CavityOf(setup);
    case Stack::kBase:
      return BaseOf(setup);
    case Stack::kComponents:
      return ComponentsOf(setup.facade);
    case Stack::kMultilayer: {
      Part all{.stack = stack};
      for (const Part& part : PartsOfList(setup.multilayer)) {
        all.layers.insert(all.layers.end(), part.layers.begin(), part.layers.end());
      }
      return all;
    }
  }
  return {};
}

std::vector<Part> PartsOf(const Setup& setup) {
  std::vector<Part> parts;
  if (!setup.calculation) return parts;
  int number = 0;
  for (const Stack stack : RowOf(*setup.calculation).stacks) {
    if (stack == Stack::kMultilayer) {
      parts = PartsOfList(setup.multilayer);
    } else {
      parts.push_back(PartOf(setup, stack));
    }
  }
  for (Part& part : parts) {
    if (part.fibre_mm) part.fibre_number = ++number;
    for (Layer& layer : part.layers) layer.number = ++number;
  }
  return parts;
}

int NumberOf(const Setup& setup, LayerGroup group, int row) {
  for (const Part& part : PartsOf(setup)) {
    for (const Layer& layer : part.layers) {
      if (layer.group == group && layer.row == row) return layer.number;
    }
  }
  return 0;
}

int FibreNumberOf(const Setup& setup) {
  for (const Part& part : PartsOf(setup)) {
    if (part.fibre_mm) return part.fibre_number;
  }
  return 0;
}

std::vector<Part> PartsAsTheyStand(const Setup& setup) {
  std::vector<Part> parts = PartsOf(setup);
  if (!setup.calculation || !IsFinishedOnTop(RowOf(*setup.calculation).orientation)) return parts;
  std::ranges::reverse(parts);
  for (Part& part : parts) std::ranges::reverse(part.layers);
  return parts;
}

}  // namespace velmar::elements
