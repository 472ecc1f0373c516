#include "storage/database/row_repair.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>
#include <variant>

#include <SQLiteCpp/Database.h>

#include "foundation/utf8.h"
#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/table_rows.h"
#include "storage/tables/cell.h"

namespace velmar::storage {
namespace {

constexpr const char* kNoName = "(senza nome)";

bool IsBroken(const std::string& text) { return !IsUtf8(text) || text.find('\0') != std::string::npos; }
bool IsBadName(const std::string& name) { return IsBlank(name) || HoldsControlCharacter(name); }

/// `text` in UTF-8 without null characters.
std::string Mended(const std::string& text) {
  std::string mended = WithReplacements(text);
  std::ranges::replace(mended, '\0', ' ');
  return mended;
}

/// `name` as one line that shows something.
std::string MendedName(const std::string& name) {
  std::string line;
  std::string_view rest = name;
  while (!rest.empty()) {
    std::string character;
    AppendCharacter(character, TakeCharacter(rest));
    line += HoldsControlCharacter(character) ? " " : character;
  }
  return IsBlank(line) ? kNoName : line;
}

/// `name`, with a number behind it where `taken` holds it already.
std::string FreeName(const std::string& name, const std::unordered_set<std::string>& taken) {
  std::string free = name;
  for (int number = 2; taken.contains(FoldCase(free)); ++number)
    free = name + " (" + std::to_string(number) + ")";
  return free;
}

/// One table on its way.
class TableCheck {
 public:
  TableCheck(TableRows& rows, const TableSchema& schema, const RowRules& rules)
      : table_(rows), schema_(schema), rules_(rules), rows_(rows.All()) {
    for (const StoredRow& row : rows_) {
      if (const std::string* name = NameOf(row)) names_.insert(FoldCase(*name));
    }
  }

  void Run(bool mend, std::vector<RowFault>& faults) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      StoredRow& row = rows_[i];
      const std::size_t before = faults.size();
      for (std::size_t column = 0; column < row.cells.size(); ++column) Look(row, i, column, faults);
      if (mend && faults.size() > before) table_.Update(row);
    }
  }

 private:
  bool IsNamed() const {
    return !schema_.key.empty() && !schema_.columns.empty() && schema_.columns[0].name == schema_.key &&
           schema_.columns[0].type == ColumnType::kText;
  }
  const std::string* NameOf(const StoredRow& row) const {
    return IsNamed() ? std::get_if<std::string>(&row.cells[0]) : nullptr;
  }
  std::string LabelOf(const StoredRow& row) const {
    const std::string* name = NameOf(row);
    return name != nullptr ? MendedName(Mended(*name)) : std::to_string(row.id);
  }

  /// Tells what is wrong with a cell, and puts what is right into its place.
  void Look(StoredRow& row, std::size_t i, std::size_t column, std::vector<RowFault>& faults) {
    Cell& cell = row.cells[column];
    const std::string& name = schema_.columns[column].name;
    const auto found = [&](RowProblem problem, std::string value = {}) {
      faults.push_back({problem, schema_.name, LabelOf(row), name, std::move(value)});
    };
    if (column == 0 && IsNamed()) {
      const auto* text = std::get_if<std::string>(&cell);
      const std::string given = text == nullptr ? std::string() : *text;
      if (!IsBroken(given) && !IsBadName(given)) return;
      found(IsBroken(given) ? RowProblem::kText : RowProblem::kName);
      const std::string free = FreeName(MendedName(Mended(given)), names_);
      names_.insert(FoldCase(free));
      cell = free;
    } else if (const auto* text = std::get_if<std::string>(&cell); text != nullptr && IsBroken(*text)) {
      found(RowProblem::kText);
      std::string shipped = rules_.shipped_text ? rules_.shipped_text(schema_, i, column) : std::string();
      cell = shipped.empty() ? Mended(*text) : std::move(shipped);
    } else if (const auto* number = std::get_if<double>(&cell)) {
      const auto range = std::ranges::find(rules_.ranges, name, &ColumnRange::column);
      if (range == rules_.ranges.end() || (*number >= range->lowest && *number <= range->highest)) return;
      found(RowProblem::kValue, FormatCell(cell));
      cell = std::monostate{};
    }
  }

  TableRows& table_;
  const TableSchema& schema_;
  const RowRules& rules_;
  std::vector<StoredRow> rows_;
  std::unordered_set<std::string> names_{};
};

/// The table, or nothing when the file has none of that name.
std::optional<TableRows> Opened(SQLite::Database& database, const TableSchema& schema) {
  try {
    return TableRows(database, schema);
  } catch (const DatabaseFailure& failure) {
    if (failure.Problem() != DatabaseProblem::kMissingTable) throw;
    return std::nullopt;
  }
}

std::vector<RowFault> Walk(SQLite::Database& database, const RowRules& rules, bool mend) {
  std::vector<RowFault> faults;
  for (const TableSchema& schema : rules.tables) {
    if (auto rows = Opened(database, schema)) {
      TableCheck(*rows, schema, rules).Run(mend, faults);
      continue;
    }
    faults.push_back({RowProblem::kNoTable, schema.name, "", "", ""});
    if (!mend) continue;
    for (const std::string& statement : CreateStatements(schema)) database.exec(statement);
  }
  return faults;
}

}  // namespace

std::vector<RowFault> FindRowFaults(const std::filesystem::path& file, const RowRules& rules) {
  return ReadDatabase(file, [&](SQLite::Database& database) { return Walk(database, rules, false); });
}

std::vector<RowFault> MendRows(const std::filesystem::path& file, const RowRules& rules) {
  return ChangeDatabase(file, [&](SQLite::Database& database) { return Walk(database, rules, true); });
}

}  // namespace velmar::storage
