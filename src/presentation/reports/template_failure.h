#pragma once

#include <string>

#include "foundation/failure.h"

namespace velmar::presentation {

/// The template is damaged, cut off, or of another kind.
inline constexpr MessageRow kTemplateDamagedRow{1550};
/// The template is protected by a password.
inline constexpr MessageRow kTemplateProtectedRow{1551};
/// The template holds what no report template needs and what can do harm.
inline constexpr MessageRow kTemplateHostileRow{1552};
/// The template is larger than a report template can sensibly be.
inline constexpr MessageRow kTemplateTooLargeRow{1553};

/// A report template that cannot be used. Nothing has been written.
class TemplateFailure : public Failure {
 public:
  /// @param cause one of the rows above
  /// @param detail what was found, in English
  TemplateFailure(MessageRow cause, std::string detail);
};

}  // namespace velmar::presentation
