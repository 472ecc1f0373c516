#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace velmar::presentation {

/// Placeholder without brackets -> text that takes its place; "P1_NOTE" stands for "[P1_NOTE]".
using Placeholders = std::map<std::string, std::string, std::less<>>;

/// A placeholder found in a text.
struct FoundPlaceholder {
  std::size_t begin = 0;
  std::size_t length = 0;
  std::string name{};  ///< without brackets
};

/// The first placeholder of `text` from `from` on: capitals, digits and underscores in square brackets, with
/// at least one capital. "[10]" is none.
std::optional<FoundPlaceholder> FindPlaceholder(std::string_view text, std::size_t from);

/// Whether `text` holds the placeholder `name`.
bool HoldsPlaceholder(std::string_view text, std::string_view name);

/// A marker found in a text, such as "P1_FREQ_START", with the brackets that may stand around it.
std::optional<FoundPlaceholder> FindMarker(std::string_view text, std::string_view marker);

}  // namespace velmar::presentation
