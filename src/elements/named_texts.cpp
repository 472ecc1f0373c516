#include "elements/named_texts.h"

namespace velmar::elements {
namespace {

void AppendEscaped(std::string& text, std::string_view value) {
  for (const char c : value) {
    switch (c) {
      case '\\':
        text += "\\\\";
        break;
      case '\n':
        text += "\\n";
        break;
      case '\r':
        text += "\\r";
        break;
      case '\t':
        text += "\\t";
        break;
      default:
        text += c;
    }
  }
}

std::optional<std::string> Unescaped(std::string_view text) {
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      value += text[i];
      continue;
    }
    if (++i == text.size()) return std::nullopt;
    switch (text[i]) {
      case '\\':
        value += '\\';
        break;
      case 'n':
        value += '\n';
        break;
      case 'r':
        value += '\r';
        break;
      case 't':
        value += '\t';
        break;
      default:
        return std::nullopt;
    }
  }
  return value;
}

/// What stands before the first `sign` of `rest`, which is taken off together with it.
std::string_view TakeUpTo(char sign, std::string_view& rest) {
  const std::size_t end = rest.find(sign);
  const std::string_view taken = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return taken;
}

}  // namespace

std::string WriteNamedTexts(const NamedTexts& texts) {
  std::string lines;
  for (const auto& [name, value] : texts) {
    lines += name + '=';
    AppendEscaped(lines, value);
    lines += '\n';
  }
  return lines;
}

std::optional<NamedTexts> ReadNamedTexts(std::string_view lines) {
  NamedTexts texts;
  while (!lines.empty()) {
    std::string_view value = TakeUpTo('\n', lines);
    if (value.find('=') == std::string_view::npos) return std::nullopt;
    std::string name(TakeUpTo('=', value));
    auto text = Unescaped(value);
    if (name.empty() || !text) return std::nullopt;
    texts.emplace_back(std::move(name), *std::move(text));
  }
  return texts;
}

std::string JoinTexts(const std::vector<std::string>& texts) {
  std::string joined;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) joined += '\t';
    AppendEscaped(joined, texts[i]);
  }
  return joined;
}

std::optional<std::vector<std::string>> PartTexts(std::string_view joined) {
  std::vector<std::string> texts;
  while (true) {
    const bool last = joined.find('\t') == std::string_view::npos;
    auto text = Unescaped(TakeUpTo('\t', joined));
    if (!text) return std::nullopt;
    texts.push_back(*std::move(text));
    if (last) return texts;
  }
}

}  // namespace velmar::elements
