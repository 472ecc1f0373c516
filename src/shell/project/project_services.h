#pragma once

#include <filesystem>
#include <functional>

#include "elements/setup.h"

namespace velmar::shell {

/// How projects are read and written.
struct ProjectServices {
  /// @throws Failure when the file cannot be read; nothing has changed then
  std::function<elements::Setup(const std::filesystem::path&)> read_project{};
  /// @throws Failure when the file cannot be written; the old one is untouched then
  std::function<void(const std::filesystem::path&, const elements::Setup&)> write_project{};
};

}  // namespace velmar::shell
