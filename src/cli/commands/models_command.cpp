#include "cli/commands/models_command.h"

#include <ostream>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "cli/commands/project_run.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "validation/second_opinion.h"

namespace velmar::cli {
namespace {

using validation::ModelOpinion;

nlohmann::json OpinionJson(const ModelOpinion& opinion, validation::ElementKind kind,
                           const presentation::Words& words) {
  nlohmann::json json = ResultJson(opinion.result, {});
  json["id"] = opinion.id;
  json["name"] = presentation::InWords(opinion.name, words);
  json["best"] = opinion.best;
  if (opinion.errors) {
    json["bias"] = opinion.errors->bias;
    json["spread"] = opinion.errors->spread;
    json["n"] = opinion.errors->count;
    json["group"] = RowOf(kind).id;
  }
  if (opinion.interval.interval) json["interval"] = IntervalJson(*opinion.interval.interval);
  return json;
}

void WriteOpinion(const ModelOpinion& opinion, const presentation::Words& words, std::ostream& out) {
  const auto& result = opinion.result;
  out << presentation::InWords(opinion.name, words);
  if (opinion.best) out << " (" << words(kRecommendedRow) << ')';
  out << '\n';
  WriteRatings(result, {}, out);
  if (opinion.errors) {
    out << "  " << words(kMeanErrorRow) << ' ' << FormatFixed(opinion.errors->bias, 1) << " dB ("
        << opinion.errors->count << ' ' << words(kMeasurementsRow) << ")\n";
  }
  out << "  " << presentation::InWords(IntervalLine(opinion.interval), words) << "\n\n";
}

}  // namespace

ExitCode Execute(const ModelsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  const ProjectRun run = RunProject(command.project, services.materials, command.go_on_outside_ranges);
  for (const Message& message : run.outcome.messages) WriteMessage(message, services.words, errors);
  if (!run.setup.calculation) return CodeOf(run.outcome.status);
  const validation::SecondOpinion opinion =
      validation::FormOpinion(run.setup, run.outcome.result, services.accuracy());
  if (command.json) {
    nlohmann::json models = nlohmann::json::array();
    for (const ModelOpinion& model : opinion.models)
      models.push_back(OpinionJson(model, opinion.kind, services.words));
    nlohmann::json json = {{"calculation", run.texts.variant}, {"models", std::move(models)}};
    if (opinion.note) json["note"] = presentation::InWords(NoteLines(*opinion.note).front(), services.words);
    WriteJson(json, out);
  } else {
    for (const ModelOpinion& model : opinion.models) WriteOpinion(model, services.words, out);
    if (opinion.note) WriteMessage(NoteLines(*opinion.note), services.words, out);
  }
  return opinion.models.empty() ? CodeOf(run.outcome.status) : ExitCode::kDone;
}

}  // namespace velmar::cli
