#pragma once

#include <optional>
#include <string>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/setup.h"

namespace velmar::elements {

/// A row of an input page: a layer with all its sheets, the base element, or a component of a facade.
struct Layer {
  std::optional<LayerGroup> group{};  ///< none: the base element or a component
  int row = 0;                        ///< of the group, from 0; or 0 the base element, 1 to 9 a component
  int number = 0;                     ///< counted through the element from 1, whatever order it is shown in
  std::string name{};  ///< the material in use, or the listed one where none was taken over yet
  std::string description{};
  double thickness_mm = 0.0;  ///< of one sheet; 0 for a component
  int sheets = 1;
  double density_kg_m3 = 0.0;  ///< 0 for the base element and components
  double mass_kg_m2 = 0.0;     ///< of all sheets
  /// Of a row of a free list of layers: what it is there.
  std::optional<StratumKind> stratum{};

  double ThicknessOfSheets() const { return thickness_mm * sheets; }
  /// Whether the layer is a damping sheet, which takes a tick to be there.
  bool IsDamping() const;
};

/// One stack of an element with all that it holds.
struct Part {
  Stack stack{};
  std::vector<Layer> layers{};
  /// Of a cavity: between what it parts. 0 where the field holds no number.
  std::optional<double> depth_mm{};
  /// Of a cavity of a double wall that is filled with fibre: the thickness of the fibre, which is the whole
  /// depth where the calculation does not read a thickness of its own.
  std::optional<double> fibre_mm{};
  int fibre_number = 0;  ///< of that fibre, counted as the layers are; 0 without one
  int leaf = 0;          ///< of a free list of layers: number of the leaf, from 1; 0 for every other part
  int stratum = -1;      ///< of a cavity in a free list of layers: its row; -1 for every other part

  /// Surface mass of the layers, kg/m².
  double MassKgM2() const;
  /// Thickness of the layers, mm.
  double ThicknessMm() const;
};

/// Whether a stack lies between two others: the cavities and the resilient layers.
constexpr bool LiesBetween(Stack stack) {
  return stack == Stack::kCavity || stack == Stack::kSeaCavity || stack == Stack::kResilient;
}

/// The element of `setup` in the order of its calculation: first leaf, cavity, second leaf; bearing floor,
/// resilient layers, screed; base element, cavity, lining; opaque part, components. Within a stack: damping
/// on the near side, layer, damping on the far side; of a cavity what its type shows. Layers are numbered
/// through all of it. Nothing before a choice.
std::vector<Part> PartsOf(const Setup& setup);

/// The same parts and numbers as the element stands: a floor with its finish first and the ceiling's plaster
/// last, all else as it is calculated. The one order of drawings, pages, reports and lists.
std::vector<Part> PartsAsTheyStand(const Setup& setup);

/// The leaves and cavities of a free list of layers, each row of a cavity a part of its own.
std::vector<Part> PartsOfList(const Multilayer& list);

/// One stack of `setup`, whatever the calculation; its layers have no number.
Part PartOf(const Setup& setup, Stack stack);

/// The number of row `row` of `group`; 0 where the row is none of the element's layers.
int NumberOf(const Setup& setup, LayerGroup group, int row);
/// The number of the fibre that fills the cavity of a double wall; 0 without one.
int FibreNumberOf(const Setup& setup);

/// The surface mass of a row's sheets, kg/m²: density times thickness, never the tabulated one.
template <typename Material>
double MassOf(const LayerRow<Material>& row) {
  return row.slot.density_kg_m3 * row.slot.thickness_mm * row.multiplicity / 1000.0;
}

}  // namespace velmar::elements
