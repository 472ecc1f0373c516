#include "manual_builder/directives.h"

#include <sstream>
#include <stdexcept>

#include "foundation/decimal.h"

namespace velmar::manual {
namespace {

constexpr std::string_view kOpen = "{{";
constexpr std::string_view kClose = "}}";

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Replacement(const std::string& inside, const Directives& directives) {
  const std::size_t colon = inside.find(':');
  const auto found = directives.find(Trimmed(inside.substr(0, colon)));
  if (found == directives.end()) throw std::runtime_error("unknown directive");
  Arguments arguments;
  if (colon != std::string::npos) {
    std::istringstream rest(inside.substr(colon + 1));
    for (std::string argument; std::getline(rest, argument, ';');) arguments.push_back(Trimmed(argument));
  }
  return found->second(arguments);
}

std::string ExpandedLine(const std::string& line, const Directives& directives) {
  std::string text;
  std::size_t from = 0;
  for (std::size_t open = line.find(kOpen); open != std::string::npos; open = line.find(kOpen, from)) {
    const std::size_t close = line.find(kClose, open);
    if (close == std::string::npos) throw std::runtime_error("a directive is not closed");
    text += line.substr(from, open - from);
    text += Replacement(line.substr(open + kOpen.size(), close - open - kOpen.size()), directives);
    from = close + kClose.size();
  }
  return text + line.substr(from);
}

/// A cell may hold what would end it or dress it.
std::string CellText(const std::string& text) {
  std::string cell;
  for (const char letter : text) {
    if (letter == '|' || letter == '*' || letter == '<') cell += '\\';
    cell += letter == '\n' ? ' ' : letter;
  }
  return cell;
}

}  // namespace

std::string Expand(const std::string& text, const Directives& directives, const std::string& name) {
  std::istringstream lines(text);
  std::string expanded;
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    try {
      expanded += ExpandedLine(line, directives) + '\n';
    } catch (const std::exception& failure) {
      throw std::runtime_error(name + ", line " + std::to_string(number) + ": " + failure.what() + ": " +
                               line);
    }
  }
  return expanded;
}

std::string WithChapterNumbers(const std::string& text, int& next) {
  constexpr std::string_view kChapter = "## ";
  std::istringstream lines(text);
  std::string numbered;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kChapter)) line.insert(kChapter.size(), std::to_string(next++) + ". ");
    numbered += line + '\n';
  }
  return numbered;
}

std::string TableText(const std::vector<std::string>& heads,
                      const std::vector<std::vector<std::string>>& rows) {
  std::string text = "\n|";
  for (const std::string& head : heads) text += ' ' + CellText(head) + " |";
  text += "\n|";
  for (std::size_t i = 0; i < heads.size(); ++i) text += "---|";
  text += '\n';
  for (const auto& row : rows) {
    text += '|';
    for (const std::string& cell : row) text += ' ' + CellText(cell) + " |";
    text += '\n';
  }
  return text;
}

std::string NumberText(double value, int decimals) {
  std::string text = FormatFixed(value, decimals);
  if (text.starts_with('-'))
    text.replace(0, 1, text.find_first_of("123456789") == std::string::npos ? "" : "−");
  return text;
}

std::string SignedText(double value, int decimals) {
  const std::string text = NumberText(value, decimals);
  return text.starts_with("−") || text.find_first_of("123456789") == std::string::npos ? text : '+' + text;
}

}  // namespace velmar::manual
