#pragma once

namespace velmar::models {

/// What fills the space between two leaves.
enum class CavityKind {
  kEmpty,    ///< air
  kFibrous,  ///< fibrous material over the whole depth
  kLayers,   ///< a stack of layers, absorbing or solid
};

}  // namespace velmar::models
