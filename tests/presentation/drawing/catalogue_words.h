#pragma once

#include "presentation/texts/words.h"

namespace velmar::presentation {

/// The Italian words of the shipped message files.
/// @throws std::runtime_error when a file cannot be read
Words CatalogueWords();

}  // namespace velmar::presentation
