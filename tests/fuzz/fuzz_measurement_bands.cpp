// Pasted frequencies and levels are taken or refused with lines that say why; what is taken is finite, and is
// either thirds or octaves.
#include <algorithm>
#include <cmath>

#include "measurements/band_text.h"
#include "tests/fuzz/outside_bytes.h"

namespace {

template <typename Bands>
bool AllFinite(const Bands& bands) {
  return std::ranges::all_of(bands, [](const auto& band) { return !band || std::isfinite(*band); });
}

template <typename Bands>
bool AllEmpty(const Bands& bands) {
  return std::ranges::none_of(bands, [](const auto& band) { return band.has_value(); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  const std::string text = measurements::TextOfFile(fuzz::TextOf(data, size));
  for (const char* symbol : {"R", "Ln"}) {
    const auto read = measurements::ReadBandText(text, symbol);
    if (const auto* refused = std::get_if<measurements::RefusedText>(&read)) {
      fuzz::Require(!refused->lines.empty(), "a refusal says why");
      continue;
    }
    const auto& taken = std::get<measurements::BandText>(read);
    fuzz::Require(AllFinite(taken.thirds) && AllFinite(taken.octaves), "a level is finite");
    fuzz::Require(taken.in_octaves ? AllEmpty(taken.thirds) : AllEmpty(taken.octaves),
                  "the levels are thirds or octaves");
  }
  return 0;
}
