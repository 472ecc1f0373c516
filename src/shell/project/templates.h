#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "elements/setup.h"
#include "shell/project/project_services.h"
#include "shell/windows/boxes.h"

namespace velmar::shell {

/// The user's own projects to begin others with: one file each in a folder of their own. A template is called
/// after its file. What cannot be done is told.
class Templates {
 public:
  /// @param speech and `services` outlive this object
  /// @param folder made when the first template is kept; empty: none are
  Templates(std::filesystem::path folder, const Speech& speech, const ProjectServices& services)
      : folder_(std::move(folder)), speech_(speech), services_(services) {}

  /// Whether templates can be kept at all.
  bool AreKept() const { return !folder_.empty(); }
  /// By name.
  std::vector<std::filesystem::path> All() const;

  /// Asks for a name and keeps `setup` under it, without what belongs to one commission: the values of the
  /// project's information. A template that has the name is replaced only when the user says so.
  /// @return the file, or nothing when the user cancels or it cannot be written
  std::optional<std::filesystem::path> Keep(const elements::Setup& setup, const QString& proposed) const;
  /// Asks for another name. @return whether it has one now
  bool Rename(const std::filesystem::path& file) const;
  /// Asks, then deletes. @return whether it is gone
  bool Remove(const std::filesystem::path& file) const;

 private:
  std::optional<std::filesystem::path> AskName(MessageRow title, const QString& proposed) const;
  void TellNotWritten(const std::filesystem::path& file) const;

  std::filesystem::path folder_;
  const Speech& speech_;
  const ProjectServices& services_;
};

}  // namespace velmar::shell
