// A project file is read or refused; what was read is written, and written again the same.
#include "foundation/failure.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  try {
    const storage::OpenedProject opened = storage::ReadProject(fuzz::TextOf(data, size), {});
    const std::string once = storage::WriteProject(opened.setup, opened.stored);
    const storage::OpenedProject again = storage::ReadProject(once, {});
    fuzz::Require(storage::WriteProject(again.setup, again.stored) == once, "a saved project saves the same");
  } catch (const Failure&) {
  }
  return 0;
}
