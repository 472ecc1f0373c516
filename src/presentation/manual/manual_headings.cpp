#include "presentation/manual/manual_headings.h"

#include <algorithm>

#include "foundation/utf8.h"

namespace velmar::presentation {
namespace {

constexpr std::string_view kFence = "```";

bool IsDigitOrDot(char letter) { return (letter >= '0' && letter <= '9') || letter == '.'; }

std::string_view WithoutNumber(std::string_view title) {
  const auto* const first = std::ranges::find_if_not(title, IsDigitOrDot);
  if (first == title.end() || first == title.begin() || *first != ' ') return title;
  title.remove_prefix(static_cast<std::size_t>(first - title.begin()) + 1);
  return title;
}

/// Letters of other scripts than ASCII, which a text in Italian has as accents, count as letters.
bool IsOfAWord(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') ||
         static_cast<unsigned char>(letter) >= 0x80;
}

std::string WithoutMarks(std::string_view title) {
  std::string text(title);
  std::erase_if(text, [](char letter) { return letter == '`' || letter == '*'; });
  return text;
}

}  // namespace

std::string AnchorOf(std::string_view title) {
  std::string anchor;
  for (const char letter : FoldCase(WithoutNumber(title))) {
    if (IsOfAWord(letter)) {
      anchor += letter;
    } else if (!anchor.empty() && anchor.back() != '-') {
      anchor += '-';
    }
  }
  if (!anchor.empty() && anchor.back() == '-') anchor.pop_back();
  return anchor;
}

std::vector<ManualHeading> HeadingsIn(std::string_view markdown) {
  std::vector<ManualHeading> headings;
  bool code = false;
  while (!markdown.empty()) {
    const std::size_t end = std::min(markdown.find('\n'), markdown.size());
    const std::string_view line = markdown.substr(0, end);
    markdown.remove_prefix(std::min(end + 1, markdown.size()));
    if (line.starts_with(kFence)) code = !code;
    const std::size_t level = std::min(line.find_first_not_of('#'), line.size());
    if (code || level == 0 || level >= line.size() || line[level] != ' ') continue;
    std::string title = WithoutMarks(line.substr(level + 1));
    std::string anchor = AnchorOf(title);
    headings.push_back({static_cast<int>(level), std::move(title), std::move(anchor)});
  }
  return headings;
}

}  // namespace velmar::presentation
