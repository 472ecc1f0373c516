#include "cli/commands/doctor_command.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "application/store_doctor.h"
#include "cli/output/outcome_json.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"

namespace velmar::cli {
namespace {

using application::StoreFinding;
using application::StoreProblem;

/// How a problem is named in JSON, and the row that says it.
struct ProblemWords {
  const char* key = "";
  MessageRow row{};
};

ProblemWords WordsOf(StoreProblem problem) {
  switch (problem) {
    case StoreProblem::kMissing:
      return {"missing", kDoctorMissingRow};
    case StoreProblem::kDamaged:
      return {"damaged", kDoctorDamagedRow};
    case StoreProblem::kIndex:
      return {"index", kDoctorIndexRow};
    case StoreProblem::kAccess:
      return {"access", kDoctorAccessRow};
    case StoreProblem::kNoFile:
      return {"no_file", kDoctorNoFileRow};
    case StoreProblem::kUnreadable:
      return {"unreadable", kDoctorUnreadableRow};
    case StoreProblem::kLocked:
      return {"locked", kDoctorLockedRow};
    case StoreProblem::kNoTable:
      return {"table", kDoctorNoTableRow};
    case StoreProblem::kText:
      return {"text", kDoctorTextRow};
    case StoreProblem::kName:
      return {"name", kDoctorNameRow};
    case StoreProblem::kValue:
      return {"value", kDoctorValueRow};
    case StoreProblem::kAbandoned:
      return {"abandoned", kDoctorAbandonedRow};
  }
  return {};
}

nlohmann::json JsonOf(const StoreFinding& finding) {
  nlohmann::json json{{"file", finding.file.string()},
                      {"problem", WordsOf(finding.problem).key},
                      {"repaired", finding.repaired}};
  if (!finding.detail.empty()) json["detail"] = finding.detail;
  if (!finding.copy.empty()) json["copy"] = finding.copy.string();
  return json;
}

std::string LineOf(const StoreFinding& finding, const presentation::Words& words) {
  std::string line = finding.file.string() + ": " + words(WordsOf(finding.problem).row);
  if (!finding.detail.empty()) line += " " + finding.detail;
  if (finding.repaired && finding.copy.empty()) line += " " + words(kDoctorRepairedRow);
  if (!finding.copy.empty()) line += " " + words(kDoctorRepairedWithCopyRow) + " " + finding.copy.string();
  return WithReplacements(line);
}

}  // namespace

ExitCode Execute(const DoctorCommand& command, const Services& services, std::ostream& out) {
  const application::StorePlaces places{.data_folder = services.data_folder,
                                        .shipped = services.shipped_data,
                                        .reader = {services.access_reader}};
  const std::vector<StoreFinding> findings =
      command.repair ? application::RepairStores(places) : application::ExamineStores(places);
  const bool in_order = std::ranges::all_of(findings, &StoreFinding::repaired);
  if (command.json) {
    nlohmann::json list = nlohmann::json::array();
    for (const StoreFinding& finding : findings) list.push_back(JsonOf(finding));
    WriteJson({{"ok", in_order}, {"findings", std::move(list)}}, out);
  } else {
    for (const StoreFinding& finding : findings) out << LineOf(finding, services.words) << '\n';
    if (findings.empty()) out << services.words(kDoctorInOrderRow) << '\n';
    if (!findings.empty() && !command.repair) out << services.words(kDoctorHowToRepairRow) << '\n';
  }
  return in_order ? ExitCode::kDone : ExitCode::kFailed;
}

}  // namespace velmar::cli
