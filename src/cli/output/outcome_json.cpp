#include "cli/output/outcome_json.h"

#include <cmath>
#include <optional>
#include <ostream>

#include <nlohmann/json.hpp>

#include "foundation/message_rows.h"

namespace velmar::cli {
namespace {

using elements::ResultSet;

struct Quantity {
  const char* key;
  std::optional<double> ResultSet::*value;
};

constexpr Quantity kQuantities[] = {
    {"Rw", &ResultSet::rw},
    {"C", &ResultSet::c},
    {"Ctr", &ResultSet::ctr},
    {"X", &ResultSet::shift},
    {"DeltaRw", &ResultSet::delta_rw},
    {"RwRelation", &ResultSet::relation_rating},
    {"Fc", &ResultSet::critical_frequency_hz},
    {"EtaInt", &ResultSet::loss_factor},
    {"Mass", &ResultSet::mass_kg_m2},
    {"Bending", &ResultSet::bending_stiffness_nm},
    {"Lnw", &ResultSet::lnw},
    {"Ci", &ResultSet::ci},
    {"DeltaLnw", &ResultSet::delta_lnw},
    {"RwEstimate", &ResultSet::rw_estimate},
    {"DeltaRwEstimate", &ResultSet::delta_rw_estimate},
};

/// {"quantity", "value", "lowest", "highest", "unit"}; a range has only the ends that it has, a choice none.
nlohmann::json RangeJson(const acoustics::RangeLeft& range, const presentation::Words& words) {
  nlohmann::json json = {{"quantity", words(range.quantity)}};
  if (range.unit.empty()) return json;
  json["value"] = range.value;
  json["unit"] = range.unit;
  if (std::isfinite(range.lowest)) json["lowest"] = range.lowest;
  if (std::isfinite(range.highest)) json["highest"] = range.highest;
  return json;
}

}  // namespace

std::string StatusText(calculation::RunStatus status) {
  switch (status) {
    case calculation::RunStatus::kDone:
      return "ok";
    case calculation::RunStatus::kDeclined:
      return "declined";
    case calculation::RunStatus::kRefused:
      return "refused";
    case calculation::RunStatus::kFailed:
      return "failed";
  }
  return {};
}

nlohmann::json MessageJson(const Message& message, const presentation::Words& words) {
  nlohmann::json lines = nlohmann::json::array();
  for (const MessageLine& line : message) {
    const MessageRow row = LeadingRow(line);
    if (row == kGoOnRow) continue;
    lines.push_back({{"row", row.number < kFirstFurtherRow ? row.number : 0},
                     {"text", presentation::InWords(line, words)}});
  }
  return lines;
}

nlohmann::json ResultJson(const ResultSet& result, std::span<const elements::SingleNumber> numbers) {
  nlohmann::json json = nlohmann::json::object();
  if (result.spectrum) json["spectrum"] = *result.spectrum;
  for (const Quantity& quantity : kQuantities) {
    if (const auto& value = result.*quantity.value) json[quantity.key] = *value;
  }
  for (const elements::SingleNumber& number : numbers) json["ratings"][number.key] = number.value;
  return json;
}

nlohmann::json IntervalJson(const validation::Interval& interval) {
  return {{"quantity", interval.quantity}, {"low", interval.low}, {"high", interval.high},
          {"coverage", interval.coverage}, {"n", interval.count}, {"group", interval.group}};
}

nlohmann::json OutcomeJson(const CalculationTexts& texts, const calculation::RunOutcome& outcome,
                           std::span<const elements::SingleNumber> numbers, const calculation::Totals& totals,
                           const presentation::Words& words) {
  nlohmann::json json = outcome.result ? ResultJson(*outcome.result, numbers) : nlohmann::json::object();
  json["family"] = texts.family;
  json["variant"] = texts.variant;
  json["orientation"] = texts.orientation;
  json["status"] = StatusText(outcome.status);
  json["messages"] = nlohmann::json::array();
  for (const Message& message : outcome.messages) {
    for (auto& line : MessageJson(message, words)) json["messages"].push_back(std::move(line));
  }
  if (outcome.result) {
    for (const acoustics::RangeLeft& range : outcome.result->ranges_left)
      json["ranges_left"].push_back(RangeJson(range, words));
  }
  json["thickness"] = totals.thickness_mm;
  json["surface_mass"] = totals.surface_mass_kg_m2;
  return json;
}

void WriteJson(const nlohmann::json& json, std::ostream& out) {
  out << json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

}  // namespace velmar::cli
