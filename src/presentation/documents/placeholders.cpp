#include "presentation/documents/placeholders.h"

#include <algorithm>

namespace velmar::presentation {
namespace {

bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }
bool IsNameCharacter(char c) { return IsCapital(c) || (c >= '0' && c <= '9') || c == '_'; }

}  // namespace

std::optional<FoundPlaceholder> FindPlaceholder(std::string_view text, std::size_t from) {
  for (std::size_t open = text.find('[', from); open != std::string_view::npos;
       open = text.find('[', open + 1)) {
    std::size_t end = open + 1;
    while (end < text.size() && IsNameCharacter(text[end])) ++end;
    const std::string_view name = text.substr(open + 1, end - open - 1);
    if (end < text.size() && text[end] == ']' && std::ranges::any_of(name, IsCapital)) {
      return FoundPlaceholder{.begin = open, .length = end + 1 - open, .name = std::string(name)};
    }
  }
  return std::nullopt;
}

bool HoldsPlaceholder(std::string_view text, std::string_view name) {
  return text.find("[" + std::string(name) + "]") != std::string_view::npos;
}

std::optional<FoundPlaceholder> FindMarker(std::string_view text, std::string_view marker) {
  const std::size_t at = text.find(marker);
  if (at == std::string_view::npos) return std::nullopt;
  FoundPlaceholder found{.begin = at, .length = marker.size(), .name = std::string(marker)};
  if (at > 0 && text[at - 1] == '[' && at + marker.size() < text.size() && text[at + marker.size()] == ']') {
    --found.begin;
    found.length += 2;
  }
  return found;
}

}  // namespace velmar::presentation
