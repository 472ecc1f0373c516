#include "presentation/documents/filled_text.h"

#include <vector>

namespace velmar::presentation {

void FillPlaceholders(ParagraphText& text, const Placeholders& values) {
  const std::string joined = text.Text();
  std::vector<ParagraphText::Replacement> replacements;
  for (std::size_t from = 0;;) {
    const auto found = FindPlaceholder(joined, from);
    if (!found) break;
    from = found->begin + found->length;
    const auto value = values.find(found->name);
    if (value == values.end()) continue;
    replacements.push_back({.begin = found->begin, .length = found->length, .value = value->second});
  }
  if (!replacements.empty()) text.Replace(replacements);
}

}  // namespace velmar::presentation
