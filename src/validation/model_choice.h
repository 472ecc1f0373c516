#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "elements/catalogue.h"
#include "foundation/message.h"
#include "validation/element_kind.h"

namespace velmar::validation {

/// The model that is marked for a kind of element: a fixed rule, one line a kind, with its reason.
///
/// A free choice of the model with the smallest error on the same measurements was tried and does worse on
/// sources that it has not seen: the groups are too small to choose by. So a kind has another model than the
/// layered one only where its physics says why.
struct ModelRule {
  ElementKind kind{};
  std::string_view model{};  ///< "layered", "monolithic", or the stored text of a calculation
  MessageRow reason{};
};

/// All rules, one for each kind that a rule exists for.
std::span<const ModelRule> ModelRules();

/// The rule for `kind`; nothing where the chosen calculation is all there is.
std::optional<ModelRule> RuleFor(ElementKind kind);

}  // namespace velmar::validation
