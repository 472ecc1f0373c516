#pragma once

#include <string>

namespace velmar::presentation {

/// What a material looks like in a section.
enum class MaterialKind {
  kGeneric,
  kBrick,
  kConcrete,
  kPlaster,
  kPlasterboard,
  kGlass,
  kWool,
  kFoam,
  kScreed,
  kWood,
  kMetal,
  kStone,
  kResilient,
  kDamping,
  kAir,
};

/// The kind of a structural material, told by the trade's words in its name; unknown names go by density
/// (kg/m³): light ones as foam, very heavy ones as metal.
MaterialKind StructuralKind(const std::string& name, double density_kg_m3);

/// The kind of a filling of a cavity: wool unless its name says foam, wood or anything else.
MaterialKind FillingKind(const std::string& name);

/// The kind of a resilient layer: wool by name, resilient else.
MaterialKind ResilientKind(const std::string& name);

}  // namespace velmar::presentation
