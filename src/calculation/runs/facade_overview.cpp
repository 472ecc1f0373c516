#include "calculation/runs/facade_overview.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "acoustics/airborne_rating.h"
#include "calculation/runs/facade_input.h"
#include "foundation/decimal.h"
#include "foundation/failure.h"

namespace velmar::calculation {
namespace {

using elements::Facade;
using elements::Setup;

std::optional<double> AreaOf(const elements::FacadeComponent& component) {
  if (component.area_text == elements::kSmallElementArea) return 0.0;
  return ParseDecimal(component.area_text);
}

/// What the components leave; nothing while an area is missing.
std::optional<double> OpaqueArea(const Setup& setup) {
  std::optional<double> left = ParseDecimal(setup.base.area_text);
  for (int i = 0; left && i < setup.facade.Count(); ++i) {
    const auto area = AreaOf(setup.facade.components.at(static_cast<std::size_t>(i)));
    left = area ? std::optional(*left - std::abs(*area)) : std::nullopt;
  }
  return left;
}

/// The spectrum in the boxes; nothing while a rated band is missing.
std::optional<acoustics::Spectrum> SpectrumOf(const elements::BandTexts& texts) {
  acoustics::Spectrum spectrum{};
  for (std::size_t band = acoustics::kFirstRatedBand; band <= acoustics::kLastRatedBand; ++band) {
    const std::optional<double> level = ParseDecimal(texts.at(band));
    if (!level || *level == 0.0) return std::nullopt;
    spectrum.at(band) = std::abs(*level);
  }
  return spectrum;
}

template <typename Element>
void FillRatings(FacadeRow& row, const Element& element, bool simplified) {
  if (simplified) {
    row.rating_db = ParseDecimal(element.rating_text);
    row.c_db = ParseDecimal(element.c_text);
    row.ctr_db = ParseDecimal(element.ctr_text);
    return;
  }
  const auto spectrum = SpectrumOf(element.band_texts);
  if (!spectrum) return;
  try {
    const double rating = acoustics::RatingOfShift(acoustics::FindShift(*spectrum));
    const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(*spectrum, rating);
    row.rating_db = rating;
    row.c_db = terms.c;
    row.ctr_db = terms.ctr;
  } catch (const ArithmeticFailure&) {
    // Levels that no rating exists for leave the cells empty; the run says what is wrong.
  }
}

std::optional<std::vector<double>> SharesOf(const Setup& setup) {
  if (FindMissingFacadeValue(setup)) return std::nullopt;
  try {
    const models::CompositeElementInput input = FacadeInputOf(setup);
    return setup.facade.simplified ? models::SharesByRating(input) : models::SharesByBands(input);
  } catch (const ArithmeticFailure&) {
    return std::nullopt;
  }
}

void SetCount(Setup& setup, int count) { setup.facade.count_text = std::to_string(count); }

void RequireComponent(const Setup& setup, int number) {
  if (number < 1 || number > setup.facade.Count())
    throw std::out_of_range("no component " + std::to_string(number));
}

}  // namespace

std::vector<FacadeRow> FacadeOverview(const Setup& setup) {
  const bool simplified = setup.facade.simplified;
  std::vector<FacadeRow> rows(static_cast<std::size_t>(setup.facade.Count()) + 1);
  rows[0].area_m2 = OpaqueArea(setup);
  FillRatings(rows[0], setup.base, simplified);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const elements::FacadeComponent& component = setup.facade.components.at(i - 1);
    rows[i].area_m2 = AreaOf(component);
    FillRatings(rows[i], component, simplified);
  }
  if (const auto shares = SharesOf(setup)) {
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].share_percent = 100.0 * shares->at(i);
  }
  return rows;
}

bool CanAddComponent(const Setup& setup) { return setup.facade.Count() < Facade::kCapacity; }

bool CanRemoveComponent(const Setup& setup) { return setup.facade.Count() > 1; }

void AddComponent(Setup& setup) {
  if (!CanAddComponent(setup)) throw std::out_of_range("no place for one more component");
  SetCount(setup, setup.facade.Count() + 1);
}

std::optional<int> FreeComponent(const Setup& setup) {
  const int last = setup.facade.Count();
  elements::FacadeComponent entered = setup.facade.components.at(static_cast<std::size_t>(last - 1));
  entered.tightness_class = 0;
  if (entered == elements::FacadeComponent{}) return last;
  return CanAddComponent(setup) ? std::optional(last + 1) : std::nullopt;
}

void DuplicateComponent(Setup& setup, int number) {
  RequireComponent(setup, number);
  AddComponent(setup);
  const auto first = setup.facade.components.begin();
  std::rotate(first + number, first + setup.facade.Count() - 1, first + setup.facade.Count());
  *(first + number) = *(first + number - 1);
}

void RemoveComponent(Setup& setup, int number) {
  RequireComponent(setup, number);
  if (!CanRemoveComponent(setup)) throw std::out_of_range("no component to spare");
  const auto first = setup.facade.components.begin();
  std::rotate(first + number - 1, first + number, first + setup.facade.Count());
  SetCount(setup, setup.facade.Count() - 1);
}

void MoveComponent(Setup& setup, int from, int to) {
  RequireComponent(setup, from);
  RequireComponent(setup, to);
  const auto first = setup.facade.components.begin();
  if (from < to) {
    std::rotate(first + from - 1, first + from, first + to);
  } else if (to < from) {
    std::rotate(first + to - 1, first + from - 1, first + from);
  }
}

}  // namespace velmar::calculation
