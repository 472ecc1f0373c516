#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// Texts of this program are UTF-8: what comes from a file, a database or the command line is checked or
/// converted where it comes in. These are the only functions that look at the bytes of a character.
///
/// None of them throws for bytes that are not UTF-8: each such byte counts as a character of its own.

/// What TakeCharacter() gives for a byte that is not UTF-8.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

/// The first character of `text`, which must not be empty, taken off it; kNoCharacter, and one byte taken,
/// where the bytes are no UTF-8 (an overlong form, a surrogate, above U+10FFFF, or cut short).
char32_t TakeCharacter(std::string_view& text);

/// Adds `character`, a code point up to U+10FFFF without the surrogates, to `text`.
void AppendCharacter(std::string& text, char32_t character);

/// Whether the whole of `text` is well-formed UTF-8.
bool IsUtf8(std::string_view text);

/// `text` with U+FFFD, the replacement character, in place of each byte that is not UTF-8.
std::string WithReplacements(std::string_view text);

/// How many characters `text` holds; a combining accent is one of its own.
std::size_t CountCharacters(std::string_view text);

/// The first `count` characters of `text`; all of it when it holds fewer.
std::string FirstCharacters(std::string_view text, std::size_t count);

/// `text` with every letter that has a capital as that capital ("ß", which has none of one letter, stays).
std::string UpperCase(std::string_view text);

/// `text` after the simple case folding of Unicode, the same in every language: "CAFFÈ" and "caffè" come out
/// the same, "caffe" does not; a final sigma is a sigma, "ß" stays. Bytes that are not UTF-8 stay as they
/// are. Two names are the same name when their folded texts are equal.
std::string FoldCase(std::string_view text);

/// Whether two names differ in nothing but case.
bool SameName(std::string_view a, std::string_view b);

/// Whether `text` shows nothing: it is empty, or holds only blanks, line breaks and other characters that
/// leave no ink (a no-break space, a zero-width one).
bool IsBlank(std::string_view text);

/// Whether `text` holds a line break, a null or another control character, which no name of a material, a
/// result or a file has: it would break lists and tables in two.
bool HoldsControlCharacter(std::string_view text);

}  // namespace velmar
