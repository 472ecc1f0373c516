#pragma once

#include <string>
#include <vector>

#include <CLI/App.hpp>

namespace velmar::usage_builder {

/// An option, or an argument without a name.
struct UsageOption {
  std::vector<std::string> names{};  ///< as typed: "-h", "--help"; of an argument its one word: "FILE"
  bool argument = false;             ///< has no name on the command line
  bool required = false;
  bool takes_value = false;            ///< always true for an argument
  std::string value{};                 ///< what stands for the value in a synopsis; empty for a flag
  std::vector<std::string> choices{};  ///< the only values there are; empty: any
  std::string help{};
};

/// A command with everything below it.
struct UsageCommand {
  std::string name{};
  std::string help{};
  std::vector<UsageOption> options{};
  std::vector<UsageCommand> commands{};
};

/// What `app` would say of itself, as a tree, in the order in which commands and options were added. Words
/// such as "TEXT" are those of the app's formatter.
UsageCommand UsageOf(const CLI::App& app, const std::string& name);

}  // namespace velmar::usage_builder
