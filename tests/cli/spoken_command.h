#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/parsing/command_line.h"

namespace velmar::cli {

/// What a command answered.
struct Said {
  int code = -1;
  std::string out{};
  std::string errors{};

  nlohmann::json Json() const { return nlohmann::json::parse(out); }
};

/// Services that show rows by their numbers and know no material.
inline Services BareServices() {
  Services services;
  services.words = [](MessageRow row) { return "row " + std::to_string(row.number); };
  services.materials.structural = [](std::string_view) { return std::nullopt; };
  services.materials.fibrous = [](std::string_view) { return std::nullopt; };
  services.materials.resilient = [](std::string_view) { return std::nullopt; };
  return services;
}

/// The command line over `services`.
inline Said Speak(const std::vector<std::string>& arguments, const Services& services = BareServices()) {
  std::ostringstream out;
  std::ostringstream errors;
  const auto open = [&services](const auto&) { return services; };
  const int code = RunCommandLine(arguments, open, out, errors);
  return {code, out.str(), errors.str()};
}

/// The path of a shipped example project.
inline std::string Example(const char* name) { return std::string(EXAMPLES) + "/" + name + ".drav"; }

}  // namespace velmar::cli
