#pragma once

#include <QString>
#include <functional>

#include "presentation/texts/words.h"

class QWidget;

namespace velmar::shell {

/// What a field made of an entry that could not stand.
enum class Correction {
  kUnfinished,       ///< left with half a number: the number before stands again
  kNotPositive,      ///< a thickness not above 0 became 10
  kAboveHighest,     ///< a count above its highest
  kUnknownMaterial,  ///< no material has that name: the one before stands again
  kRaised,           ///< a cavity was thinner than what it holds
};

/// Told of a correction; `limit` is the highest count where that is the matter.
using OnCorrection = std::function<void(Correction correction, int limit)>;

/// Beside `field` stands for a while what was corrected.
void NoteCorrection(QWidget* field, Correction correction, int limit, const presentation::Words& words);

/// From now on every number, count and material field in `window` says beside itself what it corrected.
void NoteCorrections(const QWidget& window, const presentation::Words& words);

}  // namespace velmar::shell
