#pragma once

#include "presentation/documents/paragraph_text.h"
#include "presentation/documents/placeholders.h"

namespace velmar::presentation {

/// Puts the values of the known placeholders into `text`; unknown ones stay. A value is never searched for
/// placeholders itself.
void FillPlaceholders(ParagraphText& text, const Placeholders& values);

}  // namespace velmar::presentation
