#pragma once

#include <string_view>

#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::validation {

/// How a model comes to its result: what stands behind "why?".
struct ModelRoute {
  MessageLine model{};
  MessageLine source{};
  MessageLine assumptions{};
  MessageLine limits{};
  Message inputs{};      ///< what it was given of the set-up, a line each
  MessageLine reason{};  ///< why it is marked for this kind of element; empty where it is not
};

/// The route of the model `id` of ModelOpinion for `setup`.
ModelRoute RouteOf(std::string_view id, const elements::Setup& setup);

}  // namespace velmar::validation
