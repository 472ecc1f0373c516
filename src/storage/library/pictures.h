#pragma once

#include <filesystem>
#include <string>

namespace velmar::storage {

/// The picture file that a row names by `picture`, in the folder `folder` of `pictures`. Case is ignored, "\"
/// separates folders. "senza", an empty or missing name, and a name that leads out of the folder give
/// "senza.jpg" of `pictures`.
std::filesystem::path PictureFile(const std::filesystem::path& pictures, const std::string& folder,
                                  const std::string& picture);

}  // namespace velmar::storage
