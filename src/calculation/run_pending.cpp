#include "calculation/family_runs.h"

// The runs whose models are not on this branch yet.
namespace velmar::calculation {

RunOutcome RunSingleWall(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunDoubleWall(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunFloatingScreedFloor(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunLightDoubleWall(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunSingleSeaWall(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunDoubleSeaWall(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunSeaLining(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunGenericLining(const RunRequest&) { return Refused({{kNoCalculationRow}}); }
RunOutcome RunImpactFloor(const RunRequest&) { return Refused({{kNoCalculationRow}}); }

}  // namespace velmar::calculation
