#include "presentation/texts/structure.h"

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/layer_rows.h"
#include "presentation/texts/sea_cavity_parts.h"

namespace velmar::presentation {
namespace {

using elements::Family;
using elements::LayerRow;
using elements::Orientation;
using elements::Setup;

template <typename Material>
double MassOf(const LayerRow<Material>& row) {
  return row.slot.density_kg_m3 * row.slot.thickness_mm * row.multiplicity / 1000.0;
}

std::string Millimetres(double thickness_mm) { return FormatShortest(thickness_mm) + "mm"; }

/// Lists rows under running numbers. A row without thickness is listed, but has no strip and so no number.
class Lister {
 public:
  explicit Lister(int first_number) : number_(first_number) {}

  template <typename Material>
  void Add(StructureBlock& block, const LayerRow<Material>& row) {
    const bool drawn = row.slot.thickness_mm > 0.0 && row.multiplicity > 0;
    std::string amount = Millimetres(row.slot.thickness_mm);
    if (row.multiplicity > 1) amount += " X " + std::to_string(row.multiplicity);
    block.lines.push_back({drawn ? number_++ : 0, NameOf(row), amount});
  }

  void AddDamping(StructureBlock& block, const elements::DampingRow& damping) {
    if (damping.ticked) Add(block, damping.row);
  }

  template <typename Material, std::size_t N>
  StructureBlock Table(std::string heading, const elements::LayerTable<Material, N>& table) {
    StructureBlock block{.heading = std::move(heading)};
    double mass = 0.0;
    for (int i = 0; i < RowsInUse(table); ++i) {
      const auto& row = table.rows[static_cast<std::size_t>(i)];
      Add(block, row);
      mass += MassOf(row);
    }
    block.mass = MassText(mass);
    return block;
  }

  StructureBlock SeaLeaf(std::string heading, const elements::SeaLeaf& leaf);
  StructureBlock Cavity(const Setup& setup, const Words& words);
  StructureBlock SeaCavity(const elements::SeaCavity& cavity, const Words& words);

 private:
  int number_;
};

double SeaMass(const elements::SeaLeaf& leaf) {
  double mass = 0.0;
  for (int i = 0; i < RowsInUse(leaf); ++i) {
    const auto row = static_cast<std::size_t>(i);
    mass += MassOf(leaf.rows[row]);
    for (const std::size_t side : {2 * row, 2 * row + 1}) {
      if (leaf.damping[side].ticked) mass += MassOf(leaf.damping[side].row);
    }
  }
  return mass;
}

StructureBlock Lister::SeaLeaf(std::string heading, const elements::SeaLeaf& leaf) {
  StructureBlock block{.heading = std::move(heading), .mass = MassText(SeaMass(leaf))};
  for (int i = 0; i < RowsInUse(leaf); ++i) {
    const auto row = static_cast<std::size_t>(i);
    AddDamping(block, leaf.damping[2 * row]);
    Add(block, leaf.rows[row]);
    AddDamping(block, leaf.damping[2 * row + 1]);
  }
  return block;
}

StructureLine AirGap(const std::string& depth_text, const Words& words) {
  return {0, words(kAirGapRow) + " " + Millimetres(NumberOf(depth_text)), {}};
}

StructureBlock Lister::Cavity(const Setup& setup, const Words& words) {
  StructureBlock block;
  block.lines.push_back(AirGap(setup.cavity.depth_text, words));
  if (setup.cavity.kind == elements::CavityKind::kFibrous) {
    const bool own_thickness = ReadsFibreThickness(*setup.calculation);
    block.lines.push_back({0, words(kFibrousCavityRow),
                           own_thickness ? Millimetres(NumberOf(setup.cavity.fibre_text)) : std::string()});
  } else if (setup.cavity.kind == elements::CavityKind::kGenericMaterial) {
    for (int i = 0; i < RowsInUse(setup.cavity.layers); ++i) {
      Add(block, setup.cavity.layers.rows[static_cast<std::size_t>(i)]);
    }
  }
  return block;
}

StructureBlock Lister::SeaCavity(const elements::SeaCavity& cavity, const Words& words) {
  StructureBlock block;
  block.lines.push_back(AirGap(cavity.depth_text, words));
  std::size_t fibre = 0;
  std::size_t mass = 0;
  for (const SeaCavityPart part : PartsOf(cavity.type)) {
    if (part == SeaCavityPart::kFibre) {
      Add(block, cavity.fibres[fibre++]);
      continue;
    }
    Add(block, cavity.masses[mass]);
    AddDamping(block, cavity.mass_damping[mass]);
    ++mass;
  }
  return block;
}

std::vector<StructureBlock> VerticalDouble(const Setup& setup, Family family, const Words& words) {
  Lister lister(1);
  std::vector<StructureBlock> blocks;
  if (family == Family::kSea) {
    blocks.push_back(lister.SeaLeaf(words(kLeaf1Row), setup.sea_leaf1));
    blocks.push_back(lister.SeaCavity(setup.sea_cavity, words));
    blocks.push_back(lister.SeaLeaf(words(kLeaf2Row), setup.sea_leaf2));
  } else {
    blocks.push_back(lister.Table(words(kLeaf1Row), setup.leaf1));
    blocks.push_back(lister.Cavity(setup, words));
    blocks.push_back(lister.Table(words(kLeaf2Row), setup.leaf2));
  }
  return blocks;
}

std::vector<StructureBlock> Floor(const Setup& setup, const Words& words) {
  Lister lister(1);
  std::vector<StructureBlock> blocks = {lister.Table(words(kFloorRow), setup.leaf1)};
  if (RowsInUse(setup.resilient) > 0)
    blocks.push_back(lister.Table(words(kResilientMaterialTabRow), setup.resilient));
  blocks.push_back(lister.Table(words(kScreedRow), setup.leaf2));
  return blocks;
}

}  // namespace

std::vector<StructureBlock> StructureOf(const Setup& setup, const Words& words) {
  if (!setup.calculation) return {};
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  switch (row.orientation) {
    case Orientation::kVerticalSingle:
    case Orientation::kHorizontalSingle:
      if (row.family == Family::kSeaSingle) return {Lister(1).SeaLeaf({}, setup.sea_leaf1)};
      return {Lister(1).Table({}, setup.leaf1)};
    case Orientation::kVerticalDouble:
      return VerticalDouble(setup, row.family, words);
    case Orientation::kHorizontalDouble:
      return Floor(setup, words);
    case Orientation::kLining:
    case Orientation::kCeiling: {
      const bool ceiling = row.orientation == Orientation::kCeiling;
      StructureBlock base{.heading = words(ceiling ? kBaseFloorRow : kBaseWallRow),
                          .mass = MassText(static_cast<double>(setup.base.mass_kg_m2))};
      base.lines.push_back({1, setup.base.name, Millimetres(BaseThicknessOf(setup))});
      Lister lister(2);
      StructureBlock cavity = lister.SeaCavity(setup.sea_cavity, words);
      return {std::move(base), std::move(cavity), lister.SeaLeaf(words(kLiningRow), setup.sea_leaf2)};
    }
    case Orientation::kComposite:
      return {};
  }
  return {};
}

double LiningMass(const Setup& setup) { return SeaMass(setup.sea_leaf2); }

std::string MassText(double mass_kg_m2) { return "m'= " + FormatFixed(mass_kg_m2, 1) + " kg/m²"; }

}  // namespace velmar::presentation
