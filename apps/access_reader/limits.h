#pragma once

#include <cstdint>

namespace velmar::access_reader {

/// Seconds of processor time that reading a file of `bytes` may take: 2, and 1 more a megabyte, at most 10.
/// A sound file needs a hundredth of that; a damaged one can send the library round for ever.
unsigned ProcessorSeconds(std::uintmax_t bytes);

/// Bounds the calling process for good: 512 MB of memory, `processor_seconds`, files of 256 MB, no core
/// dump. Writing past the file limit becomes an error instead of a signal. Also drops the environment
/// variables that would change what libmdb reads.
void LimitThisProcess(unsigned processor_seconds);

}  // namespace velmar::access_reader
