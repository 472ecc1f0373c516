#include <utility>

#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"
#include "tests/support/changed_fields.h"
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

/// A field that is read and not kept would give other numbers when the project is opened again.
TEST_P(RoundTripTest, KeepsEveryFieldThatTheCalculationReads) {
  for (int i = 0; i <= static_cast<int>(elements::kLastField); ++i) {
    const auto field = static_cast<elements::Field>(i);
    if (!GetParam().Reads(field)) continue;
    elements::Setup setup = SampleSetup(GetParam().calculation);
    tests::ChangeSingleFields(setup, {field});
    ProjectReadContext context;
    context.current = SampleSetup(GetParam().calculation);
    const elements::Setup opened = ReadProject(WriteProject(setup), context).setup;
    elements::VisitSingleFields([&](elements::Field one, const char* name, const auto& was,
                                    const auto& is) { EXPECT_TRUE(one != field || was == is) << name; },
                                std::as_const(setup), opened);
  }
}

std::string NameOf(const testing::TestParamInfo<elements::CalculationRow>& info) {
  return std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Variants, RoundTripTest, testing::ValuesIn(elements::Catalogue()), NameOf);

}  // namespace
}  // namespace velmar::storage
