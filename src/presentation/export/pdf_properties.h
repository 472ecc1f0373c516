#pragma once

#include <string>

#include "presentation/documents/document_properties.h"

namespace velmar::presentation {

/// Writes `properties` into `pdf`, as Qt writes it; author and subject the toolkit cannot write. The file is
/// added to, as in an incremental update (ISO 32000-1, 7.5.6): a new dictionary of properties under the
/// number of the old one. The day is that on which this is called. A file of another make stays as it is.
void AddProperties(std::string& pdf, const DocumentProperties& properties);

}  // namespace velmar::presentation
