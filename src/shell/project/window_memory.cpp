#include "shell/project/window_memory.h"

#include <QMainWindow>
#include <QSettings>
#include <QSplitter>
#include <QStringList>

#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr const char* kRecentKey = "recenti";
constexpr const char* kGeometryKey = "finestra/posizione";
constexpr const char* kSidesKey = "finestra/lati";
constexpr const char* kResultsKey = "finestra/risultati";
constexpr const char* kDocumentProjectKey = "documenti/progetto";
constexpr const char* kDocumentFolderKey = "documenti/cartella";
constexpr const char* kKnownKey = "detto";
constexpr const char* kContinuousKey = "calcolo/continuo";
constexpr int kMostRemembered = 10;

QString FromUtf8(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

}  // namespace

WindowMemory::WindowMemory(std::filesystem::path file) : file_(std::move(file)) {
  if (file_.empty()) return;
  const QSettings settings(FromUtf8(file_), QSettings::IniFormat);
  document_ = {settings.value(kDocumentProjectKey).toString().toStdString(),
               settings.value(kDocumentFolderKey).toString().toStdString()};
  const QStringList known = settings.value(kKnownKey).toStringList();
  known_ = {known.begin(), known.end()};
}

std::vector<std::filesystem::path> WindowMemory::RecentProjects() const {
  std::vector<std::filesystem::path> projects;
  if (file_.empty()) return projects;
  for (const QString& path :
       QSettings(FromUtf8(file_), QSettings::IniFormat).value(kRecentKey).toStringList()) {
    std::error_code error;
    if (std::filesystem::path project = path.toStdString(); std::filesystem::exists(project, error))
      projects.push_back(std::move(project));
  }
  return projects;
}

void WindowMemory::Remember(const std::filesystem::path& project) {
  if (file_.empty()) return;
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(project, error);
  QSettings settings(FromUtf8(file_), QSettings::IniFormat);
  QStringList paths = settings.value(kRecentKey).toStringList();
  paths.removeAll(FromUtf8(whole));
  paths.prepend(FromUtf8(whole));
  settings.setValue(kRecentKey, paths.mid(0, kMostRemembered));
}

void WindowMemory::ForgetProjects() {
  if (!file_.empty()) QSettings(FromUtf8(file_), QSettings::IniFormat).remove(kRecentKey);
}

void WindowMemory::RememberDocument(LastDocument document) {
  document_ = std::move(document);
  if (file_.empty()) return;
  QSettings settings(FromUtf8(file_), QSettings::IniFormat);
  settings.setValue(kDocumentProjectKey, FromUtf8(document_.project));
  settings.setValue(kDocumentFolderKey, FromUtf8(document_.folder));
}

bool WindowMemory::IsFirst(const QString& what) {
  if (known_.contains(what)) return false;
  known_.insert(what);
  if (!file_.empty())
    QSettings(FromUtf8(file_), QSettings::IniFormat).setValue(kKnownKey, QStringList(known_.values()));
  return true;
}

bool WindowMemory::IsContinuous() const {
  return !file_.empty() &&
         QSettings(FromUtf8(file_), QSettings::IniFormat).value(kContinuousKey, false).toBool();
}

void WindowMemory::RememberContinuous(bool on) {
  if (!file_.empty()) QSettings(FromUtf8(file_), QSettings::IniFormat).setValue(kContinuousKey, on);
}

void WindowMemory::SaveSizes(const QMainWindow& window, const QSplitter& sides,
                             const QSplitter& results) const {
  if (file_.empty()) return;
  QSettings settings(FromUtf8(file_), QSettings::IniFormat);
  settings.setValue(kGeometryKey, window.saveGeometry());
  settings.setValue(kSidesKey, sides.saveState());
  settings.setValue(kResultsKey, results.saveState());
}

bool WindowMemory::RestoreSizes(QMainWindow& window, QSplitter& sides, QSplitter& results) const {
  if (file_.empty()) return false;
  const QSettings settings(FromUtf8(file_), QSettings::IniFormat);
  const bool known = window.restoreGeometry(settings.value(kGeometryKey).toByteArray());
  sides.restoreState(settings.value(kSidesKey).toByteArray());
  results.restoreState(settings.value(kResultsKey).toByteArray());
  return known;
}

}  // namespace velmar::shell
