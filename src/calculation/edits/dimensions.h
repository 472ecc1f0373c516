#pragma once

#include <string>

#include "elements/setup.h"

namespace velmar::calculation {

/// Whether `text` is a dimension that a dialog takes: a number other than 0.
bool IsDimension(const std::string& text);

/// The dimensions of the element in metres: they become its width and height, or the area of a facade with
/// one decimal, ties to even. @param width, height texts of which IsDimension() holds
void EnterDimensions(elements::Setup& setup, const std::string& width, const std::string& height);

}  // namespace velmar::calculation
