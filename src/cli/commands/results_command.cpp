#include "cli/commands/results_command.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "cli/output/failure_report.h"
#include "cli/output/material_table.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/message_rows.h"
#include "storage/results/results_store.h"

namespace velmar::cli {
namespace {

using storage::ResultTable;

constexpr ResultTable kTables[] = {ResultTable::kAirborne, ResultTable::kImpact, ResultTable::kLining};

const char* TableName(ResultTable table) {
  switch (table) {
    case ResultTable::kAirborne:
      return "airborne";
    case ResultTable::kImpact:
      return "impact";
    case ResultTable::kLining:
      return "lining";
  }
  return "";
}

bool IsMeant(const ResultsCommand& command, ResultTable table) {
  return !command.table || *command.table == table;
}

ExitCode List(const ResultsCommand& command, const storage::ResultsStore& store, std::ostream& out) {
  nlohmann::json list = nlohmann::json::array();
  for (const ResultTable table : kTables) {
    if (!IsMeant(command, table)) continue;
    for (const storage::ListedResult& result : store.List(table)) {
      if (command.json) {
        list.push_back(
            {{"table", TableName(table)}, {"name", result.name}, {"description", result.description}});
      } else {
        out << TableName(table) << '\t' << result.name << '\t' << result.description << '\n';
      }
    }
  }
  if (command.json) WriteJson(list, out);
  return ExitCode::kDone;
}

/// @return false when no table that is meant has the result
bool Show(const ResultsCommand& command, const storage::ResultsStore& store, std::ostream& out) {
  for (const ResultTable table : kTables) {
    if (!IsMeant(command, table)) continue;
    const auto result = store.Find(table, command.name);
    if (!result) continue;
    const Cells cells = storage::CellsFromResult(table, *result);
    if (command.json) {
      nlohmann::json json = RowJson(storage::SchemaOf(table), cells);
      json["table"] = TableName(table);
      WriteJson(json, out);
    } else {
      out << RowLines(storage::SchemaOf(table), cells);
    }
    return true;
  }
  return false;
}

bool Delete(const ResultsCommand& command, storage::ResultsStore& store, std::ostream& out) {
  if (!store.Delete(command.table.value(), command.name)) return false;
  if (command.json) WriteJson(nlohmann::json{{"deleted", command.name}}, out);
  return true;
}

}  // namespace

ExitCode Execute(const ResultsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    storage::ResultsStore store(services.result_database);
    if (command.action == ResultsAction::kList) return List(command, store, out);
    const bool found =
        command.action == ResultsAction::kShow ? Show(command, store, out) : Delete(command, store, out);
    if (found) return ExitCode::kDone;
    WriteMessage({{kUnknownStructureRow, " " + command.name}}, services.words, errors);
    return ExitCode::kNoResult;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
