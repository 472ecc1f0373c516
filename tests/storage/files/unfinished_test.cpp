#include "storage/files/unfinished.h"

#include <chrono>
#include <csignal>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "storage/files/whole_file.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

std::size_t CountIn(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

TEST(Unfinished, StandsBesideItsFileAndGoesUnlessItIsRenamed) {
  const TemporaryFolder folder;
  {
    const Unfinished unfinished(folder / "a.mdb");
    EXPECT_EQ(unfinished.Path().parent_path().parent_path(), folder.Path());
    EXPECT_FALSE(fs::exists(unfinished.Path()));
    WriteFile(unfinished.Path() / "in a folder", "half");
  }
  EXPECT_EQ(CountIn(folder.Path()), 0U);
  {
    const Unfinished unfinished(folder / "a.mdb");
    WriteFile(unfinished.Path(), "whole");
    fs::rename(unfinished.Path(), folder / "a.mdb");
  }
  EXPECT_EQ(ReadFile(folder / "a.mdb"), "whole");
  EXPECT_EQ(CountIn(folder.Path()), 1U);
}

TEST(RemoveAbandoned, TakesWhatNoLivingProgramHolds) {
  const TemporaryFolder folder;
  const Unfinished at_work(folder / "a.mdb");
  WriteFile(at_work.Path(), "at work");
  for (const char* name : {".velmar-1.tmp", ".velmar-1-2.tmp", ".velmar-1-2.tmp-journal"})
    WriteFile(folder / name, "left behind");
  WriteFile(folder / ".velmar-3.tmp" / "in a folder", "left behind");
  for (const char* name : {"mine.tmp", "a.mdb", ".velmar-note"}) WriteFile(folder / name, "mine");
  EXPECT_EQ(AbandonedIn(folder.Path()).size(), 4U);

  RemoveAbandoned(folder.Path());
  EXPECT_EQ(ReadFile(at_work.Path()), "at work");
  for (const char* name : {"mine.tmp", "a.mdb", ".velmar-note"})
    EXPECT_TRUE(fs::exists(folder / name)) << name;
  EXPECT_EQ(CountIn(folder.Path()), 4U);
  RemoveAbandoned(folder / "none");
}

TEST(RemoveAbandoned, FollowsNoLink) {
  const TemporaryFolder folder;
  WriteFile(folder / "mine", "mine");
  fs::create_symlink(folder / "mine", folder / ".velmar-1.tmp");
  RemoveAbandoned(folder.Path());
  EXPECT_EQ(ReadFile(folder / "mine"), "mine");
}

/// Another program that began something in `folder` and does not end by itself.
class Busy {
 public:
  explicit Busy(const fs::path& file) {
    int ready[2];
    if (::pipe(ready) != 0) std::abort();
    process_ = ::fork();
    if (process_ == 0) {
      const Unfinished unfinished(file);
      WriteFile(unfinished.Path(), "half");
      [[maybe_unused]] const auto told = ::write(ready[1], "x", 1);
      for (;;) ::pause();
    }
    char byte = 0;
    [[maybe_unused]] const auto heard = ::read(ready[0], &byte, 1);
    ::close(ready[0]);
    ::close(ready[1]);
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { Kill(); }

  void Kill() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  pid_t process_ = 0;
};

TEST(RemoveAbandoned, TheNextSaveClearsWhatAKilledProgramLeft) {
  const TemporaryFolder folder;
  Busy other(folder / "a.drav");
  WriteWhole(folder / "b.drav", "saved");
  EXPECT_EQ(CountIn(folder.Path()), 2U) << "the other one is at work";
  other.Kill();
  EXPECT_EQ(CountIn(folder.Path()), 2U) << "and left it behind";
  WriteWhole(folder / "b.drav", "saved again");
  EXPECT_EQ(CountIn(folder.Path()), 1U);
  EXPECT_EQ(ReadFile(folder / "b.drav"), "saved again");
}

}  // namespace
}  // namespace velmar::storage
