#pragma once

#include <span>
#include <string>
#include <vector>

#include "foundation/csv.h"

namespace velmar::message_rows {

/// A file of messages: "row", "name", "use" and a column for each language.
struct MessageFile {
  std::string name{};  ///< as the complaints call it
  CsvTable table{};
};

/// What keeps the rows of `files` from becoming constants, one line each: another heading than above, other
/// languages than the first file's, a row that is no whole number above 0 or stands twice, a name that is
/// missing, stands twice or is not written like kSaveProjectRow, a use that is
/// empty or no single line, a text missing in a language.
std::vector<std::string> Complaints(std::span<const MessageFile> files);

/// The header that names every row of `file` as a constant with its use as the comment. No wording stands in
/// it: a change of wording leaves it as it is. `file` is without complaints.
std::string Header(const MessageFile& file);

}  // namespace velmar::message_rows
