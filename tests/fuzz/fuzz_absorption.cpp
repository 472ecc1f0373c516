// Pasted absorption is refused with a reason or fits into the bands, each cell empty or a number.
#include "elements/materials.h"
#include "foundation/decimal.h"
#include "materials/pasted_absorption.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  const std::string_view text = fuzz::TextOf(data, size);
  materials::IsColumn(text);
  for (const std::size_t band : {std::size_t{0}, std::size_t{5}, elements::kAbsorptionBandCount - 1}) {
    const auto read = materials::ReadPastedAbsorption(text, band);
    if (const auto* refused = std::get_if<Message>(&read)) {
      fuzz::Require(!refused->empty(), "a refusal says why");
      continue;
    }
    const auto& taken = std::get<materials::PastedAbsorption>(read);
    fuzz::Require(
        !taken.texts.empty() && taken.first_band + taken.texts.size() <= elements::kAbsorptionBandCount,
        "what is pasted fits into the bands");
    for (const std::string& cell : taken.texts)
      fuzz::Require(cell.empty() || ParseDecimal(cell).has_value(), "a cell is empty or a number");
  }
  return 0;
}
