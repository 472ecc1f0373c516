// velmar-access-reader SOURCE TARGET: copies the tables of an Access file into a new SQLite file.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <system_error>

#include <SQLiteCpp/Exception.h>

#include "access_reader/access_file.h"
#include "access_reader/access_table.h"
#include "access_reader/exit_code.h"
#include "access_reader/limits.h"
#include "access_reader/sqlite_copy.h"
#include "access_reader/supervision.h"

namespace velmar::access_reader {
namespace {

void CopyTables(const char* source, const char* target) {
  const AccessFile file(source);
  SqliteCopy copy(target);
  for (MdbCatalogEntry* entry : file.UserTables()) {
    AccessTable table(entry);
    copy.Add(table);
  }
  copy.Commit();
}

ExitCode Read(const char* source, const char* target, unsigned processor_seconds) {
  LimitThisProcess(processor_seconds);
  try {
    CopyTables(source, target);
    return ExitCode::kDone;
  } catch (const ReadingFailure& failure) {
    std::fprintf(stderr, "velmar-access-reader: %s\n", failure.reason);
    return failure.code;
  } catch (const SQLite::Exception& failure) {
    std::fprintf(stderr, "velmar-access-reader: %s\n", failure.what());
    return ExitCode::kCopyNotWritten;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar-access-reader: %s\n", failure.what());
    return ExitCode::kReaderDied;
  }
}

ExitCode Run(const char* source, const char* target) {
  std::error_code error;
  if (std::filesystem::exists(target, error) || error) {
    std::fprintf(stderr, "velmar-access-reader: the target is there already\n");
    return ExitCode::kCopyNotWritten;
  }
  const std::uintmax_t bytes = std::filesystem::file_size(source, error);
  if (error) return ExitCode::kNotOpened;
  const unsigned seconds = ProcessorSeconds(bytes);
  const ExitCode code = RunInChild([=] { return Read(source, target, seconds); });
  if (code != ExitCode::kDone) {
    std::filesystem::remove(target, error);
    std::filesystem::remove(std::string(target) + "-journal", error);
  }
  return code;
}

}  // namespace
}  // namespace velmar::access_reader

int main(int argc, char** argv) {
  using velmar::access_reader::ExitCode;
  if (argc != 3) {
    std::fprintf(stderr, "velmar-access-reader SOURCE TARGET\n");
    return static_cast<int>(ExitCode::kWrongUsage);
  }
  return static_cast<int>(velmar::access_reader::Run(argv[1], argv[2]));
}
