#pragma once

#include <limits>
#include <span>
#include <string_view>

#include "acoustics/constructions.h"
#include "foundation/message.h"
#include "models/relations/relation_input.h"

namespace velmar::models {

using acoustics::RelationId;

/// What a range is about.
struct RangeMeasure {
  MessageRow quantity{};    ///< its name; of a choice, what was chosen
  std::string_view unit{};  ///< empty for a choice, which has none
};

/// Where a regression was measured: outside of lowest..highest (both inside) the user is asked.
struct RelationRange {
  double (*quantity)(const RelationInput&) = nullptr;
  double lowest = -std::numeric_limits<double>::infinity();
  double highest = std::numeric_limits<double>::infinity();
  MessageRow question;
  RangeMeasure measure{};
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
