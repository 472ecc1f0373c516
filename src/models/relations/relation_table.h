#pragma once

#include <limits>
#include <span>
#include <string_view>

#include "acoustics/constructions.h"
#include "foundation/message.h"
#include "models/relations/relation_input.h"

namespace velmar::models {

using acoustics::RelationId;

/// Where a regression was measured: outside of lowest..highest (both inside) the user is asked.
struct RelationRange {
  double (*quantity)(const RelationInput&) = nullptr;
  double lowest = -std::numeric_limits<double>::infinity();
  double highest = std::numeric_limits<double>::infinity();
  MessageRow question;
  std::string_view unit{};      ///< of the quantity; empty for a choice, which has none
  const char* words = nullptr;  ///< asked instead of a row
};

/// One relation of the table.
struct Relation {
  std::span<const RelationRange> ranges;  ///< in the order of their checks
  double (*rating)(const RelationInput&) = nullptr;
};

/// The table row of `id`.
const Relation& FindRelation(RelationId id);

}  // namespace velmar::models
