#pragma once

#include <array>
#include <span>

#include "elements/layers.h"

namespace velmar::presentation {

enum class SeaCavityPart { kFibre, kMass };

/// What a SEA cavity of `type` holds, near side first.
inline std::span<const SeaCavityPart> PartsOf(elements::SeaCavityType type) {
  using enum SeaCavityPart;
  static constexpr std::array kFromFibre = {kFibre, kMass, kFibre, kMass, kFibre};
  static constexpr std::array kBetweenMasses = {kMass, kFibre, kMass};
  if (type == elements::SeaCavityType::kMassFibreMass) return kBetweenMasses;
  const int count = elements::FibreCount(type) + elements::MassCount(type);
  return std::span(kFromFibre).first(static_cast<std::size_t>(count));
}

}  // namespace velmar::presentation
