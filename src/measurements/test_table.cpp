#include "measurements/test_table.h"

#include <optional>
#include <set>

#include "foundation/csv.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "measurements/measurement_entry.h"
#include "storage/tables/cell.h"
#include "storage/tables/csv.h"

namespace velmar::measurements {
namespace {

constexpr std::string_view kNameColumn = "Nome";

/// The first line of `text`, without a byte order mark.
std::string_view FirstLine(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  return text.substr(0, text.find_first_of("\r\n"));
}

/// A table between tabulators as one between semicolons; any other text as it stands.
std::string AsCsv(std::string_view text) {
  if (FirstLine(text).find('\t') == std::string_view::npos) return std::string(text);
  std::string csv;
  std::string cell;
  const auto end_cell = [&](char behind) {
    const bool plain = cell.find_first_of(";\"\n") == std::string::npos;
    const bool quoted = cell.size() > 1 && cell.front() == '"' && cell.back() == '"';
    if (plain || quoted) {
      csv += cell;
    } else {
      csv += '"';
      for (const char c : cell) csv += c == '"' ? std::string("\"\"") : std::string(1, c);
      csv += '"';
    }
    csv += behind;
    cell.clear();
  };
  for (const char c : text) {
    if (c == '\t') {
      end_cell(';');
    } else if (c == '\n') {
      end_cell('\n');
    } else if (c != '\r') {
      cell += c;
    }
  }
  end_cell('\n');
  return csv;
}

MessageLine Named(std::size_t row, const std::string& name) {
  return {kTableRowRow, " " + std::to_string(row + 1) + (name.empty() ? ": " : ", «" + name + "»: ")};
}

/// One row of a table on its way to a test.
class RowReader {
 public:
  RowReader(const storage::LibraryFolder& folder, const CsvTable& table) : folder_(folder), table_(table) {}

  std::optional<storage::MeasuredTest> Read(std::size_t row, Message& refused) const {
    const std::vector<std::string>& fields = table_.rows[row];
    std::vector<storage::Cell> cells(folder_.table.columns.size());
    std::string name;
    const std::size_t refused_before = refused.size();
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const std::size_t place = *folder_.table.Find(table_.header[i]);
      if (table_.header[i] == kNameColumn) name = fields[i];
      auto cell = storage::ParseCell(folder_.table.columns[place].type, fields[i]);
      if (cell) {
        cells.at(place) = *std::move(cell);
      } else {
        MessageLine line = Named(row, name);
        line.emplace_back(kWrongCellRow);
        line.emplace_back(" " + table_.header[i] + ": " + fields[i]);
        refused.push_back(std::move(line));
      }
    }
    if (refused.size() > refused_before) return std::nullopt;
    return Checked(row, storage::TestFromCells(folder_, cells), refused);
  }

 private:
  /// What the window checks of an entry holds for a row as well; what it does not show is kept.
  std::optional<storage::MeasuredTest> Checked(std::size_t row, const storage::MeasuredTest& read,
                                               Message& refused) const {
    MeasurementEntry entry = EntryOf(read);
    auto checked = TestOf(folder_, entry);
    if (const auto* refusal = std::get_if<MeasurementRefusal>(&checked)) {
      MessageLine line = Named(row, read.name);
      for (const MessagePiece& piece : refusal->message.front()) line.push_back(piece);
      refused.push_back(std::move(line));
      return std::nullopt;
    }
    storage::MeasuredTest test = std::get<storage::MeasuredTest>(std::move(checked));
    if (!read.index_kind.empty()) test.index_kind = read.index_kind;
    test.index_value = read.index_value;
    if (!read.rating_origin.empty()) test.rating_origin = read.rating_origin;
    return test;
  }

  const storage::LibraryFolder& folder_;
  const CsvTable& table_;
};

/// The columns of the heading that no table of the library has.
Message UnknownColumns(const storage::LibraryFolder& folder, const CsvTable& table) {
  Message unknown;
  for (const std::string& column : table.header) {
    if (!folder.table.Find(column)) unknown.push_back({kUnknownColumnRow, " " + column});
  }
  if (unknown.empty()) {
    bool named = false;
    for (const std::string& column : table.header) named = named || column == kNameColumn;
    if (!named) unknown.push_back({kMeasurementWithoutNameRow});
  }
  return unknown;
}

}  // namespace

bool IsTestTable(std::string_view text) {
  const std::string_view line = FirstLine(text);
  std::string cell;
  for (std::size_t begin = 0; begin <= line.size();) {
    const std::size_t end = std::min(line.find_first_of(",;\t", begin), line.size());
    cell = std::string(line.substr(begin, end - begin));
    std::erase(cell, '"');
    if (cell == kNameColumn) return true;
    begin = end + 1;
  }
  return false;
}

std::variant<std::vector<storage::MeasuredTest>, RefusedText> ReadTestTable(
    const storage::LibraryFolder& folder, std::string_view text) {
  CsvTable table;
  try {
    table = storage::ParseCsv(AsCsv(text));
  } catch (const Failure& failure) {
    return RefusedText{failure.UserMessage()};
  }
  Message refused = UnknownColumns(folder, table);
  if (!refused.empty()) return RefusedText{std::move(refused)};
  std::vector<storage::MeasuredTest> tests;
  std::set<std::string> names;
  const RowReader reader(folder, table);
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    auto test = reader.Read(row, refused);
    if (!test) continue;
    if (!names.insert(FoldCase(test->name)).second) {
      MessageLine line = Named(row, test->name);
      line.emplace_back(kMeasurementTwiceRow);
      refused.push_back(std::move(line));
    }
    tests.push_back(*std::move(test));
  }
  if (tests.empty() && refused.empty()) refused.push_back({kNoBandsInTextRow});
  if (!refused.empty()) return RefusedText{std::move(refused)};
  return tests;
}

std::string FormatTestTable(const storage::LibraryFolder& folder,
                            const std::vector<storage::MeasuredTest>& tests) {
  CsvTable table;
  for (const storage::ColumnSchema& column : folder.table.columns) table.header.push_back(column.name);
  for (const storage::MeasuredTest& test : tests) {
    std::vector<std::string>& fields = table.rows.emplace_back();
    for (const storage::Cell& cell : storage::CellsFromTest(folder, test))
      fields.push_back(storage::FormatCell(cell));
  }
  return FormatCsv(table);
}

}  // namespace velmar::measurements
