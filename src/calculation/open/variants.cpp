#include "calculation/open/variants.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "elements/setup_text.h"

namespace velmar::calculation {
namespace {

using elements::Setup;
using elements::Variant;

/// Changes the list of variants in `setup`.
template <typename Change>
void Edit(Setup& setup, Change&& change) {
  std::vector<Variant> variants = VariantsOf(setup.further);
  std::forward<Change>(change)(variants);
  PutVariants(setup.further, variants);
}

Variant& At(std::vector<Variant>& variants, int index) {
  return variants.at(static_cast<std::size_t>(index));
}

/// `setup` without what belongs to the project.
Setup Alone(Setup setup) {
  setup.information = {};
  setup.further = {};
  return setup;
}

/// @throws std::logic_error when the text would not give the set-up back
void Keep(Variant& variant, const Setup& setup, const std::optional<elements::ResultSet>& result) {
  variant.setup_text = elements::WriteSetupText(setup);
  if (elements::ReadSetupText(variant.setup_text) != Alone(setup))
    throw std::logic_error("the set-up does not read back from a variant");
  variant.result_text = result ? WriteVariantResult(elements::VariantResultOf(*result)) : std::string();
}

}  // namespace

std::string NextVariantName(const Setup& setup) {
  for (char letter = 'A'; letter < 'Z'; ++letter) {
    std::string name(1, letter);
    if (IsFreeVariantName(setup, name)) return name;
  }
  return "Z";
}

bool IsFreeVariantName(const Setup& setup, const std::string& name, int except) {
  if (name.find_first_not_of(' ') == std::string::npos) return false;
  const std::vector<Variant> variants = VariantsOf(setup.further);
  for (std::size_t i = 0; i < variants.size(); ++i) {
    if (static_cast<int>(i) != except && variants[i].name == name) return false;
  }
  return true;
}

bool CanFixVariant(const Setup& setup) {
  return setup.calculation && VariantsOf(setup.further).size() < elements::kMostVariants &&
         elements::ReadSetupText(elements::WriteSetupText(setup)) == Alone(setup);
}

void FixVariant(Setup& setup, const std::string& name, const std::optional<elements::ResultSet>& result) {
  if (!CanFixVariant(setup) || !IsFreeVariantName(setup, name))
    throw std::logic_error("no room for the variant " + name);
  Variant variant{.name = name};
  Keep(variant, setup, result);
  Edit(setup, [&](std::vector<Variant>& variants) { variants.push_back(std::move(variant)); });
}

void FixVariantAgain(Setup& setup, int index, const std::optional<elements::ResultSet>& result) {
  Edit(setup, [&](std::vector<Variant>& variants) { Keep(At(variants, index), setup, result); });
}

void RenameVariant(Setup& setup, int index, const std::string& name) {
  if (!IsFreeVariantName(setup, name, index)) throw std::logic_error("no name for a variant: " + name);
  Edit(setup, [&](std::vector<Variant>& variants) { At(variants, index).name = name; });
}

void MoveVariant(Setup& setup, int from, int to) {
  Edit(setup, [&](std::vector<Variant>& variants) {
    Variant moved = std::move(At(variants, from));
    static_cast<void>(At(variants, to));
    variants.erase(variants.begin() + from);
    variants.insert(variants.begin() + to, std::move(moved));
  });
}

void RemoveVariant(Setup& setup, int index) {
  Edit(setup, [&](std::vector<Variant>& variants) {
    static_cast<void>(At(variants, index));
    variants.erase(variants.begin() + index);
  });
}

std::optional<Setup> SetupOfVariant(const Setup& setup, const Variant& variant) {
  std::optional<Setup> of_variant = elements::ReadSetupText(variant.setup_text);
  if (!of_variant || !of_variant->calculation) return std::nullopt;
  of_variant->information = setup.information;
  of_variant->further = setup.further;
  return of_variant;
}

bool IsVariant(const Setup& setup, const Variant& variant) {
  return elements::ReadSetupText(variant.setup_text) == Alone(setup);
}

bool GoToVariant(OpenCalculation& open, int index) {
  const std::vector<Variant> variants = VariantsOf(open.Setup().further);
  if (index < 0 || index >= static_cast<int>(variants.size())) return false;
  const Variant& variant = variants[static_cast<std::size_t>(index)];
  std::optional<Setup> setup = SetupOfVariant(open.Setup(), variant);
  if (!setup) return false;
  if (*setup != open.Setup())
    open.Edit([&](Setup& now) { now = *std::move(setup); }, Step{StepKind::kVariantTaken, {.index = index}});
  const std::optional<elements::VariantResult> result = variant.Result();
  if (!result || open.Result()) return true;
  open.Run([&](const Message&) { return result->outside_ranges; });
  return true;
}

}  // namespace velmar::calculation
