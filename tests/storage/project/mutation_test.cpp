#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "elements/catalogue.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/read_any_project.h"
#include "tests/support/random_setup.h"

namespace velmar::storage {
namespace {

using Lines = std::vector<std::string>;

constexpr std::array<const char*, 24> kNastyLines = {"1e999",
                                                     "-1e999",
                                                     "nan",
                                                     "inf",
                                                     "999999999999999999999",
                                                     "-1",
                                                     "0",
                                                     "2147483648",
                                                     "",
                                                     " ",
                                                     "{",
                                                     "Niente",
                                                     "check",
                                                     "Check",
                                                     "uncheck",
                                                     "Fibra_presente",
                                                     "Vero",
                                                     "-",
                                                     "1,5",
                                                     "1e-400",
                                                     "3.4e38",
                                                     "1e38,5",
                                                     "***",
                                                     "MATERIALE 1:"};
constexpr std::array<const char*, 6> kHeaders = {"VELMAR 1.4", "VELMAR 1.5", "VELMAR",
                                                 "x.3",        "VELMAR 1.6", ""};

Lines Split(const std::string& bytes) {
  Lines lines;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", at);
    lines.push_back(bytes.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

std::string Joined(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

std::size_t Place(tests::RandomSource& random, std::size_t size) {
  return static_cast<std::size_t>(random.Below(static_cast<int>(size)));
}

template <std::size_t N>
std::string OneOf(const std::array<const char*, N>& texts, tests::RandomSource& random) {
  return texts.at(Place(random, N));
}

/// One change to whole lines.
void MutateLines(Lines& lines, tests::RandomSource& random) {
  if (lines.empty()) return;
  const std::size_t at = Place(random, lines.size());
  const auto here = lines.begin() + static_cast<std::ptrdiff_t>(at);
  switch (random.Below(6)) {
    case 0:
      lines.resize(at);
      break;
    case 1:
      lines.erase(here);
      break;
    case 2:
      lines.insert(here, std::string(*here));
      break;
    case 3:
      std::swap(*here, lines.at(Place(random, lines.size())));
      break;
    case 4:
      lines.front() = OneOf(kHeaders, random);
      break;
    default:
      *here = OneOf(kNastyLines, random);
      break;
  }
}

/// One change to bytes.
void MutateBytes(std::string& bytes, tests::RandomSource& random) {
  if (bytes.empty()) return;
  const std::size_t at = Place(random, bytes.size());
  switch (random.Below(5)) {
    case 0:
      bytes.resize(at);
      break;
    case 1:
      bytes.at(at) = static_cast<char>(bytes.at(at) ^ (1 << random.Below(8)));
      break;
    case 2:
      bytes.insert(at, 1, static_cast<char>(random.Below(256)));
      break;
    case 3:
      bytes.insert(0, "\xEF\xBB\xBF");
      break;
    default:
      bytes.erase(at, static_cast<std::size_t>(1 + random.Below(40)));
      break;
  }
}

class MutationTest : public testing::TestWithParam<elements::CalculationRow> {};

TEST_P(MutationTest, IsRefusedOrReadToSomethingThatLasts) {
  constexpr int kMutants = 1000;
  tests::RandomSource random(GetParam().variant.size() * 31 +
                             static_cast<std::uint64_t>(GetParam().calculation));
  int read = 0;
  for (int i = 0; i < kMutants; ++i) {
    Lines lines = Split(
        WriteProject(tests::RandomSetup(GetParam().calculation, tests::Wildness::kAnyOfItsFile, random)));
    for (int changes = random.Below(3); changes > 0; --changes) MutateLines(lines, random);
    std::string bytes = Joined(lines);
    for (int changes = random.Below(3); changes > 0; --changes) MutateBytes(bytes, random);
    ASSERT_NO_THROW(read += ReadAnyProject(bytes) ? 1 : 0) << "mutant " << i << '\n' << bytes;
  }
  // Both ways were taken.
  EXPECT_GT(read, kMutants / 20);
  EXPECT_LT(read, kMutants * 19 / 20);
}

std::string NameOf(const testing::TestParamInfo<elements::CalculationRow>& info) {
  return std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Variants, MutationTest, testing::ValuesIn(elements::Catalogue()), NameOf);

}  // namespace
}  // namespace velmar::storage
