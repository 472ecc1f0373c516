#pragma once

#include "manual_builder/directives.h"
#include "presentation/texts/words.h"
#include "validation/accuracy.h"

namespace velmar::manual {

/// The directives that tell tested errors: "errori" (groups of measured constructions, each as the table of
/// accuracy names it, "=" and its name in the manual's language) and "copertura" (how often the intervals
/// held).
void AddAccuracyFigures(const validation::Accuracy& accuracy, const presentation::Words& words,
                        Directives& directives);

}  // namespace velmar::manual
