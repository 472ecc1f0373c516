#include <chrono>
#include <cstdlib>
#include <fstream>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "application/store_check.h"
#include "storage/database/connection.h"
#include "storage/database/file_kind.h"
#include "storage/database/set_aside.h"
#include "storage/materials/material_store.h"
#include "tests/application/start_fixture.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using Said = std::vector<std::string>;
using storage::ReadFile;
using storage::WriteFile;

constexpr int kConvert = 1110;
constexpr int kSetAside = 1155;
constexpr const char* kMaterials = "jet4-schema-generated.mdb";

/// A start with genuine Access files; left out where there are none.
class AccessStoreTest : public StartTest {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMAR_ACCESS_FIXTURES");
    if (folder == nullptr || *folder == '\0')
      GTEST_SKIP() << "left out: VELMAR_ACCESS_FIXTURES names no folder";
    fixtures_ = folder;
  }

  /// Puts the Access file `fixture` into the place of `store`. @return its bytes
  std::string Put(const std::string& fixture, Store store) {
    const std::string bytes = ReadFile(fixtures_ / fixture);
    WriteFile(FileOf(NameOf(store)), bytes);
    return bytes;
  }

  fs::path fixtures_;
};

TEST_F(AccessStoreTest, IsConvertedAfterAQuestion) {
  const auto expected = nlohmann::json::parse(ReadFile(fixtures_ / "expected.json"));
  for (const auto& [fixture, content] : expected.items()) {
    if (!content.is_object() || !content["readable"].get<bool>()) continue;
    for (const Store store : kStores) {
      SCOPED_TRACE(fixture + " as " + NameOf(store));
      const storage::TemporaryFolder folder;
      places_.data_folder = folder / "data";
      const std::string bytes = Put(fixture, store);
      RecordedTalk recorded({{kConvert, true}});
      EXPECT_TRUE(PrepareStore(store, places_, recorded.talk));
      ASSERT_EQ(recorded.said.size(), 2U);
      EXPECT_EQ(recorded.said[0], "ask 1110+0");
      EXPECT_TRUE(recorded.said[1].starts_with("tell 1111")) << recorded.said[1];
      EXPECT_TRUE(recorded.said[1].ends_with("1146")) << recorded.said[1];
      EXPECT_EQ(recorded.works, Said({"1157", "1156"})) << "what takes long is named";
      EXPECT_EQ(ReadFile(FileOf(NameOf(store)).string() + ".originale"), bytes);
      EXPECT_EQ(storage::ConditionOf(FileOf(NameOf(store))), storage::DatabaseCondition::kGood);
      RecordedTalk second;
      EXPECT_TRUE(PrepareStore(store, places_, second.talk));
      EXPECT_EQ(second.said, Said()) << "only once";
    }
  }
}

TEST_F(AccessStoreTest, AConvertedMaterialDatabaseIsWorkedOn) {
  Put(kMaterials, Store::kMaterials);
  RecordedTalk recorded({{kConvert, true}});
  ASSERT_TRUE(PrepareStore(Store::kMaterials, places_, recorded.talk));
  storage::MaterialStore store(FileOf(storage::kMaterialDatabase));
  EXPECT_EQ(store.List(elements::MaterialFamily::kStructural).size(), 4U);
  EXPECT_EQ(store.List(elements::MaterialFamily::kFibrous).size(), 2U);
  auto row = *store.First<elements::StructuralMaterial>();
  row.record.values.name = "Un altro";
  EXPECT_FALSE(store.Add<elements::StructuralMaterial>({row}));
  EXPECT_TRUE(store.Add<elements::StructuralMaterial>({row})) << "a name is taken once";
}

TEST_F(AccessStoreTest, StaysAsItIsWhenTheAnswerIsNo) {
  for (const Store store : kStores) {
    const std::string bytes = Put("jet3-types-index.mdb", store);
    RecordedTalk recorded;
    EXPECT_FALSE(PrepareStore(store, places_, recorded.talk));
    ASSERT_EQ(recorded.said.size(), 2U);
    EXPECT_EQ(recorded.said[0], "ask 1110+0");
    EXPECT_TRUE(recorded.said[1].starts_with("warn 1150+11")) << recorded.said[1];
    EXPECT_EQ(ReadFile(FileOf(NameOf(store))), bytes);
    EXPECT_EQ(std::distance(fs::directory_iterator(FileOf(NameOf(store)).parent_path()), {}),
              store == Store::kResults ? 2 : 1)
        << "nothing else was written";
    if (store == Store::kMessages) fs::remove_all(places_.data_folder);
  }
}

TEST_F(AccessStoreTest, AnEncryptedFileIsLeftAloneOrSetAside) {
  const std::string bytes = Put("ace14-encrypted.accdb", Store::kMaterials);
  const fs::path file = FileOf(storage::kMaterialDatabase);
  RecordedTalk left({{kConvert, true}, {kSetAside, false}});
  EXPECT_FALSE(PrepareStore(Store::kMaterials, places_, left.talk));
  EXPECT_EQ(left.said, Said({"ask 1110+0", "ask 1109+1155", "warn 1150+1147"}));
  EXPECT_EQ(ReadFile(file), bytes);
  RecordedTalk aside({{kConvert, true}, {kSetAside, true}});
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, aside.talk));
  EXPECT_EQ(aside.said, Said({"ask 1110+0", "ask 1109+1155", "warn 1158+1151"}));
  EXPECT_EQ(ReadFile(file.string() + ".originale"), bytes);
  EXPECT_EQ(ReadFile(file), ShippedBytes(storage::kMaterialDatabase));
}

TEST_F(AccessStoreTest, ADamagedAccessFileIsTold) {
  const std::string whole = ReadFile(fixtures_ / kMaterials);
  for (const std::size_t size : {std::size_t{24}, std::size_t{4096}, std::size_t{20000}}) {
    WriteFile(FileOf(storage::kMaterialDatabase), whole.substr(0, size));
    RecordedTalk recorded({{kConvert, true}});
    EXPECT_FALSE(PrepareStore(Store::kMaterials, places_, recorded.talk)) << size;
    EXPECT_EQ(recorded.said, Said({"ask 1110+0", "ask 1109+1155", "warn 1150+1147"})) << size;
    EXPECT_EQ(ReadFile(FileOf(storage::kMaterialDatabase)), whole.substr(0, size));
  }
}

TEST_F(AccessStoreTest, WithoutTheReaderTheFileIsNotOfferedToBeSetAside) {
  Put(kMaterials, Store::kMaterials);
  places_.reader.program.clear();
  RecordedTalk recorded({{kConvert, true}, {kSetAside, true}});
  EXPECT_FALSE(PrepareStore(Store::kMaterials, places_, recorded.talk));
  EXPECT_EQ(recorded.said, Said({"ask 1110+0", "warn 1145+1147"}));
}

TEST_F(AccessStoreTest, ACatalogueIsAskedAboutInBothLanguagesWhereNoOtherIsThere) {
  Put(kMaterials, Store::kMessages);
  places_.shipped.reset();
  RecordedTalk recorded;
  EXPECT_FALSE(PrepareStore(Store::kMessages, places_, recorded.talk));
  EXPECT_EQ(recorded.said[0], "ask 0+0+0") << "words alone, no rows";
}

/// How many files in `folder` hold `bytes`.
int Holders(const fs::path& folder, const std::string& bytes) {
  int holders = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".tmp" && ReadFile(entry.path()) == bytes) ++holders;
  }
  return holders;
}

/// A conversion in a process of its own.
pid_t StartConversion(const StorePlaces& places) {
  const pid_t child = ::fork();
  if (child == 0) {
    RecordedTalk recorded({{kConvert, true}});
    PrepareStore(Store::kMaterials, places, recorded.talk);
    ::_exit(0);
  }
  return child;
}

/// Kills a conversion `delay` after its start.
void KillAConversion(const StorePlaces& places, std::chrono::microseconds delay) {
  const pid_t child = StartConversion(places);
  std::this_thread::sleep_for(delay);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
}

TEST_F(AccessStoreTest, AStartThatIsKilledLosesNothingAndTheNextOneGoesOn) {
  const std::string bytes = ReadFile(fixtures_ / kMaterials);
  WriteFile(FileOf(storage::kMaterialDatabase), bytes);
  const auto start = std::chrono::steady_clock::now();
  ::waitpid(StartConversion(places_), nullptr, 0);
  const std::chrono::microseconds whole =
      std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
  std::mt19937 random(5);
  // Some too late, so that the last moments are hit as well.
  std::uniform_int_distribution<std::int64_t> delay_us(0, whole.count() * 3 / 2);
  const auto end = start + std::chrono::seconds(12);
  int kills = 0;
  int converted = 0;
  for (; kills < 120 && std::chrono::steady_clock::now() < end; ++kills) {
    const storage::TemporaryFolder folder;
    places_.data_folder = folder / "data";
    const fs::path file = FileOf(storage::kMaterialDatabase);
    WriteFile(file, bytes);
    KillAConversion(places_, std::chrono::microseconds(delay_us(random)));
    ASSERT_GE(Holders(file.parent_path(), bytes), 1) << "the original is there, after kill " << kills;
    if (storage::KindOf(file) == storage::FileKind::kSqlite) {
      ++converted;
      ASSERT_EQ(storage::ConditionOf(file), storage::DatabaseCondition::kGood);
    } else {
      ASSERT_EQ(ReadFile(file), bytes) << "after kill " << kills;
    }
    RecordedTalk next({{kConvert, true}});
    ASSERT_TRUE(PrepareStore(Store::kMaterials, places_, next.talk));
    ASSERT_EQ(storage::MaterialStore(file).List(elements::MaterialFamily::kStructural).size(), 4U);
    ASSERT_GE(Holders(file.parent_path(), bytes), 1);
  }
  EXPECT_GE(kills, 8);
  EXPECT_GT(converted, 0) << "some kills came too late";
  EXPECT_LT(converted, kills) << "some came in time";
  RecordProperty("kills", kills);
  RecordProperty("converted", converted);
}

}  // namespace
}  // namespace velmar::application
