#pragma once

#include <memory>

#include "shell/pages/window_services.h"
#include "shell/structures/store_sources.h"

namespace velmar::shell {

/// The windows on stored and measured structures behind the commands and buttons of the main window: results
/// database, measured library, comparison.
class StructureCommands {
 public:
  /// Puts the windows into `services`, whose words, boxes and places are set already.
  /// @param services both are to live as long as the main window
  StructureCommands(WindowServices& services, const structures::LibraryPlaces& places,
                    std::shared_ptr<storage::AccessSession> session);
  ~StructureCommands();
  StructureCommands(const StructureCommands&) = delete;
  StructureCommands& operator=(const StructureCommands&) = delete;

 private:
  class Windows;
  std::unique_ptr<Windows> windows_;
};

}  // namespace velmar::shell
