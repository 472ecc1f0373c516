#pragma once

#include <optional>
#include <string>

#include "elements/setup.h"

namespace velmar::calculation {

/// `text` was typed into a box of ratings, terms or band values. Numbers, an empty box, and the
/// beginnings ",", "." and "-" (of a negative term) are kept as typed; anything else empties the box.
void EnterElementNumber(std::string& box, const std::string& text);

/// The same for the area of a component, which may also be "-" for a small element.
void EnterComponentArea(std::string& box, const std::string& text);

/// Share of the whole area that component `index` (from 0) takes, in percent; 0 for a small element, nothing
/// while an area is missing or negative. Decides nothing: the run checks the areas.
std::optional<double> AreaShare(const elements::Setup& setup, int index);

/// Whether `text` is a dimension that a dialog takes: a number other than 0.
bool IsDimension(const std::string& text);

/// The dimensions of the element in metres: they become its width and height, or the area of a facade with
/// one decimal, ties to even. @param width, height texts of which IsDimension() holds
void EnterDimensions(elements::Setup& setup, const std::string& width, const std::string& height);

}  // namespace velmar::calculation
