#include "shell/project/templates.h"

#include <QDir>
#include <QFileInfo>
#include <system_error>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/project/project_files.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr const char* kEnding = ".drav";
/// Of a name in bytes: with the ending it fits every file system.
constexpr qsizetype kLongestName = 200;

bool IsFileName(const QString& name) {
  return !name.contains('/') && !name.contains('\\') && !name.contains(QChar(0)) && !name.startsWith('.') &&
         name.toUtf8().size() <= kLongestName;
}

bool Exists(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

}  // namespace

std::vector<std::filesystem::path> Templates::All() const {
  return AreKept() ? ProjectsIn(folder_) : std::vector<std::filesystem::path>();
}

std::optional<std::filesystem::path> Templates::AskName(MessageRow title, const QString& proposed) const {
  if (!speech_.boxes.ask_name) return std::nullopt;
  const QString name = speech_.boxes
                           .ask_name({.title = Text(speech_.words, title),
                                      .prompt = Text(speech_.words, kTemplateNameRow),
                                      .proposed = proposed})
                           .trimmed();
  if (name.isEmpty()) return std::nullopt;
  if (!IsFileName(name)) {
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kTemplateNameRefusedRow));
    return std::nullopt;
  }
  return folder_ / ToUtf8(name + kEnding);
}

void Templates::TellNotWritten(const std::filesystem::path& file) const {
  speech_.boxes.tell(Tone::kCritical,
                     Text(speech_.words, kFileNotWrittenRow) + '\n' + FromUtf8(file.string()));
}

std::optional<std::filesystem::path> Templates::Keep(const elements::Setup& setup,
                                                     const QString& proposed) const {
  if (!AreKept()) return std::nullopt;
  const auto file = AskName(kSaveAsTemplateRow, proposed);
  if (!file) return std::nullopt;
  const QString question = Text(speech_.words, kReplaceTemplateQuestionRow) + '\n' + FromUtf8(file->stem());
  if (Exists(*file) && !speech_.boxes.ask(question)) return std::nullopt;
  elements::Setup kept = setup;
  for (elements::ProjectInformationRow& row : kept.information) row.value.clear();
  try {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    services_.write_project(*file, kept);
  } catch (const Failure& failure) {
    speech_.boxes.tell(Tone::kCritical, Text(speech_.words, failure.UserMessage()));
    return std::nullopt;
  }
  return file;
}

bool Templates::Rename(const std::filesystem::path& file) const {
  const auto renamed = AskName(kRenameTemplateRow, FromUtf8(file.stem()));
  if (!renamed || *renamed == file) return false;
  // Unlike the system's own renaming, this replaces nothing.
  if (Exists(*renamed)) {
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kTemplateNameTakenRow));
    return false;
  }
  if (QFile::rename(FromUtf8(file.string()), FromUtf8(renamed->string()))) return true;
  TellNotWritten(*renamed);
  return false;
}

bool Templates::Remove(const std::filesystem::path& file) const {
  const QString question = Text(speech_.words, kDeleteTemplateQuestionRow) + '\n' + FromUtf8(file.stem());
  if (!speech_.boxes.ask(question)) return false;
  std::error_code error;
  if (std::filesystem::remove(file, error) || !Exists(file)) return true;
  TellNotWritten(file);
  return false;
}

}  // namespace velmar::shell
