// A genuine Access file is copied or refused by a process of its own; what was copied is a whole database,
// what was refused leaves nothing, and the file itself keeps its bytes.
#include "storage/access/access_copy.h"
#include "storage/database/set_aside.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  const std::string bytes(fuzz::TextOf(data, size));
  const auto source = fuzz::FileOf(bytes, "fonte.mdb");
  const auto target = source.parent_path() / "copia.mdb";
  try {
    storage::CopyAccessFile({VELMAR_ACCESS_READER}, source, target);
    fuzz::Require(storage::ConditionOf(target) == storage::DatabaseCondition::kGood, "a copy is whole");
    std::filesystem::remove(target);
  } catch (const storage::AccessFailure&) {
    fuzz::Require(!std::filesystem::exists(target), "a refused file leaves no copy");
  }
  fuzz::Require(storage::ReadFile(source) == bytes, "the file that is read keeps its bytes");
  return 0;
}
