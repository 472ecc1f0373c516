#include "calculation/edits/count_rules.h"

#include <algorithm>

#include "foundation/rounding.h"

namespace velmar::calculation {
namespace {

constexpr int kLeafCap = elements::LeafLayers::kCapacity;
constexpr int kCavityCap = elements::CavityLayers::kCapacity;
// What a count list can take at all; keeps a typed 1E9 a number.
constexpr int kLargestCount = 999;

}  // namespace

std::string CappedCount(const std::string& text, int cap) {
  if (text.empty()) return "1";
  const std::optional<double> number = ParseDecimal(text);
  return number && *number > cap ? std::to_string(cap) : text;
}

void EnterLeaf1Count(elements::Setup& setup, const std::string& text) {
  setup.leaf1.count = elements::CountOf(CappedCount(text, kLeafCap), 1, kLeafCap);
}

void EnterLeaf2Count(elements::Setup& setup, const std::string& text) {
  setup.leaf2.count = elements::CountOf(CappedCount(text, kLeafCap), 1, kLeafCap);
}

void EnterResilientCount(elements::Setup& setup, const std::string& text) {
  constexpr int kCap = elements::ResilientLayers::kCapacity;
  setup.resilient.count = elements::CountOf(CappedCount(text, kCap), 0, kCap);
}

void EnterSeaCount(elements::SeaLeaf& leaf, const std::string& text) {
  constexpr int kCap = elements::SeaLeaf::kCapacity;
  leaf.count = elements::CountOf(CappedCount(text, kCap), 1, kCap);
}

void EnterCavityCount(elements::Setup& setup, const std::string& text) {
  const int typed = elements::CountOf(text.empty() ? "1" : text, 1, kLargestCount);
  setup.cavity.layers.count = typed;
  if (typed > kCavityCap) setup.leaf2.count = kCavityCap;
}

void EnterComponentCount(elements::Setup& setup, const std::string& text) {
  const std::string capped = CappedCount(text, elements::Facade::kCapacity);
  setup.facade.count_text = capped == text || text.empty() ? capped : capped + " ";
}

}  // namespace velmar::calculation
