#include "platform/process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmar::platform {
namespace {

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
  int Run(std::string program, std::vector<std::string>& arguments, pid_t& process) {
    std::string locale = "LC_ALL=C";
    std::vector<char*> line = {program.data()};
    for (std::string& argument : arguments) line.push_back(argument.data());
    line.push_back(nullptr);
    const std::array<char*, 2> environment = {locale.data(), nullptr};
    return posix_spawn(&process, program.c_str(), &files_, &attributes_, line.data(), environment.data());
  }

 private:
  posix_spawnattr_t attributes_{};
  posix_spawn_file_actions_t files_{};
};

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

}  // namespace

ProcessEnd RunProgram(const std::filesystem::path& program, std::vector<std::string> arguments,
                      std::chrono::milliseconds time_limit) {
  pid_t process = 0;
  const int error = program.empty() ? ENOENT : Start().Run(program.string(), arguments, process);
  if (error != 0) return {.start_error = error};
  return {.well = EndsWell(process, time_limit)};
}

}  // namespace velmar::platform
