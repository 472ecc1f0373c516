#pragma once

#include <string>
#include <vector>

#include "elements/fields.h"
#include "elements/layers.h"
#include "elements/setup.h"
#include "foundation/failure.h"
#include "foundation/message.h"
#include "models/floors/resilient_mats.h"
#include "models/plates/plate_layer.h"

namespace velmar::calculation {

// The one place where what was typed becomes the numbers of a model.

/// A field holds no number.
class FieldFailure : public ArithmeticFailure {
 public:
  FieldFailure(const std::string& text, const elements::FieldId& field);
  const elements::FieldId& Field() const noexcept { return field_; }

 private:
  elements::FieldId field_;
};

/// The number that `text` is, as it stands in `field`.
/// @throws FieldFailure when it is none
double EnteredNumber(const std::string& text, const elements::FieldId& field);

/// The same, 0 when the field is empty.
/// @throws FieldFailure when the text is none
double EnteredNumberOrZero(const std::string& text, const elements::FieldId& field);

/// A length in a field: the number without its sign.
/// @throws FieldFailure when the text is none
double EnteredLength(const std::string& text, const elements::FieldId& field);

/// The rows of a leaf that are in use, as a plate model reads them.
std::vector<models::PlateLayer> PlateLayers(const elements::LeafLayers& leaf);

/// The resilient rows that are in use, as a floor model reads them.
std::vector<models::ResilientMat> ResilientMatsOf(const elements::ResilientLayers& table);

}  // namespace velmar::calculation
