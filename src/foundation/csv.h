#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// A table of texts: the names of its columns and its rows, every row as long as the heading.
struct CsvTable {
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;
};

/// Why a text is no CSV table.
enum class CsvProblem {
  kQuotes,      ///< quotation marks do not match
  kFieldCount,  ///< a row is not as long as the heading
  kHeading,     ///< names of the heading are missing, empty or repeated
};

/// Thrown when a text is no CSV table.
class CsvFailure : public std::runtime_error {
 public:
  CsvFailure(CsvProblem problem, std::size_t line, const std::string& what);

  CsvProblem Problem() const { return problem_; }
  std::size_t Line() const { return line_; }  ///< from 1; where a quoted field begins, when it is not closed

 private:
  CsvProblem problem_;
  std::size_t line_;
};

/// The table that `text` holds after RFC 4180: with or without a byte order mark, lines ended by LF or CR LF,
/// fields quoted where they hold a separator, a quotation mark or a line break. Empty lines are passed over.
/// The separator is the comma, or the semicolon when the heading holds one outside quotation marks, which is
/// what spreadsheets write where the decimal sign is a comma. The bytes are not checked to be UTF-8.
/// @throws CsvFailure
CsvTable ParseCsv(std::string_view text);

/// `table` with comma and LF; fields are quoted only where they must be. ParseCsv() reads it back.
std::string FormatCsv(const CsvTable& table);

}  // namespace velmar
