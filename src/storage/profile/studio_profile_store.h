#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "elements/studio_profile.h"

namespace velmar::storage {

/// The largest picture that a profile takes.
inline constexpr std::size_t kLargestStudioPicture = std::size_t{10} << 20U;

/// The studio profile of a data folder: a text file of "key=value" lines with its pictures beside it, in the
/// folder "Studio". Every change reaches the disk whole or not at all.
class StudioProfileStore {
 public:
  explicit StudioProfileStore(const std::filesystem::path& data_folder);

  /// The profile; an empty one where none was set.
  /// @throws Failure when the file is damaged or cannot be read; it is left as it is
  elements::StudioProfile Read() const;

  /// Makes `profile` the one that holds, and forgets pictures that it no longer names. A damaged file that
  /// stood there is kept under another name.
  /// @return that name, if so
  /// @throws StoreFailure; the profile is as it was then
  std::optional<std::filesystem::path> Write(const elements::StudioProfile& profile) const;

  /// Copies the picture `source` beside the profile. @return the name under which a profile names it
  /// @throws Failure when it is no PNG, JPEG or SVG file, too large, or cannot be copied
  std::string KeepPicture(const std::filesystem::path& source) const;

  /// The bytes of the picture that a profile calls `name`.
  /// @throws Failure when it is not there
  std::string Picture(const std::string& name) const;

 private:
  std::filesystem::path File() const;
  /// Removes the pictures that `profile` does not name. One that cannot be removed does no harm.
  void ForgetPictures(const elements::StudioProfile& profile) const;

  std::filesystem::path folder_;
};

/// Whether `bytes` begin as a PNG, JPEG or SVG file does. @return its ending, "png", or nothing
std::optional<std::string> PictureEnding(std::string_view bytes);

}  // namespace velmar::storage
