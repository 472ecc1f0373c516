#include "storage/access/conversion.h"

#include <system_error>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include "foundation/message_rows.h"
#include "platform/file_system.h"
#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/database/set_aside.h"
#include "storage/files/unfinished.h"
#include "storage/tables/schema.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// A second name for `file` that is not taken: a link, or a copy where the file system knows no links.
fs::path KeepUnderOtherName(const fs::path& file) {
  for (int number = 1;; ++number) {
    fs::path name = file;
    name += ".originale";
    if (number > 1) name += std::to_string(number);
    std::error_code error;
    fs::create_hard_link(file, name, error);
    if (!error) return name;
    if (error == std::errc::file_exists) continue;
    if (fs::exists(name) || !fs::copy_file(file, name)) continue;
    platform::SyncToDisk(name);
    return name;
  }
}

std::vector<ConvertedTable> TablesOf(const fs::path& file) {
  return ReadDatabase(file, [](SQLite::Database& database) {
    std::vector<ConvertedTable> tables;
    SQLite::Statement names(database, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid");
    while (names.executeStep()) tables.push_back({names.getColumn(0).getString(), 0});
    for (ConvertedTable& table : tables) {
      table.rows = database.execAndGet("SELECT count(*) FROM " + QuotedName(table.name)).getInt64();
    }
    return tables;
  });
}

AccessFailure Failed(const fs::path& file, const std::string& detail) {
  return {{{kConversionFailedRow}, {file.string()}}, file.string() + ": " + detail};
}

}  // namespace

Message ConversionQuestion(const fs::path& file) { return {{kConversionQuestionRow}, {file.string()}}; }

Message ConversionQuestionWithoutCatalogue(const fs::path& file) {
  return {
      {"Il catalogo dei messaggi è in formato Access. Convertirlo nel formato del programma? L'originale "
       "viene "
       "conservato con l'aggiunta di \".originale\" al nome."},
      {"The message catalogue is in Access format. Convert it to the program's format? The original is kept "
       "with \".originale\" added to its name."},
      {file.string()}};
}

Message ConversionReport(const Conversion& conversion) {
  std::int64_t rows = 0;
  for (const ConvertedTable& table : conversion.tables) rows += table.rows;
  Message report{{kConvertedRowsRow, " " + std::to_string(rows)}};
  for (const ConvertedTable& table : conversion.tables) {
    report.push_back({table.name + ": " + std::to_string(table.rows)});
  }
  report.push_back({kOriginalKeptRow, " " + conversion.original.string()});
  return report;
}

std::optional<Conversion> ConvertAccessFile(const AccessReader& reader, const fs::path& file,
                                            const std::function<bool()>& ask) {
  if (KindOf(file) != FileKind::kAccess || !ask()) return std::nullopt;
  try {
    const fs::path path = fs::canonical(file);
    RemoveAbandoned(path.parent_path());
    const Unfinished unfinished(path);
    CopyAccessFile(reader, path, unfinished.Path());
    Conversion conversion{{}, TablesOf(unfinished.Path())};
    platform::SyncToDisk(unfinished.Path());
    conversion.original = KeepUnderOtherName(path);
    SetAsideCompanions(path);
    fs::rename(unfinished.Path(), path);
    platform::SyncToDisk(path.parent_path());
    return conversion;
  } catch (const fs::filesystem_error& error) {
    throw Failed(file, error.what());
  } catch (const DatabaseFailure& error) {
    throw Failed(file, error.what());
  }
}

}  // namespace velmar::storage
