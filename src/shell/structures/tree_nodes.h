#pragma once

#include <vector>

#include "elements/catalogue.h"
#include "shell/structures/library_tree.h"

namespace velmar::structures {

/// What the library window is opened for (`TipoElementoSperimentale`).
enum class LibraryPurpose {
  kOpaquePart,    ///< "parte opaca", also the base of a lining
  kComponents,    ///< "infissi"
  kAirborneData,  ///< "dati_Rw": all airborne sound data, to look at
  kImpactData,    ///< "dati_Lnw": all impact sound data, to look at
};

/// The nodes of the library window.
std::vector<TreeNode> LibraryNodes(LibraryPurpose purpose, const shell::WindowTools& tools);

/// The databases that the laboratory side of the comparison offers for `family`.
std::vector<TreeNode> LaboratoryNodes(elements::Family family, const shell::WindowTools& tools);
/// The databases that its in-situ side offers for `family`.
std::vector<TreeNode> InSituNodes(elements::Family family, const shell::WindowTools& tools);

}  // namespace velmar::structures
