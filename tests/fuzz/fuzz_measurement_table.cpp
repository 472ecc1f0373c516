// A table of tests is taken or refused with lines that say why, for every kind of the library; what is taken
// comes back from the table that is written of it.
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
    const auto& tests = std::get<Tests>(read);
    const auto again = measurements::ReadTestTable(folder, measurements::FormatTestTable(folder, tests));
    const auto* same = std::get_if<Tests>(&again);
    fuzz::Require(same != nullptr && *same == tests, "a written table reads back");
  }
  return 0;
}
