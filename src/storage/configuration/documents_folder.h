#pragma once

#include <filesystem>

namespace velmar::storage {

/// The documents folder of the user whose home is `home`: XDG_DOCUMENTS_DIR of the file "user-dirs.dirs" in
/// `settings`; where that says nothing, the folder "Documents" or "Documenti" of the home, whichever exists,
/// and "Documents" where neither does.
std::filesystem::path CartellaDocumenti(const std::filesystem::path& home,
                                        const std::filesystem::path& settings);

/// CartellaDocumenti() of the user who runs the program.
std::filesystem::path CartellaDocumenti();

}  // namespace velmar::storage
