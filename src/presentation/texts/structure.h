#pragma once

#include <string>
#include <vector>

#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// A line of the layer list: "2  Cartongesso standard  12,5mm X 2".
struct StructureLine {
  int number = 0;  ///< of the layer, as everywhere else; 0 for air and a fill without a row
  std::string name{};
  std::string amount{};

  bool operator==(const StructureLine&) const = default;
};

/// A leaf, a cavity or a stack of the element.
struct StructureBlock {
  std::string heading{};  ///< "Parete 1"; empty where the element has one block alone
  std::string mass{};     ///< "m'= 120,0 kg/m²"; empty for a cavity
  std::vector<StructureLine> lines{};
};

/// The layers of the element as it stands: leaf, cavity, leaf; of a floor screed, resilient layers, bearing
/// floor; base, cavity, lining. Nothing for a facade or before a choice.
std::vector<StructureBlock> StructureOf(const elements::Setup& setup, const Words& words);

/// Surface mass of the lining with its damping layers, kg/m².
double LiningMass(const elements::Setup& setup);

/// A surface mass as the page writes it: "m'= 120,0 kg/m²".
std::string MassText(double mass_kg_m2);

}  // namespace velmar::presentation
