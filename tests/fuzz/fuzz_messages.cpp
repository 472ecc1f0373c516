// A message database is read or refused.
#include "foundation/failure.h"
#include "storage/messages/message_table_reader.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  try {
    storage::ReadMessageTable(fuzz::FileOf(fuzz::TextOf(data, size), "InterfMess.mdb"), "Italiano");
  } catch (const Failure&) {
  }
  return 0;
}
