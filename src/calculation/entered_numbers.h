#pragma once

#include <string>
#include <vector>

#include "elements/layers.h"
#include "elements/setup.h"
#include "foundation/message.h"
#include "models/floors/resilient_mats.h"
#include "models/plates/plate_layer.h"

namespace velmar::calculation {

// The one place where what was typed becomes the numbers of a model.

/// The number in a field.
/// @throws ArithmeticFailure when the text is none, naming it
double EnteredNumber(const std::string& text);

/// The number in a field, 0 when it is empty.
/// @throws ArithmeticFailure when the text is none, naming it
double EnteredNumberOrZero(const std::string& text);

/// A length in a field: the number without its sign.
/// @throws ArithmeticFailure when the text is none, naming it
double EnteredLength(const std::string& text);

/// The rows of a leaf that are in use, as a plate model reads them.
std::vector<models::PlateLayer> PlateLayers(const elements::LeafLayers& leaf);

/// The resilient rows that are in use, as a floor model reads them.
std::vector<models::ResilientMat> ResilientMatsOf(const elements::ResilientLayers& table);

}  // namespace velmar::calculation
