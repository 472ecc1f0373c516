#include "presentation/texts/descriptions.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/layer_rows.h"
#include "presentation/texts/sea_cavity_parts.h"

namespace velmar::presentation {
namespace {

using elements::Family;
using elements::Setup;

// These words are stored; they stay Italian in every language.
constexpr const char* kBearingFloor = "SOLAIO BASE: ";
constexpr const char* kResilientLayers = "Mat. resiliente: ";
constexpr const char* kScreed = "MASSETTO: ";
constexpr const char* kNext = "; ";
constexpr const char* kNextPart = " -- ";
constexpr const char* kCut = "...";

void Append(std::string& text, const std::string& item) {
  if (!text.empty()) text += kNext;
  text += item;
}

template <typename Material>
std::string Item(const elements::LayerRow<Material>& row) {
  std::string item = NameOf(row) + " (" + FormatShortest(row.slot.thickness_mm) + " mm)";
  if (row.multiplicity > 1) item += " x " + std::to_string(row.multiplicity);
  return item;
}

template <typename Material, std::size_t N>
std::string ItemsOf(const elements::LayerTable<Material, N>& table) {
  std::string text;
  for (int i = 0; i < RowsInUse(table); ++i) Append(text, Item(table.rows[static_cast<std::size_t>(i)]));
  return text;
}

std::string ItemsOf(const elements::SeaLeaf& leaf) {
  std::string text;
  for (int place = 0; place < 3 * RowsInUse(leaf); ++place) {
    if (place % 3 == 1) {
      Append(text, Item(leaf.rows[static_cast<std::size_t>(place / 3)]));
      continue;
    }
    const auto& damping = leaf.damping[static_cast<std::size_t>(MapCheckSmorzanteSea(place))];
    if (damping.ticked) Append(text, Item(damping.row));
  }
  return text;
}

std::string ItemsOf(const elements::SeaCavity& cavity) {
  std::string text;
  std::size_t fibre = 0;
  std::size_t mass = 0;
  for (const SeaCavityPart part : PartsOf(cavity.type)) {
    if (part == SeaCavityPart::kFibre) {
      Append(text, Item(cavity.fibres[fibre++]));
      continue;
    }
    Append(text, Item(cavity.masses[mass]));
    if (cavity.mass_damping[mass].ticked) Append(text, Item(cavity.mass_damping[mass].row));
    ++mass;
  }
  return text;
}

std::string LeafHead(int leaf, const Words& words) {
  return UpperCase(words(kWallRow)) + " " + std::to_string(leaf) + ": ";
}

std::string CavityPart(const Setup& setup, const Words& words) {
  switch (setup.cavity.kind) {
    case elements::CavityKind::kEmpty:
      return kNextPart + words(kEmptyCavityRow) + ";";
    case elements::CavityKind::kFibrous:
      return kNextPart + words(kFibrousCavityRow) + ";";
    case elements::CavityKind::kGenericMaterial:
      return kNextPart + UpperCase(words(kCavityRow)) + ": " + CompilaDescrizioneIntercapedine(setup);
  }
  return {};
}

std::string ResilientPart(const elements::ResilientLayers& layers) {
  if (RowsInUse(layers) == 0) return {};
  std::string text = kResilientLayers;
  for (int i = 0; i < RowsInUse(layers); ++i) {
    const auto& row = layers.rows[static_cast<std::size_t>(i)];
    if (i > 0) text += ", ";
    text += NameOf(row) + " X " + FormatShortest(row.slot.thickness_mm);
  }
  return text + kNext;
}

std::string FacadePart(const Setup& setup, const Words& words) {
  std::string parts = setup.base.name;
  for (int i = 0; i < setup.facade.Count(); ++i) {
    const std::string& name = setup.facade.components[static_cast<std::size_t>(i)].name;
    if (!name.empty()) Append(parts, name);
  }
  return words(kFacadeRow) + ": " + parts;
}

/// As FacadePart(), with equal components told once: "Finestra x 8".
std::string CountedParts(const Setup& setup, const Words& words) {
  std::vector<std::pair<std::string, int>> parts;
  for (int i = 0; i < setup.facade.Count(); ++i) {
    const std::string& name = setup.facade.components[static_cast<std::size_t>(i)].name;
    if (name.empty()) continue;
    const auto known = std::ranges::find(parts, name, &std::pair<std::string, int>::first);
    if (known == parts.end()) {
      parts.emplace_back(name, 1);
    } else {
      ++known->second;
    }
  }
  std::string text = setup.base.name;
  for (const auto& [name, count] : parts)
    Append(text, count > 1 ? name + " x " + std::to_string(count) : name);
  return words(kFacadeRow) + ": " + text;
}

std::string LiningPart(const Setup& setup, bool ceiling, const Words& words) {
  return words(ceiling ? kBaseFloorRow : kBaseWallRow) + ": " + setup.base.name + kNextPart +
         words(ceiling ? kCeilingRow : kWallLiningRow) + ": " + CompilaDescrizionePareteSEA2(setup) +
         CompilaDescrizioneIntercapedineSEA(setup, words);
}

std::string WholeDescription(const Setup& setup, Family family, const Words& words) {
  switch (family) {
    case Family::kSingle:
      return CompilaDescrizioneParete1(setup);
    case Family::kSeaSingle:
      return CompilaDescrizionePareteSEA1(setup);
    case Family::kSea:
      return LeafHead(1, words) + CompilaDescrizionePareteSEA1(setup) +
             CompilaDescrizioneIntercapedineSEA(setup, words) + kNextPart + LeafHead(2, words) +
             CompilaDescrizionePareteSEA2(setup);
    case Family::kDouble:
    case Family::kSharp:
      return LeafHead(1, words) + CompilaDescrizioneParete1(setup) + CavityPart(setup, words) + kNextPart +
             LeafHead(2, words) + CompilaDescrizioneParete2(setup);
    case Family::kImpact:
      return kBearingFloor + CompilaDescrizioneParete1(setup) + kNext + ResilientPart(setup.resilient) +
             kScreed + CompilaDescrizioneParete2(setup);
    case Family::kFacade:
      return FacadePart(setup, words);
    case Family::kLining:
    case Family::kCeiling:
      return LiningPart(setup, family == Family::kCeiling, words);
  }
  return {};
}

}  // namespace

std::string CompilaDescrizioneParete1(const Setup& setup) { return ItemsOf(setup.leaf1); }
std::string CompilaDescrizioneParete2(const Setup& setup) { return ItemsOf(setup.leaf2); }
std::string CompilaDescrizioneIntercapedine(const Setup& setup) { return ItemsOf(setup.cavity.layers); }
std::string CompilaDescrizionePareteSEA1(const Setup& setup) { return ItemsOf(setup.sea_leaf1); }
std::string CompilaDescrizionePareteSEA2(const Setup& setup) { return ItemsOf(setup.sea_leaf2); }

std::string CompilaDescrizioneIntercapedineSEA(const Setup& setup, const Words& words) {
  const elements::SeaCavity& cavity = setup.sea_cavity;
  const std::string depth = " (" + FormatShortest(NumberOf(cavity.depth_text)) + " mm)";
  if (cavity.type == elements::SeaCavityType::kEmpty) return kNextPart + words(kEmptySeaCavityRow) + depth;
  return kNextPart + UpperCase(words(kCavityRow)) + depth + ": " + ItemsOf(cavity);
}

int MapCheckSmorzanteSea(int check) {
  constexpr std::array<int, 9> kSlots = {0, 0, 1, 2, 0, 3, 4, 0, 5};
  return check >= 0 && check < static_cast<int>(kSlots.size()) ? kSlots[static_cast<std::size_t>(check)] : 0;
}

std::string ElementDescription(const Setup& setup, const Words& words) {
  if (!setup.calculation) return {};
  const Family family = elements::RowOf(*setup.calculation).family;
  return family == Family::kFacade ? CountedParts(setup, words) : WholeDescription(setup, family, words);
}

std::string ResultDescription(const Setup& setup, const Words& words) {
  if (!setup.calculation) return {};
  const Family family = elements::RowOf(*setup.calculation).family;
  const std::string text = WholeDescription(setup, family, words);
  std::string cut = FirstCharacters(text, kLongestDescription);
  if (family == Family::kFacade && cut.size() < text.size()) {
    cut = FirstCharacters(text, kLongestDescription - std::string(kCut).size()) + kCut;
  }
  return cut;
}

std::string ProposedName(const Setup& setup, const Words& words) {
  if (!setup.calculation) return {};
  const Family family = elements::RowOf(*setup.calculation).family;
  MessageRow row = kWallRow;
  if (family == Family::kImpact) row = kFloorRow;
  if (family == Family::kLining) row = kWallLiningRow;
  if (family == Family::kCeiling) row = kCeilingRow;
  return words(row) + " x";
}

}  // namespace velmar::presentation
