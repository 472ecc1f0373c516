#include "shell/commands/own_tools.h"

namespace velmar::shell {

OwnTools::OwnTools(const Speech& speech, const std::filesystem::path& settings, const char* file) {
  tools.words = speech.words;
  tools.ask = speech.boxes.ask;
  tools.tell = [tell = speech.boxes.tell](const QString& text) { tell(Tone::kCritical, text); };
  if (settings.empty()) return;
  const std::filesystem::path own = settings.parent_path() / file;
  memory = std::make_unique<QSettings>(QString::fromStdString(own.string()), QSettings::IniFormat);
  tools.memory = memory.get();
}

}  // namespace velmar::shell
