#pragma once

#include <span>

#include "elements/catalogue.h"
#include "foundation/message.h"

namespace velmar::shell {

/// All calculations in the order of the menu.
std::span<const elements::Calculation> InMenuOrder();

/// The caption of a calculation's menu entry: its words and, behind a relation, "[relazione sperimentale
/// 10]".
MessageLine MenuCaption(elements::Calculation calculation);

}  // namespace velmar::shell
