#include "storage/tables/csv.h"

#include <cstddef>
#include <string>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::storage {
namespace {

/// The bytes that follow the lead byte of a UTF-8 sequence; -1 when it leads none.
int FollowingBytes(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead < 0xE0) return 1;
  if (lead >= 0xE0 && lead < 0xF0) return 2;
  if (lead >= 0xF0 && lead < 0xF5) return 3;
  return -1;
}

bool IsUtf8(std::string_view text) {
  for (size_t at = 0; at < text.size();) {
    int following = FollowingBytes(static_cast<unsigned char>(text[at++]));
    if (following < 0) return false;
    for (; following > 0; --following, ++at) {
      if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return false;
    }
  }
  return true;
}

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
