#include "presentation/texts/structure.h"

#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/calculation_labels.h"

namespace velmar::presentation {
namespace {

using elements::Layer;
using elements::Part;

std::string Millimetres(double thickness_mm) { return FormatShortest(thickness_mm) + "mm"; }

StructureLine LineOf(const elements::Setup& setup, const Layer& layer, const Words& words) {
  std::string amount = Millimetres(layer.thickness_mm);
  if (layer.sheets > 1) amount += " X " + std::to_string(layer.sheets);
  return {layer.number, LayerName(setup, layer, words), std::move(amount)};
}

StructureBlock BlockOf(const elements::Setup& setup, const Part& part, const elements::CalculationRow& row,
                       const Words& words) {
  StructureBlock block;
  if (part.depth_mm) {
    block.lines.push_back({0, words(kAirGapRow) + " " + Millimetres(*part.depth_mm), {}});
    const bool own = row.Reads(elements::Field::kFibreThickness);
    if (part.fibre_mm)
      block.lines.push_back(
          {part.fibre_number, words(kFibrousCavityRow), own ? Millimetres(*part.fibre_mm) : std::string()});
  } else {
    block.mass = MassText(part.MassKgM2());
    if (part.leaf > 0 || row.stacks.size() > 1) block.heading = PartName(row.calculation, part, words);
  }
  for (const Layer& layer : part.layers) block.lines.push_back(LineOf(setup, layer, words));
  if (part.stratum >= 0) {
    const std::string connection = ConnectionText(setup.multilayer, part.stratum, words);
    if (!connection.empty()) block.lines.push_back({0, connection, {}});
  }
  return block;
}

}  // namespace

std::vector<StructureBlock> StructureOf(const elements::Setup& setup, const Words& words) {
  std::vector<StructureBlock> blocks;
  if (!setup.calculation) return blocks;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  if (row.stacks.Has(elements::Stack::kComponents)) return blocks;
  for (const Part& part : elements::PartsAsTheyStand(setup)) {
    const bool absent = part.stack == elements::Stack::kResilient && part.layers.empty();
    if (!absent) blocks.push_back(BlockOf(setup, part, row, words));
  }
  return blocks;
}

double LiningMass(const elements::Setup& setup) {
  return elements::PartOf(setup, elements::Stack::kSeaLeaf2).MassKgM2();
}

std::string MassText(double mass_kg_m2) { return "m'= " + FormatFixed(mass_kg_m2, 1) + " kg/m²"; }

}  // namespace velmar::presentation
