#include "usage_builder/manual_page.h"

#include <stdexcept>

namespace velmar::usage_builder {
namespace {

/// `text` as roff takes it: no control character at the start of a line, no escape inside, hyphens that can
/// be copied.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char letter : text) {
    if (letter == '\\') {
      escaped += "\\e";
    } else if (letter == '-') {
      escaped += "\\-";
    } else if (letter == '\n') {
      escaped += ' ';
    } else {
      escaped += letter;
    }
  }
  return escaped.starts_with('.') || escaped.starts_with('\'') ? "\\&" + escaped : escaped;
}

std::string Bold(const std::string& text) { return "\\fB" + Escaped(text) + "\\fR"; }
std::string Italic(const std::string& text) { return "\\fI" + Escaped(text) + "\\fR"; }

bool IsHelp(const UsageOption& option) { return !option.names.empty() && option.names.back() == "--help"; }

std::string Synopsis(const UsageCommand& command, const std::string& path) {
  std::string text = Bold(path);
  for (const UsageOption& option : command.options) {
    if (IsHelp(option)) continue;
    std::string part = option.argument ? Italic(option.value) : Bold(option.names.back());
    if (!option.argument && option.takes_value) part += " " + Italic(option.value);
    text += option.required ? " " + part : " [" + part + "]";
  }
  return text;
}

void AddCommand(std::string& text, const UsageCommand& command, const std::string& path) {
  if (!command.commands.empty()) {
    for (const UsageCommand& inner : command.commands) AddCommand(text, inner, path + " " + inner.name);
    return;
  }
  text += ".SS " + Escaped(path) + "\n" + Synopsis(command, path) + "\n.PP\n" + Escaped(command.help) + "\n";
  for (const UsageOption& option : command.options) {
    if (IsHelp(option)) continue;
    std::string names;
    for (const std::string& name : option.names)
      names += (names.empty() ? "" : ", ") + (option.argument ? Italic(name) : Bold(name));
    if (!option.argument && option.takes_value) names += " " + Italic(option.value);
    text += ".TP\n" + names + "\n" + Escaped(option.help) + "\n";
  }
}

}  // namespace

std::string CommandSections(const UsageCommand& program) {
  std::string text;
  for (const UsageCommand& command : program.commands)
    AddCommand(text, command, program.name + " " + command.name);
  return text;
}

std::string ManualPage(const std::string& page, const UsageCommand& program) {
  const std::string mark = std::string(kCommandsMark) + "\n";
  const std::size_t at = page.find(mark);
  if (at == std::string::npos) throw std::invalid_argument("the manual page has no place for the commands");
  return page.substr(0, at) + CommandSections(program) + page.substr(at + mark.size());
}

}  // namespace velmar::usage_builder
