#pragma once

#include <csignal>

#include <sys/resource.h>

namespace velmar::storage {

/// For as long as it lives no file of this process grows beyond `bytes`: what a disk does that is full, as
/// far as who writes can tell, and without a disk of its own.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit little = before_;
    little.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &little);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = SIG_DFL;
};

}  // namespace velmar::storage
