#pragma once

#include <string_view>

namespace velmar::storage {

/// The Windows-1252 bytes that stand nearest to a character the code page lacks: "c" for "č", "<=" for "≤".
/// Empty when there are none.
std::string_view NearestEquivalent(char32_t character);

/// The Unicode character of `letter` with the combining accent `accent` (U+0300 to U+036F): "è" of "e" and
/// the grave. 0 when Windows-1252 has no such letter.
char32_t Composed(char32_t letter, char32_t accent);

}  // namespace velmar::storage
