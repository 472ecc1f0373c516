#include "cli/parsing/usage_words.h"

#include <array>
#include <string_view>
#include <vector>

#include "foundation/message_rows.h"

namespace velmar::cli {
namespace {

struct Label {
  const char* english = "";
  MessageRow row{};
};
/// The words that the parser's own help would write in English.
constexpr std::array kLabels = {Label{"Usage", kUsageWordRow},       Label{"Positionals", kArgumentsWordRow},
                                Label{"REQUIRED", kRequiredWordRow}, Label{"TEXT", kTextWordRow},
                                Label{"OPTIONS", kOptionsWordRow},   Label{"SUBCOMMAND", kCommandWordRow}};

void GroupUnder(const std::string& options, const std::string& commands, CLI::App& app) {
  for (CLI::Option* option : app.get_options()) option->group(options);
  for (CLI::App* command : app.get_subcommands({})) {
    command->group(commands);
    GroupUnder(options, commands, *command);
  }
}

/// The text before the first `mark`; all of it without one.
std::string Before(std::string_view text, std::string_view mark) {
  return std::string(text.substr(0, text.find(mark)));
}

}  // namespace

void SayHelpIn(const presentation::Words& words, CLI::App& app) {
  for (const Label& label : kLabels) app.get_formatter()->label(label.english, words(label.row));
  const auto say_help = [&](CLI::App* command) {
    command->get_help_ptr()->description(words(kHelpOptionRow));
  };
  say_help(&app);
  for (CLI::App* command : app.get_subcommands({})) {
    say_help(command);
    for (CLI::App* inner : command->get_subcommands({})) say_help(inner);
  }
  GroupUnder(words(kOptionsWordRow), words(kCommandsWordRow), app);
}

std::string WrongUsage(const CLI::ParseError& error, const CLI::App& app, const presentation::Words& words) {
  const std::string said = error.what();
  const bool missing = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  const bool no_command = missing && said.starts_with("A subcommand");
  // A command that is not known is left over, and missing all the same.
  if (const std::vector<std::string> left = app.remaining(true); !left.empty() && (no_command || !missing)) {
    std::string text = words(kUnknownArgumentRow);
    for (const std::string& argument : left) text += " " + argument;
    return text;
  }
  if (no_command) return words(kCommandMissingRow);
  if (missing) return words(kMissingArgumentRow) + " " + Before(said, " is required");
  return words(kWrongValueRow) + " " + Before(said, ":");
}

}  // namespace velmar::cli
