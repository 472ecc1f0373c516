#include "storage/profile/studio_profile_store.h"

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;
using elements::DocumentLanguage;
using elements::StudioProfile;

constexpr const char* kPng = "\x89PNG\r\n\x1a\n picture";

class StudioProfileStoreTest : public testing::Test {
 protected:
  fs::path Write(const std::string& name, const std::string& bytes) const {
    WriteFile(folder_ / name, bytes);
    return folder_ / name;
  }

  TemporaryFolder folder_;
  StudioProfileStore store_{folder_.Path()};
  fs::path file_ = folder_.Path() / "Studio" / "profilo.txt";
};

TEST_F(StudioProfileStoreTest, IsEmptyWhereNoneWasSet) {
  EXPECT_EQ(store_.Read(), StudioProfile());
  EXPECT_FALSE(fs::exists(folder_.Path() / "Studio"));
}

TEST_F(StudioProfileStoreTest, GivesBackWhatWasWritten) {
  const StudioProfile profile{.name = "Studio Àcustica & Co. = prova",
                              .signer = "ing. Anna Neri",
                              .register_number = "ENTECA n. 1234",
                              .address = "via Roma 1\n40100 Bologna",
                              .footer = "P. IVA \\ 0123",
                              .language = DocumentLanguage::kBoth};
  EXPECT_FALSE(store_.Write(profile));
  EXPECT_EQ(store_.Read(), profile);
  EXPECT_EQ(ReadFile(file_),
            "name=Studio Àcustica & Co. = prova\nsigner=ing. Anna Neri\nnumber=ENTECA n. 1234\n"
            "address=via Roma 1\\n40100 Bologna\nfooter=P. IVA \\\\ 0123\nlanguage=it+en\n");
}

TEST_F(StudioProfileStoreTest, KeepsAPictureAsLongAsTheProfileNamesIt) {
  const std::string name = store_.KeepPicture(Write("mio logo.png", kPng));
  EXPECT_THAT(name, testing::EndsWith(".png"));
  store_.Write({.logo = name});
  fs::remove(folder_.Path() / "mio logo.png");
  EXPECT_EQ(store_.Picture(name), kPng);
  store_.Write({});
  EXPECT_THROW(store_.Picture(name), Failure);
}

TEST_F(StudioProfileStoreTest, TakesPicturesAlone) {
  EXPECT_THROW(store_.KeepPicture(Write("testo.png", "no picture")), Failure);
  EXPECT_THROW(store_.KeepPicture(folder_.Path() / "nowhere.png"), Failure);
  EXPECT_THROW(store_.KeepPicture(Write("grande.png", kPng + std::string(kLargestStudioPicture, 'x'))),
               Failure);
  EXPECT_EQ(PictureEnding("\xFF\xD8\xFF\xE0"), "jpg");
  EXPECT_EQ(PictureEnding("<?xml version=\"1.0\"?><!-- logo --><svg/>"), "svg");
  EXPECT_EQ(PictureEnding("%PDF-1.7"), std::nullopt);
}

class DamagedProfileTest : public StudioProfileStoreTest, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedProfileTest, IsToldAndLeftAsItIs) {
  Write("Studio/profilo.txt", GetParam());
  EXPECT_THROW(store_.Read(), Failure);
  EXPECT_EQ(ReadFile(file_), GetParam());
  const auto kept = store_.Write({.name = "Nuovo"});
  ASSERT_TRUE(kept);
  EXPECT_EQ(ReadFile(*kept), GetParam());
  EXPECT_EQ(store_.Read().name, "Nuovo");
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedProfileTest,
                         testing::Values("no equals sign", "name=\xFF\xFE", "name=a\\q", "language=de",
                                         "logo=../../etc/passwd", "logo=immagine-/../x.png"));

TEST_F(StudioProfileStoreTest, TakesTheEntryOfALaterVersionAsNone) {
  Write("Studio/profilo.txt", "name=Studio\nstamp=x.png\n");
  EXPECT_EQ(store_.Read().name, "Studio");
}

TEST(StudioProfile, TellsTextsThatAreTooLong) {
  const elements::StudioField& name = elements::TypedStudioFields().front();
  EXPECT_FALSE(Objection(name, std::string(120, 'a')));
  EXPECT_FALSE(Objection(name, "à"));
  EXPECT_TRUE(Objection(name, std::string(121, 'a')));
  EXPECT_TRUE(Objection(name, "due\nrighe"));
}

}  // namespace
}  // namespace velmar::storage
