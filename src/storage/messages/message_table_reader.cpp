#include "storage/messages/message_table_reader.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include "foundation/utf8.h"
#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/database/table_rows.h"
#include "storage/tables/schema.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCatalogueTable = "DRAV";
constexpr const char* kFurtherTable = "Testi";
constexpr const char* kNumberColumn = "Riga";
constexpr const char* kItalian = "Italiano";

struct Words {
  std::string_view italian;
  std::string_view english;
};

/// The two sentences, each followed by `detail`.
CatalogueFailure FailureWith(const Words& words, const std::string& detail) {
  return {{{std::string(words.italian) + " " + detail}, {std::string(words.english) + " " + detail}},
          std::string(words.english) + " " + detail};
}

Words WordsFor(DatabaseProblem problem) {
  switch (problem) {
    case DatabaseProblem::kUnreadable:
    case DatabaseProblem::kNoFile:
      return {
          "Il catalogo dei messaggi non è stato trovato o non è leggibile. Reinstallare il programma o "
          "ripristinare il file:",
          "The message catalogue has not been found or cannot be read. Reinstall the program or restore the "
          "file:"};
    case DatabaseProblem::kLocked:
      return {"Il catalogo dei messaggi è in uso da parte di un altro programma. Chiuderlo e riprovare:",
              "The message catalogue is in use by another program. Close it and try again:"};
    case DatabaseProblem::kAccessFormat:
      return {"Il catalogo dei messaggi è in formato Access e va prima convertito:",
              "The message catalogue is in Access format and has to be converted first:"};
    case DatabaseProblem::kMissingTable:
      return {"Nel catalogo dei messaggi manca la tabella DRAV. Ripristinare il file:",
              "The message catalogue lacks the table DRAV. Restore the file:"};
    default:
      return {"Il catalogo dei messaggi è danneggiato e non può essere letto. Ripristinare il file:",
              "The message catalogue is damaged and cannot be read. Restore the file:"};
  }
}

std::string TextOf(const Cell& cell) {
  const auto* text = std::get_if<std::string>(&cell);
  return text == nullptr ? std::string() : *text;
}

/// Whether `text` can be shown. One that is no UTF-8, or holds a null character, came from a damaged file.
bool IsWhole(const std::string& text) {
  return !text.empty() && IsUtf8(text) && text.find('\0') == std::string::npos;
}

/// `text` in UTF-8, with a blank in place of every null character.
std::string Mended(const std::string& text) {
  std::string mended = WithReplacements(text);
  std::ranges::replace(mended, '\0', ' ');
  return mended;
}

/// `text` as one line, which is what the places of the further texts take.
std::string OneLine(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return text;
}

/// A table that came out of an Access file may have lost the order of its rows; the numbers of its unique
/// index tell it. Any other table stands as it was filled.
std::string OrderOfCatalogue(SQLite::Database& database) {
  SQLite::Statement query(database,
                          "SELECT min(entry.name) FROM pragma_index_list('DRAV') AS list, "
                          "pragma_index_info(list.name) AS entry, pragma_table_info('DRAV') AS columns "
                          "WHERE list.[unique] AND columns.name = entry.name AND columns.type = 'INTEGER' "
                          "GROUP BY list.name HAVING count(*) = 1 AND (SELECT count(*) FROM "
                          "pragma_index_info(list.name)) = 1 LIMIT 1");
  if (!query.executeStep() || query.getColumn(0).isNull()) return {};
  return QuotedName(query.getColumn(0).getString());
}

std::vector<std::string> ReadCatalogue(SQLite::Database& database, const fs::path& file,
                                       const std::string& language) {
  const TableSchema schema{kCatalogueTable, {{language, ColumnType::kText}}, ""};
  const TableRows table(database, schema);
  if (!table.Has(language)) {
    throw FailureWith(
        {"Il catalogo dei messaggi non contiene la lingua indicata alla voce Lingua del file Velmar.ini:",
         "The message catalogue does not hold the language named by the entry Lingua in the file "
         "Velmar.ini:"},
        language);
  }
  std::vector<std::string> texts;
  const std::string order = OrderOfCatalogue(database);
  for (const StoredRow& row : order.empty() ? table.All() : table.All(order))
    texts.push_back(Mended(TextOf(row.cells[0])));
  if (texts.size() > kCatalogueRows) {
    throw FailureWith({"Il catalogo dei messaggi contiene più di 419 righe. Ripristinare il file:",
                       "The message catalogue holds more than 419 rows. Restore the file:"},
                      file.string());
  }
  return texts;
}

/// Adds the further texts that `texts` does not hold yet.
void AddFurther(SQLite::Database& database, const std::string& language, std::map<int, std::string>& texts) {
  const TableSchema schema{
      kFurtherTable,
      {{kNumberColumn, ColumnType::kNumber}, {language, ColumnType::kText}, {kItalian, ColumnType::kText}},
      ""};
  for (const StoredRow& row : TableRows(database, schema).All()) {
    const auto* number = std::get_if<double>(&row.cells[0]);
    if (number == nullptr || *number < kFirstFurtherRow || *number > 1e6) continue;
    std::string text = TextOf(row.cells[1]);
    if (!IsWhole(text)) text = TextOf(row.cells[2]);
    // Else the shipped text is better.
    if (IsWhole(text)) texts.emplace(static_cast<int>(*number), OneLine(std::move(text)));
  }
}

void AddFurtherOf(const fs::path& file, const std::string& language, std::map<int, std::string>& texts) {
  try {
    ReadDatabaseWith(file, [&](SQLite::Database& database) { AddFurther(database, language, texts); });
  } catch (const DatabaseFailure&) {
    // Whatever is missing shows its number.
  }
}

}  // namespace

MessageTable ReadMessageTable(const fs::path& file, const std::string& language, const fs::path& shipped) {
  try {
    const std::vector<std::string> catalogue = ReadDatabase(
        file, [&](SQLite::Database& database) { return ReadCatalogue(database, file, language); });
    std::map<int, std::string> further;
    AddFurtherOf(file, language, further);
    if (!shipped.empty()) AddFurtherOf(shipped, language, further);
    return {catalogue, std::move(further)};
  } catch (const DatabaseFailure& failure) {
    throw FailureWith(WordsFor(failure.Problem()), file.string());
  }
}

}  // namespace velmar::storage
