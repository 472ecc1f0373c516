#pragma once

#include <array>
#include <optional>
#include <string>

#include "acoustics/bands.h"
#include "elements/catalogue.h"
#include "elements/fields.h"
#include "elements/keyed_values.h"
#include "elements/layers.h"
#include "elements/multilayer.h"
#include "elements/project_information.h"

namespace velmar::elements {

/// One text per band, as typed; an empty text is a band without a value.
using BandTexts = std::array<std::string, acoustics::kBandCount>;

/// The opaque part of a facade, or the wall or floor under a lining (tab "Parete base").
struct BaseElement {
  std::string name{};         ///< `Combo14`
  std::string description{};  ///< `Text11`
  std::string area_text{};    ///< `Text7`, m²: the whole facade
  std::string rating_text{};  ///< `Text25`, Rw in dB
  std::string c_text{};       ///< `Text27`, dB
  std::string ctr_text{};     ///< `Text28`, dB
  BandTexts band_texts{};     ///< `Text13`, dB
  double thickness_mm = 0.0;  ///< of the base of a lining; 0 counts as kDefaultBaseThickness
  float mass_kg_m2 = 0.0F;    ///< `ValoriElemento`(0)

  bool operator==(const BaseElement&) const = default;
};
inline constexpr double kDefaultBaseThicknessMm = 200.0;

/// `Text23` of an element that is rated by its Dn,e and has no area.
inline constexpr const char* kSmallElementArea = "-";

/// A window, door, vent or small element of a facade (a page of `SSTab2`).
struct FacadeComponent {
  std::string name{};         ///< `Combo16`
  std::string description{};  ///< `Text22`
  std::string area_text{};    ///< `Text23`, m²; kSmallElementArea for a small element
  std::string rating_text{};  ///< `Text24`, Rw or Dn,e,w in dB
  std::string c_text{};       ///< `Text29`, dB
  std::string ctr_text{};     ///< `Text30`, dB
  BandTexts band_texts{};     ///< `Text12`, `Text14` to `Text21`, dB
  float mass_kg_m2 = 0.0F;    ///< `ValoriElemento`(1 to 9)
  int tightness_class = 0;    ///< `ComboTenutaAria`, 0 to 4

  bool operator==(const FacadeComponent&) const = default;
};

/// The composite element.
struct Facade {
  static constexpr int kCapacity = 9;
  bool simplified = false;       ///< `Check1`, `Check2`
  std::string count_text = "1";  ///< `Combo15`; the cap of a typed count leaves "9 "
  std::array<FacadeComponent, kCapacity> components{};

  /// The number of components, 1 to 9, that `count_text` names; 1 when it names none.
  int Count() const;

  bool operator==(const Facade&) const = default;
};

/// How a suspended ceiling hangs (`ComboTipoAppendino`), in the order of its list.
enum class Hanger { kDirect = 0, kSimple = 1, kSpring = 2 };

/// Everything the user entered: the state of the one open calculation. A value: copyable and comparable. What
/// a window shows and what a project file holds are views of it.
struct Setup {
  ProjectInformation information{};

  std::optional<Calculation> calculation;  ///< none until the first choice

  std::string width_text = "4";     ///< `Text1`, m
  std::string height_text = "2,7";  ///< `Text2`, m

  LeafLayers leaf1{};  ///< "Parete 1", or the bearing floor
  LeafLayers leaf2{};  ///< "Parete 2", or the screed
  Cavity cavity{};
  ResilientLayers resilient{};  ///< `Combo12`, `Combo11`, `Text10`, `Combo13`

  SeaLeaf sea_leaf1{};
  SeaLeaf sea_leaf2{};  ///< the second side, or the lining
  SeaCavity sea_cavity{};

  std::string support_distance_text{};  ///< `Text8`: stud distance in cm, or number of connections
  int hanger = 0;                       ///< `ComboTipoAppendino`: position in its list, -1 for none
  bool decoupled = false;               ///< `CheckDesolidarizza`

  BaseElement base{};
  Facade facade{};
  Multilayer multilayer{};

  KeyedValues further{};  ///< what else the project holds; of no account for the calculation

  bool operator==(const Setup&) const = default;
};

/// Calls `visit(field, name, value of each set-up...)` for every field that a set-up has once: the exact text
/// of a set-up writes it under `name`, and undo tells by it what has changed. What follows from others stands
/// behind them.
template <typename Visit, typename... Setups>
void VisitSingleFields(Visit&& visit, Setups&... setups) {
  const auto each = [&](Field field, const char* name, auto value) { visit(field, name, value(setups)...); };
  each(
      Field::kCavityKind, "intercapedine.contenuto", [](auto& s) -> auto& { return s.cavity.kind; });
  each(
      Field::kFibreThickness, "intercapedine.fibra", [](auto& s) -> auto& { return s.cavity.fibre_text; });
  each(
      Field::kCavityDepth, "intercapedine.spessore", [](auto& s) -> auto& { return s.cavity.depth_text; });
  each(
      Field::kSeaCavityType, "sea.contenuto", [](auto& s) -> auto& { return s.sea_cavity.type; });
  each(
      Field::kSeaCavityDepth, "sea.spessore", [](auto& s) -> auto& { return s.sea_cavity.depth_text; });
  each(
      Field::kTracks, "multistrato.guide", [](auto& s) -> auto& { return s.multilayer.framed; });
  each(
      Field::kWidth, "larghezza", [](auto& s) -> auto& { return s.width_text; });
  each(
      Field::kHeight, "altezza", [](auto& s) -> auto& { return s.height_text; });
  each(
      Field::kSupport, "supporti", [](auto& s) -> auto& { return s.support_distance_text; });
  each(
      Field::kHanger, "pendino", [](auto& s) -> auto& { return s.hanger; });
  each(
      Field::kDecoupling, "desolidarizzata", [](auto& s) -> auto& { return s.decoupled; });
  each(
      Field::kSimplified, "facciata.semplificata", [](auto& s) -> auto& { return s.facade.simplified; });
  each(
      Field::kBaseThickness, "base.spessore", [](auto& s) -> auto& { return s.base.thickness_mm; });
}

/// The number that the text of a count list names, between `lowest` and `highest`; `lowest` when it names
/// none.
int CountOf(const std::string& text, int lowest, int highest);

}  // namespace velmar::elements
