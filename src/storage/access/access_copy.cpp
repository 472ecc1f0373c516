#include "storage/access/access_copy.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "foundation/message_rows.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// How the new process starts: in a group of its own, to be killed as one, and without our files.
class Start {
 public:
  Start() {
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setpgroup(&attributes_, 0);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP);
    posix_spawn_file_actions_init(&files_);
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      posix_spawn_file_actions_addopen(&files_, descriptor, "/dev/null", O_RDWR, 0);
    }
    posix_spawn_file_actions_addclosefrom_np(&files_, STDERR_FILENO + 1);
  }
  Start(const Start&) = delete;
  Start& operator=(const Start&) = delete;
  ~Start() {
    posix_spawn_file_actions_destroy(&files_);
    posix_spawnattr_destroy(&attributes_);
  }

  /// @return 0 or the number of the error
  int Run(const AccessReader& reader, std::string source, std::string target, pid_t& process) {
    std::string program = reader.program.string();
    std::string locale = "LC_ALL=C";
    const std::array<char*, 4> arguments = {program.data(), source.data(), target.data(), nullptr};
    const std::array<char*, 2> environment = {locale.data(), nullptr};
    return posix_spawn(&process, program.c_str(), &files_, &attributes_, arguments.data(),
                       environment.data());
  }

 private:
  posix_spawnattr_t attributes_{};
  posix_spawn_file_actions_t files_{};
};

/// @return whether the process ended by itself with 0 in time
bool EndsWell(pid_t process, std::chrono::milliseconds time_limit) {
  const auto end = std::chrono::steady_clock::now() + time_limit;
  int status = 0;
  for (;;) {
    const pid_t ended = ::waitpid(process, &status, WNOHANG);
    if (ended == process) return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (ended < 0 && errno != EINTR) return false;
    if (std::chrono::steady_clock::now() >= end) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  ::kill(-process, SIGKILL);
  while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
  }
  return false;
}

void RemoveRests(const fs::path& target) {
  std::error_code error;
  fs::remove(target, error);
  fs::remove(target.string() + "-journal", error);
}

}  // namespace

void CopyAccessFile(const AccessReader& reader, const fs::path& source, const fs::path& target) {
  pid_t process = 0;
  // Absolute, so that no name is taken for an option.
  const int error = reader.program.empty() ? ENOENT
                                           : Start().Run(reader, fs::absolute(source).string(),
                                                         fs::absolute(target).string(), process);
  if (error != 0) {
    throw AccessFailure(
        {{kNoAccessReaderRow, " " + source.string()}},
        "cannot start " + reader.program.string() + ": " + std::generic_category().message(error));
  }
  if (EndsWell(process, reader.time_limit)) return;
  RemoveRests(target);
  throw AccessFailure({{kAccessNotReadRow, " " + source.string()}},
                      source.string() + ": not readable as an Access file");
}

}  // namespace velmar::storage
