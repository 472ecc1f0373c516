#include "storage/project/project_failure.h"

#include <utility>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"

namespace velmar::storage {
namespace {

Message DamagedAt(int line_number, MessageLine what) {
  MessageLine line = {kProjectLineRow, " " + std::to_string(line_number) + ": "};
  line.insert(line.end(), what.begin(), what.end());
  return {{kProjectDamagedRow}, std::move(line)};
}

}  // namespace

ProjectFileFailure::ProjectFileFailure(int line_number, MessageLine what, const std::string& detail)
    : Failure(DamagedAt(line_number, std::move(what)), "line " + std::to_string(line_number) + ": " + detail),
      line_number_(line_number) {}

ProjectFileFailure::ProjectFileFailure(Message message, std::string detail)
    : Failure(std::move(message), std::move(detail)) {}

ProjectFileFailure ProjectFileFailure::In(const std::filesystem::path& file) const {
  Message message = UserMessage();
  message.back().push_back("\n" + WithReplacements(file.string()));
  ProjectFileFailure named(std::move(message), file.string() + ": " + what());
  named.line_number_ = line_number_;
  return named;
}

}  // namespace velmar::storage
