#pragma once

#include <QString>

#include "presentation/texts/words.h"

class QWidget;

namespace velmar::shell {

/// What a field made of an entry that could not stand.
enum class Correction {
  kUnfinished,       ///< left with half a number: the number before stands again
  kNoNumber,         ///< what was pasted is no number: nothing was changed
  kNotPositive,      ///< a thickness not above 0 became 10
  kAboveHighest,     ///< a count above its highest
  kUnknownMaterial,  ///< no material has that name: the one before stands again
  kNoHit,            ///< no material has that in its name: the text waits to be corrected
  kNoKeyword,        ///< no keyword has that in it
  kNoEntry,          ///< no entry of a list has that in it
  kRaised,           ///< a cavity was thinner than what it holds
};

/// Beside `field` stands for a while what was corrected; `limit` is the highest count where that is the
/// matter.
void NoteCorrection(QWidget* field, Correction correction, int limit, const presentation::Words& words);

}  // namespace velmar::shell
