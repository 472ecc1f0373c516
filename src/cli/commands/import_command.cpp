#include "cli/commands/import_command.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "cli/output/failure_report.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/message_rows.h"
#include "storage/access/conversion.h"
#include "storage/database/file_kind.h"

namespace velmar::cli {
namespace {

nlohmann::json JsonOf(const storage::Conversion& conversion) {
  nlohmann::json tables = nlohmann::json::object();
  std::int64_t rows = 0;
  for (const storage::ConvertedTable& table : conversion.tables) {
    tables[table.name] = table.rows;
    rows += table.rows;
  }
  return {{"original", conversion.original.string()}, {"rows", rows}, {"tables", std::move(tables)}};
}

}  // namespace

ExitCode Execute(const ImportCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    const storage::FileKind kind = storage::KindOf(command.file);
    if (kind != storage::FileKind::kAccess) {
      const bool missing = kind == storage::FileKind::kMissing;
      WriteMessage({{missing ? kUnreadableRow : kNoAccessFileRow, " " + command.file.string()}},
                   services.words, errors);
      return missing ? ExitCode::kFailed : ExitCode::kNoResult;
    }
    const auto conversion = storage::ConvertAccessFile({services.access_reader}, command.file,
                                                       [&command] { return command.yes; });
    if (!conversion) {
      WriteMessage(storage::ConversionQuestion(command.file), services.words, errors);
      return ExitCode::kNoResult;
    }
    if (command.json) {
      WriteJson(JsonOf(*conversion), out);
    } else {
      WriteMessage(storage::ConversionReport(*conversion), services.words, out);
    }
    return ExitCode::kDone;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
