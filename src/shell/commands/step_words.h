#pragma once

#include <QString>

#include "calculation/open/history.h"
#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

/// A step of the history in words, as they stand behind "Annulla": "spessore dello strato 2".
/// @param setup gives the layers their numbers
QString StepWords(const calculation::Step& step, const elements::Setup& setup,
                  const presentation::Words& words);

}  // namespace velmar::shell
