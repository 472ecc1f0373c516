// A CSV table is read or refused; every row is as long as the heading.
#include "foundation/csv.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  try {
    const CsvTable table = ParseCsv(fuzz::TextOf(data, size));
    for (const auto& row : table.rows)
      fuzz::Require(row.size() == table.header.size(), "a row is as long as the heading");
  } catch (const CsvFailure&) {
  }
  return 0;
}
