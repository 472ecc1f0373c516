#pragma once

#include <pugixml.hpp>

#include "presentation/documents/word_document.h"

namespace velmar::presentation {

/// Repeats the pattern rows of every table below `root`. @return whether there were any
bool RepeatPatternRows(pugi::xml_node root, const RowPattern& pattern);

}  // namespace velmar::presentation
