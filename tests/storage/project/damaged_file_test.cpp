#include <string>

#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "storage/project/project_failure.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/read_any_project.h"
#include "tests/storage/project/sample_setup.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using enum elements::Calculation;

class DamagedFileTest : public testing::TestWithParam<elements::CalculationRow> {
 protected:
  std::string bytes_ = WriteProject(SampleSetup(GetParam().calculation));
};

TEST_P(DamagedFileTest, TruncatedAtAnyLineIsRefused) {
  int lines = 0;
  for (std::size_t end = 0; (end = bytes_.find("\r\n", end)) != std::string::npos; end += 2) {
    if (end + 2 == bytes_.size()) break;  // the whole file
    ++lines;
    EXPECT_THROW(ReadProject(bytes_.substr(0, end + 2), {}), ProjectFileFailure) << "behind line " << lines;
  }
  EXPECT_GT(lines, 20);
}

TEST_P(DamagedFileTest, AnyNumberLineMustBeANumber) {
  int numbers = 0;
  // Number lines are those that end in a blank.
  for (std::size_t end = 0; (end = bytes_.find(" \r\n", end)) != std::string::npos; ++end) {
    const std::size_t begin = bytes_.rfind('\n', end) + 1;
    ++numbers;
    for (const char* nasty : {"1e999", "nan", "x", "", "-inf"}) {
      std::string damaged = bytes_;
      damaged.replace(begin, end - begin, nasty);
      EXPECT_THROW(ReadProject(damaged, {}), ProjectFileFailure) << nasty << " at " << begin;
    }
  }
  EXPECT_GT(numbers, 3);
}

std::string NameOf(const testing::TestParamInfo<elements::CalculationRow>& info) {
  return std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Variants, DamagedFileTest, testing::ValuesIn(elements::Catalogue()), NameOf);

struct Count {
  const char* name;
  Calculation calculation;
  const char* line;  // what stands before the count line
  const char* refused;
};

class CountTest : public testing::TestWithParam<Count> {};

TEST_P(CountTest, BeyondItsListIsRefused) {
  const std::string bytes = WriteProject(SampleSetup(GetParam().calculation));
  const std::string before = std::string(GetParam().line) + "\r\n";
  const std::size_t begin = bytes.find(before);
  ASSERT_NE(begin, std::string::npos);
  const std::size_t count = begin + before.size();
  for (const char* nasty : {GetParam().refused, "1000000000", "-2", "99999999999999999999", "uno"}) {
    std::string damaged = bytes;
    damaged.replace(count, bytes.find("\r\n", count) - count, nasty);
    EXPECT_THROW(ReadProject(damaged, {}), ProjectFileFailure) << nasty;
  }
}

INSTANTIATE_TEST_SUITE_P(Lists, CountTest,
                         testing::Values(Count{"Leaf", kSingleWallBrick, "2,70", "10"},
                                         Count{"SeaSingle", kSingleWallSea, "2,70", "3"},
                                         Count{"SeaSide", kDoubleWallSeaBrick, "check", "4"},
                                         Count{"SeaSideNone", kDoubleWallSeaBrick, "check", "0"},
                                         Count{"CavityLayers", kDoubleWallGeneric, "materiale generico", "7"},
                                         Count{"Resilient", kImpactReinforcedConcrete,
                                               "*************** Materiale resiliente ***************", "10"},
                                         Count{"Components", kCompositeElement, "-1\r\n-4\r\n", "10"},
                                         Count{"NoComponents", kCompositeElement, "-1\r\n-4\r\n", "0"},
                                         Count{"Hanger", kCeilingSea,
                                               "CONTROSOFFITTO\r\nControsoffitto SEA\r\nCONTROSOFFITTO",
                                               "3"}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(DamagedFile, HostileBytesEndInAFailure) {
  const std::string sample = WriteProject(SampleSetup(kDoubleWallSeaBrick));
  EXPECT_FALSE(ReadAnyProject(""));
  EXPECT_FALSE(ReadAnyProject(std::string(1'000'000, '\0')));
  EXPECT_FALSE(ReadAnyProject(std::string(10'000'000, 'x')));
  EXPECT_FALSE(ReadAnyProject("VELMAR 2.0.0\r\n" + std::string(10'000'000, '9')));
  EXPECT_FALSE(ReadAnyProject("\xEF\xBB\xBF" + sample));  // its letters are no UTF-8
  EXPECT_FALSE(ReadAnyProject("PK\x03\x04 a document of another program"));
  std::string nulls = sample;
  nulls.at(nulls.find("Materiale 3")) = '\0';
  EXPECT_FALSE(ReadAnyProject(nulls));
}

TEST(DamagedFile, AFailureLeavesTheOpenSetupAlone) {
  ProjectReadContext context;
  context.current = SampleSetup(kCompositeElement);
  const std::string bytes = WriteProject(SampleSetup(kDoubleWallSeaBrick));
  EXPECT_THROW(ReadProject(bytes.substr(0, bytes.size() / 2), context), ProjectFileFailure);
  EXPECT_TRUE(context.current == SampleSetup(kCompositeElement));
}

}  // namespace
}  // namespace velmar::storage
