#pragma once

#include <optional>
#include <vector>

#include "elements/setup.h"

namespace velmar::calculation {

// The parts of a facade as one table.

/// What a row of the table tells of a part beside what was entered.
struct FacadeRow {
  /// Of the opaque part what the components leave of the whole; of a component its own; 0 for a small
  /// element; nothing where an area is missing. m²
  std::optional<double> area_m2{};
  /// Rw, or Dn,e,w of a small element, with its terms: as entered in the simplified form, else after ISO
  /// 717-1 from the band values; nothing where one is missing. dB
  std::optional<double> rating_db{};
  std::optional<double> c_db{};
  std::optional<double> ctr_db{};
  /// Share of the energy that the facade lets through, percent; nothing while the facade cannot be summed up.
  std::optional<double> share_percent{};
};

/// The opaque part, then each component. What is missing leaves its cells empty; nothing is thrown.
std::vector<FacadeRow> FacadeOverview(const elements::Setup& setup);

// Components keep all they hold; those behind the last one in use are a reserve, as the rows of a table of
// layers are.

bool CanAddComponent(const elements::Setup& setup);
bool CanRemoveComponent(const elements::Setup& setup);
/// The first component of the reserve is in use from now on, as by its count.
/// @throws std::out_of_range where CanAddComponent() says no
void AddComponent(elements::Setup& setup);
/// The number of the component that a further part becomes: the last one in use while nothing is entered in
/// it, else the first of the reserve. Nothing where there is no room.
std::optional<int> FreeComponent(const elements::Setup& setup);
/// Component `number` (from 1) stands twice, one behind the other.
/// @throws std::out_of_range where CanAddComponent() says no, or for a component that is not in use
void DuplicateComponent(elements::Setup& setup, int number);
/// Component `number` goes to the reserve, and those behind it move up.
/// @throws std::out_of_range where CanRemoveComponent() says no, or for a component that is not in use
void RemoveComponent(elements::Setup& setup, int number);
/// Component `from` stands in place `to`. @throws std::out_of_range for components that are not in use
void MoveComponent(elements::Setup& setup, int from, int to);

}  // namespace velmar::calculation
