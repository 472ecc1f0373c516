#include "storage/database/fold_case.h"

#include <array>
#include <cstdint>

namespace velmar::storage {
namespace {

/// Letters first..last whose lower case lies `distance` further on. A step of 2 takes every second one, where
/// capitals and small letters take turns.
struct Capitals {
  char32_t first = 0;
  char32_t last = 0;
  std::int32_t distance = 0;
  char32_t step = 1;
};

constexpr std::array kCapitals = {
    Capitals{0xC0, 0xD6, 32},     Capitals{0xD8, 0xDE, 32},       Capitals{0x100, 0x12E, 1, 2},
    Capitals{0x132, 0x136, 1, 2}, Capitals{0x139, 0x147, 1, 2},   Capitals{0x14A, 0x176, 1, 2},
    Capitals{0x178, 0x178, -121}, Capitals{0x179, 0x17D, 1, 2},   Capitals{0x17F, 0x17F, -268},
    Capitals{0x1CD, 0x1DB, 1, 2}, Capitals{0x1DE, 0x1EE, 1, 2},   Capitals{0x1F8, 0x21E, 1, 2},
    Capitals{0x222, 0x232, 1, 2}, Capitals{0x386, 0x386, 38},     Capitals{0x388, 0x38A, 37},
    Capitals{0x38C, 0x38C, 64},   Capitals{0x38E, 0x38F, 63},     Capitals{0x391, 0x3A1, 32},
    Capitals{0x3A3, 0x3AB, 32},   Capitals{0x3C2, 0x3C2, 1},      Capitals{0x400, 0x40F, 80},
    Capitals{0x410, 0x42F, 32},   Capitals{0x460, 0x480, 1, 2},   Capitals{0x48A, 0x4BE, 1, 2},
    Capitals{0x4D0, 0x52E, 1, 2}, Capitals{0x1E00, 0x1E94, 1, 2}, Capitals{0x1EA0, 0x1EFE, 1, 2},
};

char32_t Lower(char32_t letter) {
  if (letter >= 'A' && letter <= 'Z') return letter + 32;
  if (letter < 0xC0) return letter;
  for (const Capitals& capitals : kCapitals) {
    if (letter < capitals.first || letter > capitals.last) continue;
    if ((letter - capitals.first) % capitals.step != 0) continue;
    return static_cast<char32_t>(static_cast<std::int32_t>(letter) + capitals.distance);
  }
  return letter;
}

constexpr unsigned char kPayload = 0x3F;

unsigned char Byte(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

bool IsContinuation(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

void AppendTwoOrThree(std::string& text, char32_t letter) {
  if (letter < 0x80) {
    text += static_cast<char>(letter);
  } else if (letter < 0x800) {
    text += static_cast<char>(0xC0U | (letter >> 6U));
    text += static_cast<char>(0x80U | (letter & kPayload));
  } else {
    text += static_cast<char>(0xE0U | (letter >> 12U));
    text += static_cast<char>(0x80U | ((letter >> 6U) & kPayload));
    text += static_cast<char>(0x80U | (letter & kPayload));
  }
}

}  // namespace

std::string FoldCase(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const unsigned char lead = Byte(text, i);
    const unsigned char second = Byte(text, i + 1);
    const unsigned char third = Byte(text, i + 2);
    if (lead >= 0xC2 && lead < 0xE0 && IsContinuation(second)) {
      AppendTwoOrThree(folded, Lower(static_cast<char32_t>((lead & 0x1FU) << 6U | (second & kPayload))));
      i += 2;
    } else if (lead == 0xE1 && IsContinuation(second) && IsContinuation(third)) {
      // The only three-byte letters with a case here: Latin Extended Additional.
      const auto letter =
          static_cast<char32_t>((lead & 0x0FU) << 12U | (second & kPayload) << 6U | (third & kPayload));
      AppendTwoOrThree(folded, Lower(letter));
      i += 3;
    } else {
      folded += lead < 0x80 ? static_cast<char>(Lower(lead)) : static_cast<char>(lead);
      ++i;
    }
  }
  return folded;
}

bool SameName(std::string_view a, std::string_view b) { return FoldCase(a) == FoldCase(b); }

}  // namespace velmar::storage
