#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tests/storage/project/read_any_project.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velmar::storage::ReadAnyProject({reinterpret_cast<const char*>(data), size});
  return 0;
}
