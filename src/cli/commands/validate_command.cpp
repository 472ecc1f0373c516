#include "cli/commands/validate_command.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

#include "cli/output/outcome_json.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "storage/validation/measured_data.h"
#include "validation/accuracy.h"
#include "validation/model_choice.h"
#include "validation/model_prediction.h"

namespace velmar::cli {
namespace {

using validation::AccuracyRow;

bool IsMarked(const AccuracyRow& row) {
  return std::ranges::any_of(validation::ModelRules(), [&](const validation::ModelRule& rule) {
    return RowOf(rule.kind).id == row.group && rule.model == row.model;
  });
}

nlohmann::json BandsJson(const validation::BandSummary& bands) {
  nlohmann::json json = {{"n", bands.count}};
  if (bands.low) json["63-125"] = *bands.low;
  if (bands.mid) json["250-500"] = *bands.mid;
  if (bands.high) json["1000-4000"] = *bands.high;
  return json;
}

nlohmann::json TableJson(const std::vector<AccuracyRow>& table) {
  nlohmann::json rows = nlohmann::json::array();
  for (const AccuracyRow& row : table) {
    nlohmann::json json = {{"group", row.group},
                           {"model", row.model},
                           {"quantity", row.quantity},
                           {"n", row.errors.count},
                           {"sources", row.errors.sources},
                           {"bias", row.errors.bias},
                           {"spread", row.errors.spread},
                           {"rms", row.errors.rms},
                           {"rms_source_out", row.errors.rms_source_out},
                           {"worst", row.errors.worst},
                           {"within_3dB", row.errors.within_3db},
                           {"marked", IsMarked(row)}};
    if (row.bands.count > 0) json["bands"] = BandsJson(row.bands);
    rows.push_back(std::move(json));
  }
  return rows;
}

nlohmann::json RowsJson(const validation::Accuracy& accuracy) {
  nlohmann::json rows = nlohmann::json::array();
  for (const validation::Prediction* prediction : accuracy.Compared()) {
    rows.push_back({{"measured", prediction->measured},
                    {"group", prediction->group},
                    {"model", prediction->model},
                    {"quantity", prediction->quantity},
                    {"predicted", prediction->predicted},
                    {"value", prediction->value}});
  }
  return rows;
}

nlohmann::json ValidationJson(const elements::MeasuredData& data,
                              const validation::PredictionOutcome& outcome) {
  const validation::Accuracy accuracy(outcome.predictions);
  const validation::CoverageFigures coverage = accuracy.Coverages();
  nlohmann::json uncovered = nlohmann::json::array();
  for (const auto& part : data.uncovered)
    uncovered.push_back({{"measured", part.id}, {"reason", part.reason}});
  for (const auto& part : outcome.refused)
    uncovered.push_back({{"measured", part.id}, {"reason", part.reason}});
  return {{"table", TableJson(accuracy.Table())},
          {"rows", RowsJson(accuracy)},
          {"coverage",
           {{"leave_one_out", coverage.leave_one_out.Share()},
            {"leave_one_source_out", coverage.leave_one_source_out.Share()}}},
          {"not_covered", std::move(uncovered)}};
}

std::string Column(const std::string& text, std::size_t width) {
  return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

void WriteTable(const elements::MeasuredData& data, const validation::PredictionOutcome& outcome,
                const presentation::Words& words, std::ostream& out) {
  const validation::Accuracy accuracy(outcome.predictions);
  out << words(kValidationHeadingRow) << '\n';
  std::string group;
  for (const AccuracyRow& row : accuracy.Table()) {
    if (row.group != group) out << '\n' << (group = row.group) << '\n';
    const validation::ErrorSummary& errors = row.errors;
    out << Column(std::to_string(errors.count), 5) << Column(FormatFixed(errors.bias, 1), 7)
        << Column(FormatFixed(errors.spread, 1), 6) << Column(FormatFixed(errors.rms, 1), 6)
        << Column(FormatFixed(errors.worst, 1), 7) << Column(FormatFixed(100.0 * errors.within_3db, 0), 5)
        << " % " << (IsMarked(row) ? "* " : "  ") << row.model
        << (row.quantity == "Rw" ? "" : " (" + row.quantity + ")") << '\n';
  }
  const validation::CoverageFigures coverage = accuracy.Coverages();
  out << '\n'
      << words(kCoverageRow) << ": " << FormatFixed(100.0 * coverage.leave_one_out.Share(), 0) << " %, "
      << FormatFixed(100.0 * coverage.leave_one_source_out.Share(), 0) << " %\n";
  out << '\n' << words(kNotCoveredRow) << ": " << data.uncovered.size() << '\n';
  for (const auto& part : data.uncovered) out << "  " << part.id << ": " << part.reason << '\n';
}

}  // namespace

ExitCode Execute(const ValidateCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    const elements::MeasuredData data = storage::ReadMeasuredData(services.validation_folder);
    const validation::PredictionOutcome outcome = validation::PredictWithAllModels(data);
    if (command.json) {
      WriteJson(ValidationJson(data, outcome), out);
    } else {
      WriteTable(data, outcome, services.words, out);
    }
    return ExitCode::kDone;
  } catch (const std::runtime_error& failure) {
    errors << services.words(kNoMeasurementsRow) << ' ' << failure.what() << '\n';
    return ExitCode::kFailed;
  }
}

}  // namespace velmar::cli
