#include "cli/output/failure_report.h"

#include <string>

#include "cli/output/outcome_table.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/files/store_failure.h"

namespace velmar::cli {
namespace {

/// `text` as one word of a shell.
std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char letter : text) quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
  return quoted + "'";
}

}  // namespace

Message ConversionAdvice(const std::filesystem::path& file) {
  if (storage::KindOf(file) != storage::FileKind::kAccess) return {};
  return {{kConversionCommandRow}, {"  velmar import --yes " + Quoted(file.string())}};
}

ExitCode TellFailure(const Failure& failure, const presentation::Words& words, std::ostream& errors) {
  WriteMessage(failure.UserMessage(), words, errors);
  if (const auto* database = dynamic_cast<const storage::DatabaseFailure*>(&failure))
    WriteMessage(ConversionAdvice(database->File()), words, errors);
  return ExitCode::kFailed;
}

ExitCode TellException(const std::exception& exception, const presentation::Words& words,
                       std::ostream& errors) {
  if (const auto* failure = dynamic_cast<const Failure*>(&exception))
    return TellFailure(*failure, words, errors);
  if (const auto* system = dynamic_cast<const std::filesystem::filesystem_error*>(&exception)) {
    const int number = system->code().value();
    MessageLine line{kUnexpectedFailureRow, " "};
    for (const MessagePiece& piece : storage::ReasonLine(storage::ReasonOfErrorNumber(number), number))
      line.push_back(piece);
    WriteMessage({line}, words, errors);
    if (!system->path1().empty()) errors << WithReplacements(system->path1().string()) << '\n';
    return ExitCode::kFailed;
  }
  errors << words(kUnexpectedFailureRow) << ' ' << WithReplacements(exception.what()) << '\n';
  return ExitCode::kFailed;
}

}  // namespace velmar::cli
