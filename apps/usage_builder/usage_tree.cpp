#include "usage_builder/usage_tree.h"

#include <sstream>

namespace velmar::usage_builder {
namespace {

/// "yes|no" as its two words; none for a text that offers no choice.
std::vector<std::string> ChoicesIn(const std::string& type) {
  std::vector<std::string> choices;
  if (type.find('|') == std::string::npos) return choices;
  std::istringstream words(type);
  for (std::string word; std::getline(words, word, '|');) choices.push_back(word);
  return choices;
}

UsageOption OptionOf(const CLI::Option& option, const CLI::App& app) {
  UsageOption usage;
  usage.argument = option.get_positional();
  usage.required = option.get_required();
  usage.help = option.get_description();
  if (usage.argument) {
    usage.names = {option.get_name(true)};
  } else {
    for (const std::string& name : option.get_snames()) usage.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames()) usage.names.push_back("--" + name);
  }
  // Asking for help takes nothing, though the parser counts a value for it.
  const bool help = app.get_help_ptr() == &option;
  usage.takes_value = usage.argument || (!help && option.get_items_expected_min() > 0);
  if (usage.takes_value) {
    const std::string type = option.get_type_name();
    usage.choices = ChoicesIn(type);
    usage.value = usage.argument          ? usage.names.front()
                  : usage.choices.empty() ? app.get_formatter()->get_label(type)
                                          : type;
  }
  return usage;
}

}  // namespace

UsageCommand UsageOf(const CLI::App& app, const std::string& name) {
  UsageCommand command{.name = name, .help = app.get_description()};
  for (const CLI::Option* option : app.get_options()) command.options.push_back(OptionOf(*option, app));
  for (const CLI::App* inner : app.get_subcommands({}))
    command.commands.push_back(UsageOf(*inner, inner->get_name()));
  return command;
}

}  // namespace velmar::usage_builder
