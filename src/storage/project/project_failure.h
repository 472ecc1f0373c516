#pragma once

#include <filesystem>
#include <string>

#include "foundation/failure.h"
#include "foundation/message.h"

namespace velmar::storage {

/// What the user is told of a file that does not exist.
inline constexpr const char* kProjectMissing = "Impossibile aprire il file: file non trovato";

/// A project file could not be read. Nothing of it was taken over.
class ProjectFileFailure : public Failure {
 public:
  /// Line `line_number` (from 1) of the file is not what the format asks for.
  /// @param what what was expected, behind "Riga n: "
  /// @param detail the same in English
  ProjectFileFailure(int line_number, MessageLine what, const std::string& detail);

  /// The file as a whole cannot be read.
  ProjectFileFailure(Message message, std::string detail);

  /// The same failure with the name of the file behind its words.
  ProjectFileFailure In(const std::filesystem::path& file) const;

  /// The line that stopped the reading; 0 when none did.
  int LineNumber() const noexcept { return line_number_; }

 private:
  int line_number_ = 0;
};

}  // namespace velmar::storage
