// A Word template is filled or refused; what was filled opens again.
#include "foundation/failure.h"
#include "presentation/documents/word_document.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  try {
    presentation::WordDocument document(fuzz::TextOf(data, size));
    document.Replace({});
    document.Left();
    const std::string bytes = document.Bytes();
    presentation::WordDocument again(bytes);
  } catch (const Failure&) {
  }
  return 0;
}
