// The keyed block is read or refused; what was read comes back from what is written.
#include "foundation/failure.h"
#include "storage/project/keyed_block.h"
#include "storage/project/project_failure.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  try {
    storage::LineCursor lines(fuzz::TextOf(data, size));
    const elements::KeyedValues values = storage::ReadKeyedBlock(lines);
    storage::LineWriter out;
    storage::WriteKeyedBlock(out, values);
    const std::string bytes = out.Bytes();
    storage::LineCursor again(bytes);
    fuzz::Require(storage::ReadKeyedBlock(again) == values, "a keyed block comes back");
  } catch (const Failure&) {
  }
  return 0;
}
