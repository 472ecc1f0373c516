#include "calculation/edits/select_calculation.h"

#include "calculation/edits/cavity_rules.h"

namespace velmar::calculation {

void SelectCalculation(elements::Setup& setup, elements::Calculation calculation) {
  const elements::CalculationRow& row = RowOf(calculation);
  const elements::Defaults& defaults = row.defaults;
  setup.calculation = calculation;
  if (!defaults.width.empty()) setup.width_text = defaults.width;
  if (!defaults.height.empty()) setup.height_text = defaults.height;
  if (!defaults.support.empty()) setup.support_distance_text = defaults.support;
  if (defaults.sea_cavity) setup.sea_cavity.type = *defaults.sea_cavity;
  if (defaults.simplified) setup.facade.simplified = *defaults.simplified;
  const bool generic = setup.cavity.kind == elements::CavityKind::kGenericMaterial;
  if (generic && row.stacks.Has(elements::Stack::kCavity) && !row.generic_cavity)
    ChooseCavityKind(setup, elements::CavityKind::kFibrous);
  if (IsLining(row.family)) LeaveSeaCavityDepth(setup);
}

}  // namespace velmar::calculation
