#include "storage/tables/csv.h"

#include <cstddef>
#include <string>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"

namespace velmar::storage {
namespace {

Message ToldOf(const CsvFailure& failure) {
  const std::string line = " " + std::to_string(failure.Line());
  switch (failure.Problem()) {
    case CsvProblem::kQuotes:
      return {{kCsvQuotesRow, line}};
    case CsvProblem::kFieldCount:
      return {{kCsvFieldCountRow, line}};
    case CsvProblem::kHeading:
      return {{kCsvHeaderRow}};
  }
  return {};
}

}  // namespace

CsvTable ParseCsv(std::string_view text) {
  if (!IsUtf8(text)) throw Failure({{kCsvEncodingRow}}, "CSV table is not UTF-8");
  try {
    return velmar::ParseCsv(text);
  } catch (const CsvFailure& failure) {
    throw Failure(ToldOf(failure), failure.what());
  }
}

}  // namespace velmar::storage
