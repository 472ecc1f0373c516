#include "presentation/reports/filled_text.h"

namespace velmar::presentation {

void FillPlaceholders(ParagraphText& text, const Placeholders& values) {
  for (std::size_t from = 0;;) {
    const auto found = FindPlaceholder(text.Text(), from);
    if (!found) return;
    const auto value = values.find(found->name);
    if (value == values.end()) {
      from = found->begin + found->length;
      continue;
    }
    text.Replace(found->begin, found->length, value->second);
    from = found->begin + value->second.size();
  }
}

}  // namespace velmar::presentation
