#include "access_reader/supervision.h"

#include <cerrno>
#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmar::access_reader {

ExitCode RunInChild(const std::function<ExitCode()>& work) {
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child < 0) return ExitCode::kReaderDied;
  if (child == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(static_cast<int>(ExitCode::kReaderDied));
    _exit(static_cast<int>(work()));
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return ExitCode::kReaderDied;
  }
  if (!WIFEXITED(status)) return ExitCode::kReaderDied;
  const int code = WEXITSTATUS(status);
  // Any other code is not the work's: a sanitizer, or a library that called exit().
  const bool known =
      code != static_cast<int>(ExitCode::kWrongUsage) && code <= static_cast<int>(ExitCode::kCopyNotWritten);
  return known ? static_cast<ExitCode>(code) : ExitCode::kReaderDied;
}

}  // namespace velmar::access_reader
