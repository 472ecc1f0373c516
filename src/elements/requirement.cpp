#include "elements/requirement.h"

namespace velmar::elements {

std::optional<double> RequirementOf(const Setup& setup) { return setup.further.Get(kRequirementKey); }

void SetRequirement(Setup& setup, std::optional<double> rating_db) {
  setup.further.Set(kRequirementKey, rating_db);
}

std::optional<double> MarginTo(double required_db, const ResultSet& result) {
  if (result.lnw) return required_db - *result.lnw;
  if (result.rw) return *result.rw - required_db;
  return std::nullopt;
}

}  // namespace velmar::elements
