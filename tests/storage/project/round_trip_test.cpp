#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/support/random_setup.h"

namespace velmar::storage {
namespace {

class RoundTripTest : public testing::TestWithParam<elements::CalculationRow> {};

TEST_P(RoundTripTest, GivesTheSetupAndTheBytesBack) {
  constexpr int kSetups = 40;
  const elements::Calculation calculation = GetParam().calculation;
  tests::RandomSource random(1000 + static_cast<std::uint64_t>(calculation));
  for (int i = 0; i < kSetups; ++i) {
    const elements::Setup setup = tests::RandomSetup(calculation, tests::Wildness::kAnyOfItsFile, random);
    const std::string bytes = WriteProject(setup);
    const OpenedProject opened = ReadProject(bytes, {});
    EXPECT_TRUE(opened.setup == setup) << i << '\n' << bytes;
    EXPECT_EQ(opened.stored, TextsOf(calculation));
    EXPECT_EQ(WriteProject(opened.setup), bytes) << i;
  }
}

TEST_P(RoundTripTest, DoesNotDependOnTheProjectBefore) {
  tests::RandomSource random(77);
  const elements::Calculation calculation = GetParam().calculation;
  const std::string bytes =
      WriteProject(tests::RandomSetup(calculation, tests::Wildness::kAnyOfItsFile, random));
  for (const elements::CalculationRow& other : elements::Catalogue()) {
    ProjectReadContext context;
    context.current = tests::RandomSetup(other.calculation, tests::Wildness::kAnyOfItsFile, random);
    EXPECT_EQ(WriteProject(ReadProject(bytes, context).setup), bytes) << other.variant;
  }
}

std::string NameOf(const testing::TestParamInfo<elements::CalculationRow>& info) {
  return std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Variants, RoundTripTest, testing::ValuesIn(elements::Catalogue()), NameOf);

}  // namespace
}  // namespace velmar::storage
