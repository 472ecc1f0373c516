#pragma once

#include <optional>
#include <string>

#include "elements/setup.h"

namespace velmar::calculation {

/// A stored result or a measurement that is taken as base element or as component of a facade.
struct ChosenElement {
  std::string name{};
  std::string description{};
  std::string rating_text{};  ///< Rw, or Dn,e,w of a small element, dB
  std::string c_text{};
  std::string ctr_text{};
  std::string area_text{};  ///< m²; empty: the element has none of its own
  elements::BandTexts band_texts{};
  float mass_kg_m2 = 0.0F;
  double thickness_mm = 0.0;   ///< 0: not known
  bool small_element = false;  ///< rated by its Dn,e, without an area
};

/// The base element of a lining, or the opaque part of a facade, becomes `chosen`. The facade's own area
/// stays unless there is none yet.
void TakeBaseElement(elements::Setup& setup, const ChosenElement& chosen);

/// Component `index` (from 0) becomes `chosen`. An area that was typed stays where `chosen` brings none.
void TakeComponent(elements::Setup& setup, int index, const ChosenElement& chosen);

/// `text` was typed into a box of ratings, terms or band values. Numbers, an empty box, "," and "." are kept
/// as typed; anything else empties the box.
/// @return whether a result that stands may stay: it goes when the box was emptied
bool EnterElementNumber(std::string& box, const std::string& text);

/// The same for the area of a component, which may also be "-" for a small element.
bool EnterComponentArea(std::string& box, const std::string& text);

/// Share of the whole area that component `index` (from 0) takes, in percent; 0 for a small element, nothing
/// while an area is missing. Decides nothing: the run checks the areas.
std::optional<double> AreaShare(const elements::Setup& setup, int index);

}  // namespace velmar::calculation
