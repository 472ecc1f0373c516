#include "storage/access/access_copy.h"

#include <string>
#include <system_error>

#include "foundation/message_rows.h"
#include "platform/process.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

void RemoveRests(const fs::path& target) {
  std::error_code error;
  fs::remove(target, error);
  fs::remove(target.string() + "-journal", error);
}

}  // namespace

void CopyAccessFile(const AccessReader& reader, const fs::path& source, const fs::path& target) {
  // Absolute, so that no name is taken for an option.
  const platform::ProcessEnd end = platform::RunProgram(
      reader.program, {fs::absolute(source).string(), fs::absolute(target).string()}, reader.time_limit);
  if (end.start_error != 0) {
    throw AccessFailure(
        {{kNoAccessReaderRow, " " + source.string()}},
        "cannot start " + reader.program.string() + ": " + std::generic_category().message(end.start_error));
  }
  if (end.well) return;
  RemoveRests(target);
  throw AccessFailure({{kAccessNotReadRow, " " + source.string()}},
                      source.string() + ": not readable as an Access file");
}

}  // namespace velmar::storage
