#pragma once

#include <QStringList>

namespace velmar::shell {

/// The names that hold `wanted` somewhere, letter case aside, best first: those that are it, that begin with
/// it, that hold it as a word or the beginning of one, then all others; within each kind in their order.
/// Blanks around `wanted` do not count; an empty text finds every name.
QStringList RankedHits(const QStringList& names, const QString& wanted);

}  // namespace velmar::shell
