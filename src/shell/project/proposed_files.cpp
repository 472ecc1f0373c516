#include "shell/project/proposed_files.h"

#include <QDir>
#include <algorithm>
#include <system_error>

#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

namespace fs = std::filesystem;

QString FromUtf8(const fs::path& path) { return QString::fromStdString(path.string()); }

fs::path Whole(const fs::path& path) {
  std::error_code error;
  fs::path whole = fs::weakly_canonical(path, error);
  return error ? path.lexically_normal() : whole;
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return !path.empty() && fs::is_directory(path, error);
}

/// The file `name` in `folder`, or the folder itself.
QString In(const fs::path& folder, const fs::path& name) { return FromUtf8(folder / name); }

}  // namespace

bool ProposedFiles::IsOriginal(const fs::path& file) const {
  if (places_.examples.empty() || file.empty()) return false;
  const fs::path folder = Whole(places_.examples);
  const fs::path whole = Whole(file);
  return std::mismatch(folder.begin(), folder.end(), whole.begin(), whole.end()).first == folder.end();
}

fs::path ProposedFiles::OwnFolder(const fs::path& project) const {
  return project.empty() || IsOriginal(project) ? fs::path() : project.parent_path();
}

fs::path ProposedFiles::LastProjectFolder() const {
  for (const fs::path& recent : memory_.RecentProjects()) {
    if (!IsOriginal(recent)) return recent.parent_path();
  }
  return {};
}

fs::path ProposedFiles::Documents() const {
  return IsFolder(places_.documents) ? places_.documents : fs::path(QDir::homePath().toStdString());
}

QString ProposedFiles::ToOpen(const fs::path& project) const {
  if (!project.empty()) return FromUtf8(project);
  const fs::path last = LastProjectFolder();
  return In(last.empty() ? Documents() : last, "");
}

QString ProposedFiles::ToSave(const fs::path& project) const {
  fs::path folder = OwnFolder(project);
  if (folder.empty()) folder = LastProjectFolder();
  return In(folder.empty() ? Documents() : folder, project.filename());
}

QString ProposedFiles::ForDocument(const fs::path& project, const QString& ending) const {
  const WindowMemory::LastDocument last = memory_.Document();
  fs::path folder = OwnFolder(project);
  // Work of another folder is another job: its documents do not belong to this one.
  if (IsFolder(last.folder) && (folder.empty() || last.project == project)) folder = last.folder;
  if (folder.empty()) folder = Documents();
  if (project.empty()) return In(folder, "");
  return In(folder, project.stem()) + ending;
}

void ProposedFiles::Written(const fs::path& project, const fs::path& file) {
  std::error_code error;
  memory_.RememberDocument({project, fs::absolute(file, error).parent_path()});
}

}  // namespace velmar::shell
