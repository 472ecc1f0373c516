#pragma once

#include <string>

#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// Area of the whole facade, m²: `Text7` without its sign; 0 when it holds no number.
double FacadeArea(const elements::Setup& setup);

/// Area of a component, m²; 0 for a small element.
double ComponentArea(const elements::FacadeComponent& component);

/// Area of the opaque part: what the components in use leave, m²; negative when they take too much.
double OpaqueArea(const elements::Setup& setup);

/// `Label19`: the share of `area_m2` in the facade, "12,5%"; an empty text for a facade without area.
std::string ShareText(const elements::Setup& setup, double area_m2);

/// An entry of `ComboTenutaAria`: "Classe 0 (nessuna correzione)", "Classe 1" to "Classe 4".
std::string TightnessText(int tightness_class, const Words& words);

}  // namespace velmar::presentation
