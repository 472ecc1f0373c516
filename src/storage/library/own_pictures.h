#pragma once

#include <filesystem>
#include <string>

namespace velmar::storage {

/// Keeps the picture in `file` beside the library's own, in the folder `folder` of `pictures`, under its name
/// or, where another picture has that name, with a number added. A picture that lies there already, or the
/// same bytes under the same name, is taken as it is.
/// @return the name by which a test names it
/// @throws StoreFailure when it cannot be read or kept, or is larger than a picture of a report may be
std::string KeepPicture(const std::filesystem::path& pictures, const std::string& folder,
                        const std::filesystem::path& file);

}  // namespace velmar::storage
