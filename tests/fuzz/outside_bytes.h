#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::fuzz {

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// What a target finds wrong ends it, as a crash does.
inline void Require(bool holds, const char* law) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", law);
  std::abort();
}

/// The bytes as a file of that name, in a folder of the process.
inline std::filesystem::path FileOf(std::string_view bytes, const char* name) {
  static const storage::TemporaryFolder kFolder;
  std::filesystem::path path = kFolder / name;
  std::ofstream(path, std::ios::binary | std::ios::trunc)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path;
}

}  // namespace velmar::fuzz
