#include "usage_builder/completions.h"

#include <functional>

namespace velmar::usage_builder {
namespace {

using Visit = std::function<void(const UsageCommand& command, const std::string& path)>;

/// `command` and all below it, each with the names that lead to it: "velmar", "velmar materials", ...
void ForEachCommand(const UsageCommand& command, const std::string& path, const Visit& visit) {
  visit(command, path);
  for (const UsageCommand& inner : command.commands) ForEachCommand(inner, path + " " + inner.name, visit);
}

void Append(std::string& list, const std::string& word) {
  if (!list.empty()) list += ' ';
  list += word;
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
    text.replace(at, what.size(), with);
  return text;
}

/// The commands, options and choices at `command`, one blank between two.
std::string CommandNames(const UsageCommand& command) {
  std::string names;
  for (const UsageCommand& inner : command.commands) Append(names, inner.name);
  return names;
}

std::string OptionNames(const UsageCommand& command) {
  std::string names;
  for (const UsageOption& option : command.options) {
    if (option.argument) continue;
    for (const std::string& name : option.names) Append(names, name);
  }
  return names;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) Append(list, word);
  return list;
}

/// `text` between single quotation marks, as POSIX shells and zsh read it.
std::string ShellQuoted(const std::string& text) { return "'" + Replaced(text, "'", "'\\''") + "'"; }

/// A help text inside the brackets of zsh's _arguments.
std::string ZshHelp(std::string text) {
  for (const char* special : {"\\", "[", "]", ":"})
    text = Replaced(text, special, std::string("\\") + special);
  return text;
}

std::string ZshValue(const UsageOption& option) {
  if (!option.takes_value) return {};
  const std::string what = option.choices.empty() ? "_files" : "(" + Joined(option.choices) + ")";
  return ":" + ZshHelp(option.value) + ":" + what;
}

std::string ZshFunction(const std::string& path) { return "_" + Replaced(path, " ", "_"); }

/// The zsh function of one command; options of the program itself are offered with it.
std::string ZshCommand(const UsageCommand& command, const std::string& path, const std::string& shared) {
  std::string text = ZshFunction(path) + "() {\n  _arguments -C \\\n";
  for (const UsageOption& option : command.options) {
    if (option.argument) continue;
    for (const std::string& name : option.names)
      text += "    " + ShellQuoted(name + "[" + ZshHelp(option.help) + "]" + ZshValue(option)) + " \\\n";
  }
  text += shared;
  if (command.commands.empty()) return text + "    '*:file:_files'\n}\n\n";
  const std::string names = ZshFunction(path) + "_commands";
  text +=
      "    '1: :" + names + "' '*:: :->command'\n  case $state in\n    command)\n      case $words[1] in\n";
  for (const UsageCommand& inner : command.commands)
    text += "        " + inner.name + ") " + ZshFunction(path + " " + inner.name) + ";;\n";
  text += "      esac;;\n  esac\n}\n" + names + "() {\n  local -a commands=(\n";
  for (const UsageCommand& inner : command.commands)
    text += "    " + ShellQuoted(inner.name + ":" + Replaced(inner.help, ":", "\\:")) + "\n";
  return text + "  )\n  _describe 'command' commands\n}\n\n";
}

std::string FishQuoted(const std::string& text) {
  return "'" + Replaced(Replaced(text, "\\", "\\\\"), "'", "\\'") + "'";
}

std::string FishOption(const UsageOption& option) {
  std::string text;
  for (const std::string& name : option.names)
    text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  if (!option.choices.empty()) {
    text += " -x -a " + FishQuoted(Joined(option.choices));
  } else if (option.takes_value) {
    text += " -r -F";
  }
  return text + " -d " + FishQuoted(option.help);
}

/// When the commands of `path` have been typed, and none of `command`'s own.
std::string FishCondition(const UsageCommand& command, const std::string& path) {
  std::string condition;
  std::string rest = path;
  for (std::size_t blank = rest.find(' '); blank != std::string::npos; blank = rest.find(' ')) {
    rest = rest.substr(blank + 1);
    condition += (condition.empty() ? "" : "; and ") + std::string("__fish_seen_subcommand_from ") +
                 rest.substr(0, rest.find(' '));
  }
  if (command.commands.empty()) return condition;
  return condition + (condition.empty() ? "" : "; and ") + "not __fish_seen_subcommand_from " +
         CommandNames(command);
}

}  // namespace

std::string BashCompletion(const UsageCommand& program) {
  std::string cases;
  std::string values;
  ForEachCommand(program, program.name, [&](const UsageCommand& command, const std::string& path) {
    cases += "    '" + path + "') commands='" + CommandNames(command) + "'; options='" +
             OptionNames(command) + "';;\n";
    for (const UsageOption& option : command.options) {
      if (option.argument || !option.takes_value) continue;
      for (const std::string& name : option.names)
        values += "    '" + path + " " + name + "') " +
                  (option.choices.empty()
                       ? "COMPREPLY=($(compgen -f -- \"$word\"))"
                       : "COMPREPLY=($(compgen -W '" + Joined(option.choices) + "' -- \"$word\"))") +
                  "; return;;\n";
    }
  });
  // Options of the program itself may stand behind a command.
  std::string shared;
  for (const UsageOption& option : program.options)
    if (!option.argument && option.takes_value)
      for (const std::string& name : option.names) Append(shared, name);
  std::string text = "# bash completion for " + program.name + "; made by the build.\n";
  text += "_" + program.name + "_options() {\n  case $1 in\n" + cases +
          "    *) commands=''; options='';;\n  esac\n}\n";
  text += "_" + program.name + "() {\n" +
          "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} path=" + program.name +
          " commands options i\n" +
          "  for ((i = 1; i < COMP_CWORD; ++i)); do\n"
          "    _" +
          program.name +
          "_options \"$path\"\n"
          "    [[ \" $commands \" == *\" ${COMP_WORDS[i]} \"* ]] && path+=\" ${COMP_WORDS[i]}\"\n"
          "  done\n"
          "  case \"$path $before\" in\n" +
          values + "  esac\n";
  if (!shared.empty())
    text += "  case $before in " + Replaced(shared, " ", "|") +
            ") COMPREPLY=($(compgen -f -- \"$word\")); return;; esac\n";
  text += "  _" + program.name +
          "_options \"$path\"\n"
          "  if [[ $word == -* ]]; then\n"
          "    COMPREPLY=($(compgen -W \"$options " +
          shared +
          "\" -- \"$word\"))\n"
          "  elif [[ -n $commands ]]; then\n"
          "    COMPREPLY=($(compgen -W \"$commands\" -- \"$word\"))\n"
          "  else\n"
          "    COMPREPLY=($(compgen -f -- \"$word\"))\n"
          "  fi\n}\n"
          "complete -o filenames -F _" +
          program.name + " " + program.name + "\n";
  return text;
}

std::string ZshCompletion(const UsageCommand& program) {
  std::string shared;
  for (const UsageOption& option : program.options) {
    if (option.argument || !option.takes_value) continue;
    for (const std::string& name : option.names)
      shared += "    " + ShellQuoted(name + "[" + ZshHelp(option.help) + "]" + ZshValue(option)) + " \\\n";
  }
  std::string text = "#compdef " + program.name + "\n# Made by the build.\n\n";
  ForEachCommand(program, program.name, [&](const UsageCommand& command, const std::string& path) {
    text += ZshCommand(command, path, path == program.name ? std::string() : shared);
  });
  return text + ZshFunction(program.name) + " \"$@\"\n";
}

std::string FishCompletion(const UsageCommand& program) {
  std::string text = "# fish completion for " + program.name + "; made by the build.\n";
  ForEachCommand(program, program.name, [&](const UsageCommand& command, const std::string& path) {
    const std::string condition = FishCondition(command, path);
    const std::string start = "complete -c " + program.name + " -n " + FishQuoted(condition);
    for (const UsageCommand& inner : command.commands)
      text += start + " -f -a " + inner.name + " -d " + FishQuoted(inner.help) + "\n";
    const bool everywhere = path == program.name;
    for (const UsageOption& option : command.options) {
      if (option.argument) continue;
      text += (everywhere ? "complete -c " + program.name : start) + FishOption(option) + "\n";
    }
  });
  return text;
}

}  // namespace velmar::usage_builder
