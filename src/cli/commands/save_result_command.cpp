#include "cli/commands/save_result_command.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "application/projects.h"
#include "calculation/open/open_calculation.h"
#include "cli/output/failure_report.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/message_rows.h"
#include "presentation/texts/descriptions.h"
#include "presentation/texts/result_notes.h"
#include "storage/results/result_to_save.h"
#include "storage/results/results_store.h"

namespace velmar::cli {
namespace {

ExitCode Store(const SaveResultCommand& command, const Services& services,
               const calculation::OpenCalculation& open, std::ostream& out, std::ostream& errors) {
  const elements::Setup& setup = open.Setup();
  const storage::SavedResult row =
      storage::ResultToSave(setup, open.Result().value(),
                            {.name = command.name,
                             .description = presentation::ResultDescription(setup, services.words),
                             .thickness_mm = open.CurrentTotals().thickness_mm,
                             .mass_kg_m2 = open.CurrentTotals().surface_mass_kg_m2,
                             .messages = presentation::Joined(presentation::RangeNotes(
                                 *setup.calculation, *open.Result(), services.words))});
  storage::ResultsStore store(services.result_database);
  switch (store.Save(storage::TableFor(RowOf(*setup.calculation).family), row)) {
    case storage::SaveStatus::kSaved:
      if (command.json) WriteJson(nlohmann::json{{"saved", command.name}}, out);
      return ExitCode::kDone;
    case storage::SaveStatus::kNameExists:
      WriteMessage({{kResultExistsRow}}, services.words, errors);
      return ExitCode::kNoResult;
    case storage::SaveStatus::kBadName:
      WriteMessage({{kBadResultNameRow}}, services.words, errors);
      return ExitCode::kNoResult;
    case storage::SaveStatus::kNoName:
      WriteMessage({{kSavePromptRow}}, services.words, errors);
      return ExitCode::kNoResult;
  }
  return ExitCode::kFailed;
}

}  // namespace

ExitCode Execute(const SaveResultCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    calculation::OpenCalculation open;
    open.Replace(application::OpenProject(command.project, {}, services.materials).setup);
    const calculation::RunOutcome outcome =
        open.Run([&](const Message&) { return command.go_on_outside_ranges; });
    for (const Message& message : outcome.messages) WriteMessage(message, services.words, errors);
    if (!outcome.result) {
      return outcome.status == calculation::RunStatus::kFailed ? ExitCode::kFailed : ExitCode::kNoResult;
    }
    return Store(command, services, open, out, errors);
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
