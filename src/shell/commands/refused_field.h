#pragma once

#include <QString>

#include "elements/fields.h"

namespace velmar::shell {

/// The name of the control in which a field is entered; that of a layer's material for the material's values.
QString ControlOf(const elements::FieldId& id);

/// The control of band `band` of an element: 0 the base element, 1 to 9 a component.
QString BandControl(int element, std::size_t band);

}  // namespace velmar::shell
