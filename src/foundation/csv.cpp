#include "foundation/csv.h"

#include <set>
#include <utility>

namespace velmar {
namespace {

char SeparatorOf(std::string_view text) {
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == ';') return ';';
    if (c == '\n') break;
  }
  return ',';
}

/// Reads the fields of one text from front to back.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text), separator_(SeparatorOf(text)) {}

  bool AtEnd() const { return at_ >= text_.size(); }
  size_t Line() const { return line_; }

  /// Passes a line that holds nothing at all. @return whether there was one
  bool PassEmptyLine() {
    if (AtEnd() || !AtLineEnd()) return false;
    TakeLineEnd();
    return true;
  }

  /// The fields up to the end of the line, which is passed.
  std::vector<std::string> Row() {
    std::vector<std::string> fields;
    do {
      fields.push_back(Field());
    } while (TakeSeparator());
    TakeLineEnd();
    return fields;
  }

 private:
  bool AtLineEnd() const {
    return AtEnd() || text_[at_] == '\n' || (text_[at_] == '\r' && text_.substr(at_ + 1, 1) == "\n");
  }

  std::string Field() {
    if (!AtEnd() && text_[at_] == '"') return QuotedField();
    const size_t begin = at_;
    while (!AtLineEnd() && text_[at_] != separator_) ++at_;
    return std::string(text_.substr(begin, at_ - begin));
  }

  std::string QuotedField() {
    const size_t first_line = line_;
    std::string field;
    for (++at_; !AtEnd(); ++at_) {
      if (text_[at_] == '\n') ++line_;
      if (text_[at_] != '"') {
        field += text_[at_];
        continue;
      }
      if (text_.substr(at_ + 1, 1) != "\"") break;
      field += text_[++at_];
    }
    if (AtEnd()) throw CsvFailure(CsvProblem::kQuotes, first_line, "a quotation mark is not closed");
    ++at_;
    if (!AtLineEnd() && text_[at_] != separator_) {
      throw CsvFailure(CsvProblem::kQuotes, line_, "text follows a closing quotation mark");
    }
    return field;
  }

  bool TakeSeparator() {
    if (AtEnd() || text_[at_] != separator_) return false;
    ++at_;
    return true;
  }

  void TakeLineEnd() {
    if (AtEnd()) return;
    if (text_[at_] == '\r') ++at_;
    ++at_;
    ++line_;
  }

  std::string_view text_;
  char separator_;
  size_t at_ = 0;
  size_t line_ = 1;
};

bool IsLoneEmptyField(const std::vector<std::string>& fields) {
  return fields.size() == 1 && fields[0].empty();
}

void CheckHeader(const std::vector<std::string>& header) {
  std::set<std::string_view> names;
  for (const std::string& name : header) {
    if (name.empty()) throw CsvFailure(CsvProblem::kHeading, 1, "a name of the heading is empty");
    if (!names.insert(name).second)
      throw CsvFailure(CsvProblem::kHeading, 1, "twice in the heading: " + name);
  }
  if (header.empty()) throw CsvFailure(CsvProblem::kHeading, 1, "there is no heading");
}

void AppendField(std::string& text, const std::string& field) {
  if (field.find_first_of(",;\"\r\n") == std::string::npos) {
    text += field;
    return;
  }
  text += '"';
  for (const char c : field) {
    if (c == '"') text += '"';
    text += c;
  }
  text += '"';
}

void AppendRow(std::string& text, const std::vector<std::string>& fields) {
  // A lone empty field would read back as an empty line.
  if (IsLoneEmptyField(fields)) text += "\"\"";
  for (size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) text += ',';
    AppendField(text, fields[i]);
  }
  text += '\n';
}

}  // namespace

CsvFailure::CsvFailure(CsvProblem problem, std::size_t line, const std::string& what)
    : std::runtime_error("CSV line " + std::to_string(line) + ": " + what), problem_(problem), line_(line) {}

CsvTable ParseCsv(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
  CsvTable table;
  Scanner scanner(text);
  while (scanner.PassEmptyLine()) {
  }
  if (!scanner.AtEnd()) table.header = scanner.Row();
  CheckHeader(table.header);
  while (!scanner.AtEnd()) {
    const size_t line = scanner.Line();
    if (scanner.PassEmptyLine()) continue;
    std::vector<std::string> fields = scanner.Row();
    if (fields.size() != table.header.size()) {
      throw CsvFailure(CsvProblem::kFieldCount, line, "wrong number of fields");
    }
    table.rows.push_back(std::move(fields));
  }
  return table;
}

std::string FormatCsv(const CsvTable& table) {
  std::string text;
  AppendRow(text, table.header);
  for (const std::vector<std::string>& row : table.rows) AppendRow(text, row);
  return text;
}

}  // namespace velmar
