#include "shell/commands/refused_field.h"

#include <algorithm>
#include <array>

#include "acoustics/bands.h"
#include "elements/layer_groups.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/phrases.h"
#include "shell/pages/element_parts.h"

namespace velmar::shell {
namespace {

using elements::Family;
using elements::LayerGroup;
using elements::Setup;

bool IsOf(const Setup& setup, std::initializer_list<Family> families) {
  const Family family = RowOf(*setup.calculation).family;
  return std::find(families.begin(), families.end(), family) != families.end();
}

/// The words of a line that are no row: names and numbers.
std::string Literals(const MessageLine& line) {
  std::string words;
  for (const MessagePiece& piece : line) {
    if (const auto* literal = std::get_if<std::string>(&piece)) words += *literal;
  }
  return words;
}

QString Depth(const Setup& setup, const MessageLine& /*line*/) {
  const bool plain = IsOf(setup, {Family::kDouble, Family::kSharp});
  return plain ? "Text9" : "TextSpessoreIntercSEA";
}

/// The group whose layers a calculation shows first.
LayerGroup FirstLayers(const Setup& setup) {
  if (IsOf(setup, {Family::kSea, Family::kSeaSingle})) return LayerGroup::kSeaLeaf1;
  return IsOf(setup, {Family::kLining, Family::kCeiling}) ? LayerGroup::kSeaLeaf2 : LayerGroup::kLeaf1;
}

QString FirstThickness(const Setup& setup, const MessageLine& /*line*/) {
  return ArrayName(RowOf(FirstLayers(setup)).thickness_box, 0);
}

QString FirstMaterial(const Setup& setup, const MessageLine& /*line*/) {
  return ArrayName(RowOf(FirstLayers(setup)).list, 0);
}

/// The first fill in the cavity of which a band of absorption is unknown.
QString UnknownFill(const Setup& setup, const MessageLine& /*line*/) {
  const std::string_view list = RowOf(LayerGroup::kSeaCavityFibre).list;
  const int shown = FibreCount(setup.sea_cavity.type);
  for (int i = 0; i < shown; ++i) {
    const auto& absorption = setup.sea_cavity.fibres.at(static_cast<std::size_t>(i)).slot.absorption;
    if (std::ranges::any_of(absorption, [](float band) { return band < 0.0F; })) return ArrayName(list, i);
  }
  return ArrayName(list, 0);
}

QString CavityFill(const Setup& setup, const MessageLine& /*line*/) {
  const bool generic = setup.cavity.kind == elements::CavityKind::kGenericMaterial;
  return generic ? ArrayName(RowOf(LayerGroup::kCavity).thickness_box, 0) : QString("Text31");
}

/// The first rated band without a level, of the base element and the components in use.
QString MissingBand(const Setup& setup, const MessageLine& /*line*/) {
  const int elements = IsOf(setup, {Family::kFacade}) ? setup.facade.Count() : 0;
  for (int element = 0; element <= elements; ++element) {
    for (std::size_t band = acoustics::kFirstRatedBand; band <= acoustics::kLastRatedBand; ++band) {
      const double level = Visited(setup, element, [band](const auto& one) {
        return ParseDecimal(one.band_texts.at(band)).value_or(0.0);
      });
      if (!(level > 0.0)) return BandControl(element, band);
    }
  }
  return BandControl(0, acoustics::kFirstRatedBand);
}

QString AreaToCorrect(const Setup& setup, const MessageLine& /*line*/) {
  return ParseDecimal(setup.base.area_text).value_or(0.0) == 0.0 ? "Text7" : "Text23_0";
}

/// The field that holds what is no number.
QString HolderOf(const Setup& setup, const MessageLine& line) {
  const std::array<std::pair<const std::string*, const char*>, 6> fields = {{
      {&setup.cavity.depth_text, "Text9"},
      {&setup.cavity.fibre_text, "Text31"},
      {&setup.support_distance_text, "Text8"},
      {&setup.sea_cavity.depth_text, "TextSpessoreIntercSEA"},
      {&setup.width_text, "Toolbar1_15"},
      {&setup.height_text, "Toolbar1_15"},
  }};
  for (const auto& [text, control] : fields) {
    if (Literals(line) == " \"" + *text + '"') return control;
  }
  return {};
}

struct Cause {
  MessageRow row{};
  const char* control = nullptr;  ///< none: `find` tells it
  QString (*find)(const Setup& setup, const MessageLine& line) = nullptr;
};
constexpr std::array kCauses = {
    Cause{kNoDepthRow, "TextSpessoreIntercSEA"},
    Cause{kGenericNoBaseMassRow, "TextMassaBase"},
    Cause{kGenericNoMassRow, nullptr, FirstThickness},
    Cause{kGenericBaseRatingRow, "Text25"},
    Cause{kNoBaseMassRow, "TextMassaBase"},
    Cause{kCavityTooThinRow, "TextSpessoreIntercSEA"},
    Cause{kNoBaseSpectrumRow, nullptr, MissingBand},
    Cause{kNoAbsorptionOfFillRow, nullptr, UnknownFill},
    Cause{kNoBaseRatingRow, "Text25"},
    Cause{kBaseRatingNotPositiveRow, "Text25"},
    Cause{kNoHangerRow, "ComboTipoAppendino"},
    Cause{kNoSupportDistanceRow, "Text8"},
    Cause{kNoAbsorptionRow, nullptr, UnknownFill},
    Cause{kNoPointCountRow, "Text8"},
    Cause{kNoLineCountRow, "Text8"},
    Cause{kComponentsFillFacadeRow, nullptr, AreaToCorrect},
    Cause{kMissingBandsRow, nullptr, MissingBand},
    Cause{kZeroMassRow, nullptr, FirstThickness},
    Cause{kZeroThicknessRow, nullptr, FirstThickness},
    Cause{kInvalidStiffnessRow, nullptr, FirstMaterial},
    Cause{kZeroDimensionRow, "Toolbar1_15"},
    Cause{kZeroCavityDepthRow, nullptr, Depth},
    Cause{kZeroCavityLayerRow, nullptr, CavityFill},
    Cause{kZeroLossFactorRow, nullptr, FirstMaterial},
    Cause{kNotANumberRow, nullptr, HolderOf},
    Cause{kZeroStudDistanceRow, "Text8"},
    Cause{kNoBendingWaveRow, nullptr, FirstMaterial},
    Cause{kCoincidenceOnGridRow, nullptr, FirstThickness},
    Cause{kNoLayerRow, nullptr, FirstMaterial},
    Cause{kNoConnectedLayerRow, nullptr, FirstMaterial},
    Cause{kNoConnectionBalanceRow, "Text8"},
    Cause{kNoFillMassRow, "TextSpessoreMatFibraIntercSEA_0"},
    Cause{kNoLeafBalanceRow, nullptr, FirstMaterial},
    Cause{kInvalidLossFactorRow, nullptr, FirstMaterial},
    Cause{kInvalidDynamicStiffnessRow, "Combo11_0"},
    Cause{kFacadeLevelsRow, nullptr, MissingBand},
    Cause{kCheckCavityRow, "TextSpessoreIntercSEA"},
};

std::optional<RefusedField> FieldOf(const Setup& setup, const MessageLine& line) {
  for (const Cause& cause : kCauses) {
    if (cause.row != LeadingRow(line)) continue;
    const QString control = cause.control != nullptr ? QString(cause.control) : cause.find(setup, line);
    if (!control.isEmpty()) return RefusedField{control, line};
  }
  return std::nullopt;
}

}  // namespace

QString BandControl(int element, std::size_t band) {
  // The boxes of each component are an array of their own; the first has a number apart.
  constexpr std::array kFirstArrays = {"Text13", "Text12"};
  const auto place = static_cast<std::size_t>(element);
  const QString array =
      place < kFirstArrays.size() ? QString(kFirstArrays.at(place)) : "Text" + QString::number(12 + element);
  return array + '_' + QString::number(band);
}

std::optional<RefusedField> FieldToCorrect(const Setup& setup, const std::vector<Message>& messages) {
  if (!setup.calculation) return std::nullopt;
  for (const Message& message : messages) {
    for (const MessageLine& line : message) {
      // The opening of a list of checks says nothing by itself.
      if (message.size() > 1 && LeadingRow(line) == kCheckCavityRow) continue;
      if (auto field = FieldOf(setup, line)) return field;
    }
  }
  return std::nullopt;
}

}  // namespace velmar::shell
