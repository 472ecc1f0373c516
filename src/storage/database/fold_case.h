#pragma once

#include <string>
#include <string_view>

namespace velmar::storage {

/// `text` (UTF-8) with every letter of the Latin, Greek and Cyrillic alphabets in lower case, accented ones
/// included: "CAFFÈ" and "caffè" come out the same, "caffe" does not. Final sigma counts as sigma, "ß" stays.
/// Bytes that are not UTF-8 stay as they are. Two names are the same name when their folded texts are equal.
std::string FoldCase(std::string_view text);

/// Whether two names differ in nothing but case.
bool SameName(std::string_view a, std::string_view b);

}  // namespace velmar::storage
