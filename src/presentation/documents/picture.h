#pragma once

#include <cstdint>
#include <string>

namespace velmar::presentation {

/// English Metric Units: 914,400 an inch, 36,000 a millimetre.
inline constexpr std::int64_t kEmuPerInch = 914400;

/// A picture for a document.
struct Picture {
  std::string png{};  ///< the file's bytes
  std::string svg{};  ///< the same as vectors, for programs that know them; may be empty
  std::int64_t width_emu = 0;
  std::int64_t height_emu = 0;
  std::string alternative_text{};  ///< what a reader hears who cannot see it
};

}  // namespace velmar::presentation
