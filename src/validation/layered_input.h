#pragma once

#include <optional>

#include "elements/measured_construction.h"
#include "elements/setup.h"
#include "models/layered/layered_element.h"

namespace velmar::validation {

/// Distance of studs where a set-up has no field for it: 60 cm.
inline constexpr double kUsualStudDistanceM = 0.6;

/// What holds the boards of `setup` for the layered model where nobody says more: light steel studs for
/// connected boards, channels and separate frames as the calculation names them.
elements::Frame AssumedFrame(const elements::Setup& setup);

/// The element of `setup` as the layered model takes it; nothing where the model does not apply: floors with
/// a screed, linings, ceilings, facades, cavities with masses in them, masonry cavity walls (their ties are
/// not entered), a field that holds no number.
///
/// Materials are told by density and wave speed c = sqrt(E / rho): glass 2400 to 2600 kg/m³ with c from
/// 4000 m/s; metal from 2600 kg/m³; timber below 900 kg/m³ with c from 3000 m/s; gypsum and other boards
/// below 1300 kg/m³; masonry from there on, and every layer of a leaf from 60 kg/m² on. Boards of one leaf
/// slip on one another unless a layer of plaster (from 1150 kg/m³) bonds them. A pane with a loss factor of
/// 0.01 and more is laminated: two equal plies on 0.76 mm, acoustic from 0.05 on.
/// @param frame what holds two light leaves; kNone: AssumedFrame()
std::optional<models::LayeredElement> LayeredElementOf(const elements::Setup& setup,
                                                       elements::Frame frame = elements::Frame::kNone);

}  // namespace velmar::validation
