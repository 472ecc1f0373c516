#include "storage/project/version_code.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

struct Header {
  const char* text;
  int code;
};

class VersionCodeTest : public testing::TestWithParam<Header> {};

TEST_P(VersionCodeTest, TakesTheHeaderToTheLetter) {
  EXPECT_EQ(VersionCode(GetParam().text), GetParam().code) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Headers, VersionCodeTest,
    testing::Values(Header{"VELMAR 2.0.0", 5}, Header{"  VELMAR 2.13.4", 5}, Header{"VELMAR 2", 5},
                    Header{"VELMAR 1.4", 4}, Header{"VELMAR 1.5", 4}, Header{"VELMAR 1.5.12", 4},
                    Header{"prog VELMAR 1.5 beta", 4}, Header{"VELMAR 1.4.2", 2},  // must be equal, is not
                    Header{"VELMAR 1.3", 3}, Header{"VELMAR 1.6", 6}, Header{"VELMAR 1.x", 4},
                    Header{"VELMAR 1.", 4}, Header{"VELMAR", 0}, Header{"", 0}, Header{"velmar 2", 0},
                    Header{"x.1e300", 1000}, Header{"x.nan", 4}));

}  // namespace
}  // namespace velmar::storage
