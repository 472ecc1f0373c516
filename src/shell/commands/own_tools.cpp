#include "shell/commands/own_tools.h"

namespace velmar::shell {

OwnTools::OwnTools(const Speech& speech, const std::filesystem::path& settings, const char* file) {
  static_cast<Speech&>(tools) = speech;
  if (settings.empty()) return;
  const std::filesystem::path own = settings.parent_path() / file;
  memory = std::make_unique<QSettings>(QString::fromStdString(own.string()), QSettings::IniFormat);
  tools.memory = memory.get();
}

}  // namespace velmar::shell
