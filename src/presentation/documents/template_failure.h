#pragma once

#include <string>

#include "foundation/failure.h"

namespace velmar::presentation {

/// A report template that cannot be used. Nothing has been written.
class TemplateFailure : public Failure {
 public:
  /// @param cause one of the rows above
  /// @param detail what was found, in English
  TemplateFailure(MessageRow cause, std::string detail);
};

}  // namespace velmar::presentation
