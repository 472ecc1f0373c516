#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>

namespace velmar::elements {

enum class LayerGroup;

/// The fields in which a user enters an element. Those of a layer row, of a band and of a component name a
/// kind of field, of which a set-up holds several.
enum class Field {
  kWidth,   ///< `Text1`
  kHeight,  ///< `Text2`

  // Of a layer row.
  kMaterial,   ///< the material list
  kThickness,  ///< of one sheet
  kSheets,
  kTick,  ///< the check of a damping layer

  // Values of a layer's material.
  kDensity,
  kYoungsModulus,
  kLossFactor,
  kPoissonsRatio,
  kFlowResistance,
  kDynamicStiffness,
  kAbsorption,

  kCavityDepth,     ///< `Text9`
  kCavityKind,      ///< `Option2`
  kFibreThickness,  ///< `Text31`
  kSeaCavityDepth,  ///< `TextSpessoreIntercSEA`
  kSeaCavityType,   ///< `ComboTipoIntercSEA`
  kSupport,         ///< `Text8`: a distance or a number, see Support
  kHanger,          ///< `ComboTipoAppendino`
  kDecoupling,      ///< `CheckDesolidarizza`

  // Of the base element (the opaque part of a facade) or of a component.
  kArea,       ///< `Text7` (of the whole facade), `Text23`
  kRating,     ///< `Text25`, `Text24`
  kC,          ///< `Text27`, `Text29`
  kCtr,        ///< `Text28`, `Text30`
  kBand,       ///< `Text13`; `Text12`, `Text14` to `Text21`
  kMass,       ///< `ValoriElemento`
  kTightness,  ///< `ComboTenutaAria`

  kBaseThickness,  ///< of the wall or floor under a lining
  kSimplified,     ///< `Check2`

  // Of a row of a free list of layers.
  kStratumKind,       ///< `ComboTipoStrato`
  kStratumThickness,  ///< `TextSpessoreStrato`
  kConnection,        ///< `ComboCollegamento`
  kConnectionNumber,  ///< `TextCollegamento`
  kProfileHeight,     ///< `TextAltezzaGreca`
  kProfilePitch,      ///< `TextPassoGreca`

  kTracks,  ///< `CheckGuide`
};
inline constexpr Field kLastField = Field::kTracks;

/// A set of fields.
class FieldSet {
 public:
  constexpr FieldSet() = default;
  constexpr FieldSet(std::initializer_list<Field> fields) {
    for (const Field field : fields) bits_ |= Bit(field);
  }

  constexpr bool Has(Field field) const { return (bits_ & Bit(field)) != 0; }
  constexpr FieldSet With(FieldSet others) const {
    FieldSet joined = *this;
    joined.bits_ |= others.bits_;
    return joined;
  }

  constexpr bool operator==(const FieldSet&) const = default;

 private:
  static constexpr std::uint64_t Bit(Field field) { return std::uint64_t{1} << static_cast<unsigned>(field); }

  std::uint64_t bits_ = 0;
};

/// One field of a set-up.
struct FieldId {
  Field field{};
  std::optional<LayerGroup> group{};  ///< of a layer row
  int index = 0;  ///< the layer row, from 0; of a list of layers, from 0; or 0 the base element,
                  ///< 1 to 9 a component
  int band = 0;   ///< of Field::kBand, from 0

  bool operator==(const FieldId&) const = default;
};

}  // namespace velmar::elements
