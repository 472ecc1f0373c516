#include "shell/commands/refused_field.h"

#include <array>

#include "elements/layer_groups.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::Field;
using elements::FieldId;

QString LayerControl(const FieldId& id) {
  const elements::LayerGroupRow& group = RowOf(*id.group);
  return ArrayName(id.field == Field::kThickness ? group.thickness_box : group.list, id.index);
}

/// The control of a field that the base element has once and each component has too.
struct ElementControl {
  Field field{};
  const char* base = "";
  const char* component = "";
};
constexpr std::array kElementControls = {ElementControl{Field::kArea, "Text7", "Text23"},
                                         ElementControl{Field::kRating, "Text25", "Text24"},
                                         ElementControl{Field::kC, "Text27", "Text29"},
                                         ElementControl{Field::kCtr, "Text28", "Text30"},
                                         ElementControl{Field::kMass, "TextMassaBase", ""},
                                         ElementControl{Field::kTightness, "", "ComboTenutaAria"}};

/// The control of a field that an element has once, or each row of a free list of layers.
struct FieldControl {
  Field field{};
  const char* control = "";
};
constexpr std::array kStratumControls = {FieldControl{Field::kStratumKind, "ComboTipoStrato"},
                                         FieldControl{Field::kStratumThickness, "TextSpessoreStrato"},
                                         FieldControl{Field::kConnection, "ComboCollegamento"},
                                         FieldControl{Field::kConnectionNumber, "TextCollegamento"},
                                         FieldControl{Field::kProfileHeight, "TextAltezzaGreca"},
                                         FieldControl{Field::kProfilePitch, "TextPassoGreca"}};
constexpr std::array kFieldControls = {FieldControl{Field::kWidth, "Toolbar1_15"},
                                       FieldControl{Field::kHeight, "Toolbar1_15"},
                                       FieldControl{Field::kCavityDepth, "Text9"},
                                       FieldControl{Field::kCavityKind, "Option2_0"},
                                       FieldControl{Field::kFibreThickness, "Text31"},
                                       FieldControl{Field::kSeaCavityDepth, "TextSpessoreIntercSEA"},
                                       FieldControl{Field::kSeaCavityType, "ComboTipoIntercSEA"},
                                       FieldControl{Field::kSupport, "Text8"},
                                       FieldControl{Field::kHanger, "ComboTipoAppendino"},
                                       FieldControl{Field::kDecoupling, "CheckDesolidarizza"},
                                       FieldControl{Field::kBaseThickness, "TextSpessoreBase"},
                                       FieldControl{Field::kSimplified, "Check2"}};

}  // namespace

QString BandControl(int element, std::size_t band) {
  // The boxes of each component are an array of their own; the first has a number apart.
  constexpr std::array kFirstArrays = {"Text13", "Text12"};
  const auto place = static_cast<std::size_t>(element);
  const QString array =
      place < kFirstArrays.size() ? QString(kFirstArrays.at(place)) : "Text" + QString::number(12 + element);
  return array + '_' + QString::number(band);
}

QString ControlOf(const FieldId& id) {
  if (id.group) return LayerControl(id);
  for (const FieldControl& one : kStratumControls) {
    if (one.field == id.field) return ArrayName(one.control, id.index);
  }
  if (id.field == Field::kBand) return BandControl(id.index, static_cast<std::size_t>(id.band));
  for (const ElementControl& one : kElementControls) {
    if (one.field == id.field)
      return id.index == 0 ? QString(one.base) : ArrayName(one.component, id.index - 1);
  }
  for (const FieldControl& one : kFieldControls) {
    if (one.field == id.field) return one.control;
  }
  return {};
}

}  // namespace velmar::shell
