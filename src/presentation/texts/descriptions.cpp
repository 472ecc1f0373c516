#include "presentation/texts/descriptions.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "presentation/texts/calculation_labels.h"

namespace velmar::presentation {
namespace {

using elements::Family;
using elements::Setup;
using elements::Stack;

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

std::string Item(const elements::Layer& layer) {
  std::string item = layer.name + " (" + FormatShortest(layer.thickness_mm) + " mm)";
  if (layer.sheets > 1) item += " x " + std::to_string(layer.sheets);
  return item;
}

/// The layers of a stack, whatever the calculation.
std::string ItemsOf(const Setup& setup, Stack stack) {
  std::string text;
  for (const elements::Layer& layer : elements::PartOf(setup, stack).layers) Append(text, Item(layer));
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

std::string ResilientPart(const Setup& setup) {
  std::string text;
  for (const elements::Layer& layer : elements::PartOf(setup, Stack::kResilient).layers) {
    text += text.empty() ? kResilientLayers : ", ";
    text += layer.name + " X " + FormatShortest(layer.thickness_mm);
  }
  return text.empty() ? text : text + kNext;
}

std::string FloorPart(const Setup& setup) {
  return kBearingFloor + CompilaDescrizioneParete1(setup) + kNext + ResilientPart(setup) + kScreed +
         CompilaDescrizioneParete2(setup);
}

/// The same for a document, in its language: what is stored has words of its own, and there the thickness of
/// a resilient layer would read as a number of sheets.
std::string FloorInWords(const Setup& setup, const Words& words) {
  const auto part = [&](MessageRow caption, Stack stack) {
    return UpperCase(words(caption)) + ": " + ItemsOf(setup, stack);
  };
  std::string text = part(kBaseFloorRow, Stack::kLeaf1) + kNextPart;
  if (!elements::PartOf(setup, Stack::kResilient).layers.empty())
    text += part(kResilientMaterialTabRow, Stack::kResilient) + kNextPart;
  return text + part(kScreedRow, Stack::kLeaf2);
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

/// Two leaves and what lies between them. A floor with a floating screed is stored in these words too.
std::string DoublePart(const Setup& setup, const elements::Stacks& stacks, const Words& words) {
  const bool sea = stacks.Has(Stack::kSeaCavity);
  return LeafHead(1, words) + ItemsOf(setup, sea ? Stack::kSeaLeaf1 : Stack::kLeaf1) +
         (sea ? CompilaDescrizioneIntercapedineSEA(setup, words) : CavityPart(setup, words)) + kNextPart +
         LeafHead(2, words) + ItemsOf(setup, sea ? Stack::kSeaLeaf2 : Stack::kLeaf2);
}

/// Leaves and cavities in their order: "Lastra (12,5 mm) -- Lana (60 mm) [Montanti in acciaio, ...] -- ...".
std::string MultilayerPart(const Setup& setup, const Words& words) {
  std::string text;
  for (const elements::Part& part : elements::PartsOf(setup)) {
    if (!text.empty()) text += kNextPart;
    if (part.depth_mm && part.layers.empty())
      text += words(kAirStratumRow) + " " + FormatShortest(*part.depth_mm) + " mm";
    std::string items;
    for (elements::Layer layer : part.layers) {
      layer.name = LayerName(setup, layer, words);
      Append(items, Item(layer));
    }
    text += items;
    if (part.stratum < 0) continue;
    const std::string connection = ConnectionText(setup.multilayer, part.stratum, words);
    if (!connection.empty()) text += " [" + connection + "]";
  }
  return text;
}

std::string WholeDescription(const Setup& setup, const elements::CalculationRow& row, const Words& words) {
  if (row.stacks.Has(Stack::kComponents)) return FacadePart(setup, words);
  if (row.stacks.Has(Stack::kBase))
    return LiningPart(setup, row.orientation == elements::Orientation::kCeiling, words);
  if (row.stacks.Has(Stack::kMultilayer)) return MultilayerPart(setup, words);
  if (row.stacks.size() == 1) return ItemsOf(setup, *row.stacks.begin());
  return row.family == Family::kImpact ? FloorPart(setup) : DoublePart(setup, row.stacks, words);
}

}  // namespace

std::string CompilaDescrizioneParete1(const Setup& setup) { return ItemsOf(setup, Stack::kLeaf1); }
std::string CompilaDescrizioneParete2(const Setup& setup) { return ItemsOf(setup, Stack::kLeaf2); }
std::string CompilaDescrizioneIntercapedine(const Setup& setup) { return ItemsOf(setup, Stack::kCavity); }
std::string CompilaDescrizionePareteSEA1(const Setup& setup) { return ItemsOf(setup, Stack::kSeaLeaf1); }
std::string CompilaDescrizionePareteSEA2(const Setup& setup) { return ItemsOf(setup, Stack::kSeaLeaf2); }

std::string CompilaDescrizioneIntercapedineSEA(const Setup& setup, const Words& words) {
  const elements::Part cavity = elements::PartOf(setup, Stack::kSeaCavity);
  const std::string depth = " (" + FormatShortest(*cavity.depth_mm) + " mm)";
  if (cavity.layers.empty()) return kNextPart + words(kEmptySeaCavityRow) + depth;
  return kNextPart + UpperCase(words(kCavityRow)) + depth + ": " + ItemsOf(setup, Stack::kSeaCavity);
}

std::string ElementDescription(const Setup& setup, const Words& words) {
  if (!setup.calculation) return {};
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  if (row.family == Family::kFacade) return CountedParts(setup, words);
  // Stored descriptions go by the family and call a floor with a floating screed a double wall.
  if (row.stacks.Has(Stack::kResilient)) return FloorInWords(setup, words);
  return WholeDescription(setup, row, words);
}

std::string ResultDescription(const Setup& setup, const Words& words) {
  if (!setup.calculation) return {};
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  const std::string text = WholeDescription(setup, row, words);
  std::string cut = FirstCharacters(text, kLongestDescription);
  if (row.family == Family::kFacade && cut.size() < text.size()) {
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
