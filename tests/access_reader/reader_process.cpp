#include "tests/access_reader/reader_process.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmar::access_reader {

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "velmar-access-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category(), name);
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

ReaderRun RunReader(const std::filesystem::path& source, const std::filesystem::path& target) {
  const auto begin = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execl(VELMAR_ACCESS_READER, VELMAR_ACCESS_READER, source.c_str(), target.c_str(), nullptr);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ReaderRun run;
  if (WIFEXITED(status)) run.exit_code = WEXITSTATUS(status);
  run.seconds = std::chrono::steady_clock::now() - begin;
  return run;
}

}  // namespace velmar::access_reader
