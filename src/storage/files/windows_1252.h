#pragma once

#include <string>
#include <string_view>

namespace velmar::storage {

/// The UTF-8 text of Windows-1252 `bytes`. The five undefined bytes (81, 8D, 8F, 90, 9D) become the control
/// characters of the same number, so that every byte comes back from Windows1252FromUtf8().
std::string Utf8FromWindows1252(std::string_view bytes);

/// The Windows-1252 bytes of UTF-8 `text`. A character that the code page lacks becomes its nearest
/// equivalent
/// ("ł" an "l", "−" a "-", "₂" a "2"); one without an equivalent, and every byte that is not UTF-8, becomes
/// "?". A letter followed by a combining accent becomes the accented letter.
std::string Windows1252FromUtf8(std::string_view text);

/// Whether the code page has `character` itself, so that it comes back from its byte.
bool IsInWindows1252(char32_t character);

}  // namespace velmar::storage
