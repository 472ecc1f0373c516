// A project file is read or refused; what was read is written, and written again the same.
#include "tests/fuzz/outside_bytes.h"
#include "tests/storage/project/read_any_project.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velmar::storage::ReadAnyProject(velmar::fuzz::TextOf(data, size));
  return 0;
}
