#include "shell/fields/name_search.h"

#include <array>

namespace velmar::shell {
namespace {

constexpr std::size_t kRanks = 4;

/// Where a hit stands among the others, 0 best; kRanks: no hit.
std::size_t RankOf(const QString& name, const QString& wanted) {
  if (name.compare(wanted, Qt::CaseInsensitive) == 0) return 0;
  qsizetype at = name.indexOf(wanted, 0, Qt::CaseInsensitive);
  if (at < 0) return kRanks;
  if (at == 0) return 1;
  for (; at > 0; at = name.indexOf(wanted, at + 1, Qt::CaseInsensitive)) {
    if (!name.at(at - 1).isLetterOrNumber()) return 2;
  }
  return 3;
}

}  // namespace

QStringList RankedHits(const QStringList& names, const QString& wanted) {
  const QString searched = wanted.trimmed();
  if (searched.isEmpty()) return names;
  std::array<QStringList, kRanks> hits;
  for (const QString& name : names) {
    if (const std::size_t rank = RankOf(name, searched); rank < kRanks) hits.at(rank) += name;
  }
  return hits[0] + hits[1] + hits[2] + hits[3];
}

}  // namespace velmar::shell
