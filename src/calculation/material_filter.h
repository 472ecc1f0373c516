#pragma once

#include <span>
#include <string>
#include <vector>

#include "elements/layer_groups.h"

namespace velmar::calculation {

/// A material as the lists of the input pages know it.
struct ListedMaterial {
  std::string name{};
  std::string keyword{};
};

/// Words of the language that the keyword filters compare with.
struct FilterWords {
  std::string all{};            ///< row 367: every material
  std::string not_specified{};  ///< row 325: the keyword of a material without one
};

/// The entries of a keyword filter: all, then each keyword once in the order of first appearance, the
/// not-specified one left out. The filter of the fibrous materials leaves out the literal "non specificato"
/// instead.
std::vector<std::string> KeywordsOf(std::span<const ListedMaterial> materials,
                                    elements::MaterialFamily family, const FilterWords& words);

/// The names that a list offers under `keyword`: those of the keyword, then those without one, which stand
/// under every keyword but "vetrate" of the structural materials.
std::vector<std::string> NamesUnder(std::span<const ListedMaterial> materials,
                                    elements::MaterialFamily family, const std::string& keyword,
                                    const FilterWords& words);

}  // namespace velmar::calculation
