// Whatever the configuration file holds, there is a language and a data folder.
#include "storage/configuration/configuration.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  const auto file = fuzz::FileOf(fuzz::TextOf(data, size), "Velmar.ini");
  const storage::Configuration read = storage::ReadConfiguration(file, "/documenti");
  fuzz::Require(!read.LeggiLingua().empty(), "there is a language");
  fuzz::Require(!read.LeggiCartellaDati().empty(), "there is a data folder");
  return 0;
}
