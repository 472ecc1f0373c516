#include "access_reader/limits.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>

#include <sys/resource.h>

// g++ and clang each have their own way of telling.
#ifdef __SANITIZE_ADDRESS__
#define VELMAR_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELMAR_ADDRESS_SANITIZER
#endif
#endif

namespace velmar::access_reader {
namespace {

void SetLimit(__rlimit_resource resource, rlim_t value) {
  const rlimit limit{value, value};
  setrlimit(resource, &limit);
}

}  // namespace

unsigned ProcessorSeconds(std::uintmax_t bytes) {
  constexpr std::uintmax_t kMegabyte = 1U << 20U;
  return static_cast<unsigned>(std::min<std::uintmax_t>(10, 2 + bytes / kMegabyte));
}

void LimitThisProcess(unsigned processor_seconds) {
#ifndef VELMAR_ADDRESS_SANITIZER
  // The address sanitizer reserves terabytes of address space for its shadow.
  SetLimit(RLIMIT_AS, rlim_t{512} << 20U);
#endif
  SetLimit(RLIMIT_CPU, processor_seconds);
  SetLimit(RLIMIT_FSIZE, rlim_t{256} << 20U);
  SetLimit(RLIMIT_CORE, 0);
  std::signal(SIGXFSZ, SIG_IGN);
  for (const char* name : {"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS"}) unsetenv(name);
}

}  // namespace velmar::access_reader
