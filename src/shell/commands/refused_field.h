#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::shell {

/// The control that a refused run asks to correct, and the line that says why.
struct RefusedField {
  QString control{};
  MessageLine reason{};

  bool operator==(const RefusedField&) const = default;
};

/// What to correct first after a run of `setup` ended with `messages`; nothing where no single field is to
/// blame.
std::optional<RefusedField> FieldToCorrect(const elements::Setup& setup,
                                           const std::vector<Message>& messages);

/// The control of band `band` of an element: 0 the base element, 1 to 9 a component.
QString BandControl(int element, std::size_t band);

}  // namespace velmar::shell
