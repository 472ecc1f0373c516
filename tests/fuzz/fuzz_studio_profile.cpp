// The profile of a studio is read or refused; its pictures lie in its own folder, and what was read is
// written and read the same.
#include "foundation/failure.h"
#include "storage/profile/studio_profile_store.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  static const storage::TemporaryFolder kFolder;
  const storage::StudioProfileStore store(kFolder.Path());
  storage::WriteFile(kFolder / "Studio" / "profilo.txt", std::string(fuzz::TextOf(data, size)));
  try {
    const elements::StudioProfile read = store.Read();
    for (const std::string& picture : {read.logo, read.signature})
      fuzz::Require(picture.find_first_of("/\\") == std::string::npos, "a picture lies in the folder");
    store.Write(read);
    fuzz::Require(store.Read() == read, "what was written is read the same");
  } catch (const Failure&) {
  }
  return 0;
}
