#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using enum elements::Calculation;

struct Golden {
  const char* name;
  Calculation calculation;
  Damping damping = Damping::kEveryOther;
};

std::string Bytes(const std::string& name) {
  std::ifstream file(std::filesystem::path(VELMAR_GOLDEN_PROJECTS) / (name + ".drav"), std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string NameOf(const testing::TestParamInfo<Golden>& info) { return info.param.name; }

/// The file without its first line, which changes with every release.
std::string BehindHeader(const std::string& bytes) { return bytes.substr(bytes.find("\r\n")); }

class GoldenFileTest : public testing::TestWithParam<Golden> {};

TEST_P(GoldenFileTest, IsWhatIsWritten) {
  EXPECT_EQ(BehindHeader(WriteProject(SampleSetup(GetParam().calculation))),
            BehindHeader(Bytes(GetParam().name)));
}

TEST_P(GoldenFileTest, IsRead) {
  const OpenedProject opened = ReadProject(Bytes(GetParam().name), {});
  EXPECT_TRUE(opened.setup == SampleSetup(GetParam().calculation));
  EXPECT_EQ(opened.stored, TextsOf(GetParam().calculation));
}

INSTANTIATE_TEST_SUITE_P(
    Families, GoldenFileTest,
    testing::Values(Golden{"singola", kSingleWallBrick}, Golden{"sea_singolo", kSingleWallSea},
                    Golden{"sea_laterizio", kDoubleWallSeaBrick},
                    Golden{"sea_cartongesso", kDoubleWallSeaPlasterboardPoint},
                    Golden{"doppia_generica", kDoubleWallGeneric},
                    Golden{"doppia_laterizio", kDoubleWallBrick},
                    Golden{"doppia_torvalle", kDoubleWallBrickTorvalle},
                    Golden{"doppia_ossatura_unica", kDoubleWallPlasterboardCommonStuds},
                    Golden{"sharp_linea", kLightWallLineLine}, Golden{"sharp_isolati", kLightWallIsolated},
                    Golden{"calpestio", kImpactReinforcedConcrete},
                    Golden{"pavimento_galleggiante", kFloorWithFloatingScreed},
                    Golden{"controplaccaggio_generico", kLiningGeneric},
                    Golden{"controplaccaggio_ossatura", kLiningFrame},
                    Golden{"controsoffitto_sea", kCeilingSea}, Golden{"facciata", kCompositeElement},
                    Golden{"multistrato", kMultilayerGeneric}),
    NameOf);

/// Files of the older layouts hold the same set-ups; rows 6 and 7 are those of the running program.
class OldFileTest : public testing::TestWithParam<Golden> {};

TEST_P(OldFileTest, IsRead) {
  ProjectReadContext context;
  context.current.information.at(6) = {"Allegato", "di prima"};
  context.current.information.at(7) = {"", "anche"};
  context.current.decoupled = true;
  elements::Setup expected = SampleSetup(GetParam().calculation, GetParam().damping);
  expected.information.at(6) = context.current.information.at(6);
  expected.information.at(7) = context.current.information.at(7);
  // A decoupled brick wall came with the check line; other families leave the tick as it stands.
  expected.decoupled = GetParam().calculation != kDoubleWallSeaBrick;
  EXPECT_TRUE(ReadProject(Bytes(GetParam().name), context).setup == expected);
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, OldFileTest,
    testing::Values(Golden{"v0_singola", kSingleWallBrick}, Golden{"v14_singola", kSingleWallBrick},
                    Golden{"v14_doppia_generica", kDoubleWallGeneric},
                    Golden{"v14_calpestio", kImpactReinforcedConcrete},
                    Golden{"v14_sea_singolo", kSingleWallSea, Damping::kAll},
                    Golden{"v14_sea_laterizio", kDoubleWallSeaBrick, Damping::kAll},
                    Golden{"v0_sea_laterizio", kDoubleWallSeaBrick, Damping::kAll},
                    Golden{"v15_sea_cartongesso_check", kDoubleWallSeaPlasterboardPoint}),
    NameOf);

}  // namespace
}  // namespace velmar::storage
