#include "access_reader/limits.h"

#include <csignal>
#include <cstdlib>

#include <gtest/gtest.h>

#include "access_reader/supervision.h"

namespace velmar::access_reader {
namespace {

TEST(ProcessorSeconds, GrowsWithTheFileUpToTen) {
  EXPECT_EQ(ProcessorSeconds(0), 2U);
  EXPECT_EQ(ProcessorSeconds(3U << 20U), 5U);
  EXPECT_EQ(ProcessorSeconds(1U << 30U), 10U);
}

TEST(RunInChild, PassesOnWhatTheWorkGave) {
  EXPECT_EQ(RunInChild([] { return ExitCode::kTableDamaged; }), ExitCode::kTableDamaged);
}

TEST(RunInChild, ASignalOfTheChildBecomesACode) {
  EXPECT_EQ(RunInChild([]() -> ExitCode {
              std::raise(SIGKILL);
              return ExitCode::kDone;
            }),
            ExitCode::kReaderDied);
}

TEST(RunInChild, AnEndlessLoopIsStopped) {
  EXPECT_EQ(RunInChild([]() -> ExitCode {
              LimitThisProcess(1);
              for (volatile bool going = true; going;) {
              }
              return ExitCode::kDone;
            }),
            ExitCode::kReaderDied);
}

TEST(RunInChild, AForeignExitCodeIsNotTakenForSuccess) {
  EXPECT_EQ(RunInChild([]() -> ExitCode { _Exit(77); }), ExitCode::kReaderDied);
  EXPECT_EQ(RunInChild([]() -> ExitCode { _Exit(1); }), ExitCode::kReaderDied);
}

}  // namespace
}  // namespace velmar::access_reader
