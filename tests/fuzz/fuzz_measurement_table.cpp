// A table of tests is taken or refused with lines that say why, for every kind of the library; the table that
// is written of what is taken is taken again, and written again the same.
#include "measurements/test_table.h"
#include "storage/tables/schema.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  using Tests = std::vector<storage::MeasuredTest>;
  static const std::vector<storage::LibraryFolder> kFolders = storage::LibraryFolders();
  const std::string text = measurements::TextOfFile(fuzz::TextOf(data, size));
  measurements::IsTestTable(text);
  for (const storage::LibraryFolder& folder : kFolders) {
    const auto read = measurements::ReadTestTable(folder, text);
    if (const auto* refused = std::get_if<measurements::RefusedText>(&read)) {
      fuzz::Require(!refused->lines.empty(), "a refusal says why");
      continue;
    }
    const std::string once = measurements::FormatTestTable(folder, std::get<Tests>(read));
    const auto again = measurements::ReadTestTable(folder, once);
    const auto* tests = std::get_if<Tests>(&again);
    fuzz::Require(tests != nullptr && measurements::FormatTestTable(folder, *tests) == once,
                  "a written table is taken, and written the same");
  }
  return 0;
}
