#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "acoustics/constructions.h"
#include "elements/materials.h"

namespace velmar::elements {

/// One row of a layer table. The material list and the thickness box are what the row shows; the slot is the
/// copy of the material that a calculation reads. A row that was never in use shows a material while its slot
/// is empty.
template <typename Material>
struct LayerRow {
  std::string listed{};          ///< text of the material list
  std::string thickness_text{};  ///< text of the thickness box
  int multiplicity = 1;          ///< equal sheets
  Material slot{};

  bool operator==(const LayerRow&) const = default;
};

/// Up to N rows of which the first `count` are in use.
template <typename Material, std::size_t N>
struct LayerTable {
  static constexpr int kCapacity = static_cast<int>(N);
  int count = 1;
  std::array<LayerRow<Material>, N> rows{};

  bool operator==(const LayerTable&) const = default;
};

using LeafLayers = LayerTable<StructuralMaterial, 10>;
using ResilientLayers = LayerTable<ResilientMaterial, 10>;  ///< a count of 0 means none
using CavityLayers = LayerTable<FibrousMaterial, 7>;

/// A material that is there only while its check is ticked.
struct DampingRow {
  bool ticked = false;
  LayerRow<StructuralMaterial> row{};

  bool operator==(const DampingRow&) const = default;
};

/// One side of a SEA wall: up to three layers, each with a damping layer on its left (2 i) and right (2 i +
/// 1).
struct SeaLeaf {
  static constexpr int kCapacity = 3;
  static constexpr std::size_t kDampingCount = 6;  ///< two a layer
  int count = 1;                                   ///< `ComboMatSEA1`, `ComboMatSEA2`
  std::array<LayerRow<StructuralMaterial>, kCapacity>
      rows{};                                       ///< `ComboMatNormaleSEA1`, `TextSpessoreMatSEA1`, ...
  std::array<DampingRow, kDampingCount> damping{};  ///< `ChecklMatSmorzanteSEA1`, ...

  bool operator==(const SeaLeaf&) const = default;
};

using acoustics::CavityKind;
using acoustics::ContentsOf;
using acoustics::FibreCount;
using acoustics::kSeaCavityTypeCount;
using acoustics::MassCount;
using acoustics::SeaCavityContent;
using acoustics::SeaCavityType;

/// The cavity of a SEA wall, a lining or a suspended ceiling.
struct SeaCavity {
  SeaCavityType type = SeaCavityType::kEmpty;  ///< `ComboTipoIntercSEA`
  std::string depth_text{};                    ///< `TextSpessoreIntercSEA`, mm
  std::array<LayerRow<FibrousMaterial>, 3>
      fibres{};  ///< `ComboMatFibraIntercSEA`, `TextSpessoreMatFibraIntercSEA`
  std::array<LayerRow<StructuralMaterial>, 2> masses{};  ///< `ComboMatMassaIntercSEA`, ...
  std::array<DampingRow, 2> mass_damping{};  ///< `ChecklMatSmorzanteIntercSEA`, `ComboMatSmorzIntercSEA`

  bool operator==(const SeaCavity&) const = default;
};

/// The cavity of a double wall.
struct Cavity {
  CavityKind kind = CavityKind::kEmpty;  ///< `Option2`
  std::string depth_text = "50";         ///< `Text9`, mm
  std::string fibre_text = "0";          ///< `Text31`, mm; only relations read it
  /// `Combo18`, `Combo9`, `Text26`, `Combo17`. The count keeps what was typed, also above the seven rows
  /// there are.
  CavityLayers layers{};

  bool operator==(const Cavity&) const = default;
};

}  // namespace velmar::elements
