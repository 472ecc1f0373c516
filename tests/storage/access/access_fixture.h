#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "storage/access/access_copy.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {

/// A test with copies of genuine Access files; left out where there are none.
class AccessTest : public testing::Test {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMAR_ACCESS_FIXTURES");
    if (folder == nullptr || *folder == '\0')
      GTEST_SKIP() << "left out: VELMAR_ACCESS_FIXTURES names no folder";
    fixtures_ = folder;
  }
  std::filesystem::path Take(const std::string& fixture, const std::string& name) {
    std::filesystem::copy_file(fixtures_ / fixture, folder_ / name);
    return folder_ / name;
  }

  const AccessReader reader_{VELMAR_ACCESS_READER};
  std::filesystem::path fixtures_;
  TemporaryFolder folder_;
};

/// A reader that is a shell script.
inline AccessReader Script(const TemporaryFolder& folder, const std::string& commands,
                           std::chrono::milliseconds limit = std::chrono::milliseconds(10000)) {
  WriteFile(folder / "reader", "#!/bin/sh\n" + commands + "\n");
  std::filesystem::permissions(folder / "reader", std::filesystem::perms::owner_all);
  return {folder / "reader", limit};
}

/// Enough of an Access file to be taken for one.
inline void WriteAccessHead(const std::filesystem::path& file) {
  WriteFile(file, std::string("\0\1\0\0Standard Jet DB\0\1", 21) + std::string(4000, '\0'));
}

}  // namespace velmar::storage
