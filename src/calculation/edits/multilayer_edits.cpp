#include "calculation/edits/multilayer_edits.h"

#include <algorithm>

#include "calculation/edits/count_rules.h"

namespace velmar::calculation {
namespace {

using elements::Multilayer;
using elements::Stratum;
using elements::StratumKind;

constexpr int kCap = Multilayer::kCapacity;
// What such a row usually is thick, mm.
constexpr const char* kUsualInterlayer = "0,76";
constexpr const char* kUsualAirGap = "50";

Stratum& At(Multilayer& list, int index) { return list.strata.at(static_cast<std::size_t>(index)); }

auto Iterator(Multilayer& list, int index) { return list.strata.begin() + index; }

bool IsInUse(const Multilayer& list, int index) { return index >= 0 && index < list.Count(); }

bool IsInterlayer(StratumKind kind) { return elements::HasThicknessAlone(kind) && kind != StratumKind::kAir; }

bool IsPlate(StratumKind kind) { return kind == StratumKind::kPlate || kind == StratumKind::kBondedPlate; }

void TakeConnection(const Stratum& from, Stratum& to) {
  to.connection = from.connection;
  to.connection_text = from.connection_text;
}

/// Every row of a cavity holds what its first row does, so that any of them can be the first.
void SpreadConnections(Multilayer& list) {
  for (int i = 1; i < list.Count(); ++i) {
    if (elements::IsBetweenLeaves(At(list, i).kind) && !list.BeginsCavity(i))
      TakeConnection(At(list, i - 1), At(list, i));
  }
}

/// Row `index` is new where it stands: in a cavity it is joined as its neighbours are.
void JoinItsCavity(Multilayer& list, int index) {
  if (!elements::IsBetweenLeaves(At(list, index).kind)) return;
  for (const int neighbour : {index - 1, index + 1}) {
    if (!IsInUse(list, neighbour) || !elements::IsBetweenLeaves(At(list, neighbour).kind)) continue;
    TakeConnection(At(list, neighbour), At(list, index));
    return;
  }
}

}  // namespace

void EnterStratumCount(elements::Setup& setup, const std::string& text) {
  setup.multilayer.count = elements::CountOf(CappedCount(text, kCap), 1, kCap);
}

void ChooseStratumKind(elements::Setup& setup, int index, StratumKind kind) {
  Multilayer& list = setup.multilayer;
  Stratum& stratum = At(list, index);
  SpreadConnections(list);
  // Nobody means an interlayer of 50 mm, nor an air gap of 0.76.
  if (IsInterlayer(kind) && !IsInterlayer(stratum.kind)) stratum.thickness_text = kUsualInterlayer;
  if (kind == StratumKind::kAir && IsInterlayer(stratum.kind)) stratum.thickness_text = kUsualAirGap;
  const bool comes = elements::IsBetweenLeaves(kind) && !elements::IsBetweenLeaves(stratum.kind);
  stratum.kind = kind;
  if (comes) JoinItsCavity(list, index);
}

bool InsertStratum(elements::Setup& setup, int place) {
  Multilayer& list = setup.multilayer;
  if (place < 0 || place > list.Count() || list.Count() == kCap) return false;
  SpreadConnections(list);
  const bool at_leaf = !elements::IsBetweenLeaves(At(list, std::max(0, place - 1)).kind);
  // The first row that is not in use comes, with the material that it has.
  std::rotate(Iterator(list, place), Iterator(list, list.Count()), Iterator(list, list.Count()) + 1);
  list.count = list.Count() + 1;
  Stratum& stratum = At(list, place);
  stratum.kind = at_leaf ? StratumKind::kAir : StratumKind::kPlate;
  stratum.thickness_text = kUsualAirGap;
  TakeConnection(Stratum{}, stratum);
  JoinItsCavity(list, place);
  return true;
}

bool DuplicateStratum(elements::Setup& setup, int index) {
  Multilayer& list = setup.multilayer;
  if (!IsInUse(list, index) || list.Count() == kCap) return false;
  SpreadConnections(list);
  std::rotate(Iterator(list, index + 1), Iterator(list, list.Count()), Iterator(list, list.Count()) + 1);
  list.count = list.Count() + 1;
  At(list, index + 1) = At(list, index);
  return true;
}

bool RemoveStratum(elements::Setup& setup, int index) {
  Multilayer& list = setup.multilayer;
  if (!IsInUse(list, index) || list.Count() == 1) return false;
  SpreadConnections(list);
  std::rotate(Iterator(list, index), Iterator(list, index + 1), Iterator(list, list.Count()));
  list.count = list.Count() - 1;
  return true;
}

bool MoveStratum(elements::Setup& setup, int from, int to) {
  Multilayer& list = setup.multilayer;
  if (!IsInUse(list, from) || !IsInUse(list, to)) return false;
  SpreadConnections(list);
  if (from < to) {
    std::rotate(Iterator(list, from), Iterator(list, from + 1), Iterator(list, to + 1));
  } else {
    std::rotate(Iterator(list, to), Iterator(list, from), Iterator(list, from + 1));
  }
  if (from != to) JoinItsCavity(list, to);
  return true;
}

void TurnStrata(elements::Setup& setup) {
  Multilayer& list = setup.multilayer;
  SpreadConnections(list);
  // The first plate of a leaf says nothing about its joint: all say what the second one does.
  for (int i = 1; i < list.Count(); ++i) {
    const bool second = IsPlate(At(list, i).kind) && IsPlate(At(list, i - 1).kind) &&
                        (i == 1 || !IsPlate(At(list, i - 2).kind));
    if (second) At(list, i - 1).kind = At(list, i).kind;
  }
  std::reverse(Iterator(list, 0), Iterator(list, list.Count()));
}

}  // namespace velmar::calculation
