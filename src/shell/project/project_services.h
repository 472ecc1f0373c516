#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "elements/setup.h"
#include "shell/project/lost_work.h"

namespace velmar::shell {

/// Where the projects of others stand, and where the user's own may go.
struct ProjectPlaces {
  std::filesystem::path examples{};   ///< folder of the shipped example projects; nothing is written there
  std::filesystem::path documents{};  ///< proposed where a project has no folder of its own
  std::filesystem::path templates{};  ///< folder of the user's own templates; empty: none are kept
};

/// How projects are begun, read and written.
struct ProjectServices {
  /// @throws Failure when the file cannot be read; nothing has changed then
  std::function<elements::Setup(const std::filesystem::path&)> read_project{};
  /// Reads a project without opening it, as it would open over `current`. Called beside the window, so it may
  /// share nothing with it, and asks and tells nothing. @throws std::exception when it cannot
  std::function<elements::Setup(const std::filesystem::path& project, const elements::Setup& current)>
      look_at_project{};
  /// @throws Failure when the file cannot be written; the old one is untouched then
  std::function<void(const std::filesystem::path&, const elements::Setup&)> write_project{};
  /// The set-up of a fresh start, without a calculation. What it cannot read it tells and does without.
  std::function<elements::Setup()> new_setup{};
  /// What is to become of `works`, of which there is at least one.
  std::function<LostWorkAnswer(const std::vector<LostWork>& works)> ask_about_lost_work{};
};

}  // namespace velmar::shell
