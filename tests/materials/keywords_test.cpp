#include "materials/keywords.h"

#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

using elements::MaterialFamily;
using Names = std::vector<std::string>;

const KeywordTexts kTexts{"tutti", "non specificata"};
const std::vector<storage::ListedMaterial> kMaterials = {
    {"Mattone", "laterizi"},         {"Senza", ""},      {"Vetro", "vetrate"},
    {"Generico", "non specificata"}, {"Porta", "porte"}, {"Tavella", "laterizi"},
    {"Letterale", "non specificato"}};

TEST(KeywordFilter, NamesEachKeywordOnceInTheOrderOfAppearance) {
  const Names structural = {"tutti", "laterizi", "vetrate", "porte", "non specificato"};
  EXPECT_EQ(KeywordFilter(MaterialFamily::kStructural, kMaterials, kTexts), structural);
  EXPECT_EQ(KeywordFilter(MaterialFamily::kResilient, kMaterials, kTexts), structural);
}

TEST(KeywordFilter, OfFibrousMaterialsLeavesOutTheLiteral) {
  EXPECT_EQ(KeywordFilter(MaterialFamily::kFibrous, kMaterials, kTexts),
            (Names{"tutti", "laterizi", "vetrate", "non specificata", "porte"}));
}

struct FilterCase {
  const char* name;
  MaterialFamily family;
  const char* filter;
  Names names;
};

class UnderFilterTest : public testing::TestWithParam<FilterCase> {};

TEST_P(UnderFilterTest, OffersTheKeywordThenTheNotSpecified) {
  EXPECT_EQ(NamesUnderFilter(GetParam().family, kMaterials, GetParam().filter, kTexts), GetParam().names);
}

INSTANTIATE_TEST_SUITE_P(
    Filters, UnderFilterTest,
    testing::Values(
        FilterCase{"All",
                   MaterialFamily::kStructural,
                   "tutti",
                   {"Mattone", "Senza", "Vetro", "Generico", "Porta", "Tavella", "Letterale"}},
        FilterCase{
            "Keyword", MaterialFamily::kStructural, "laterizi", {"Mattone", "Tavella", "Senza", "Generico"}},
        FilterCase{"GlazingOffersGlassAlone", MaterialFamily::kStructural, "vetrate", {"Vetro"}},
        FilterCase{"DoorsOfferTheNotSpecified",
                   MaterialFamily::kStructural,
                   "porte",
                   {"Porta", "Senza", "Generico"}},
        FilterCase{"OtherFamiliesKnowNoGlazing",
                   MaterialFamily::kFibrous,
                   "vetrate",
                   {"Vetro", "Senza", "Generico"}},
        FilterCase{"OtherFamiliesKnowNoGlazing2",
                   MaterialFamily::kResilient,
                   "vetrate",
                   {"Vetro", "Senza", "Generico"}},
        FilterCase{"NoneTwice", MaterialFamily::kFibrous, "non specificata", {"Generico", "Senza"}},
        FilterCase{"CaseCounts", MaterialFamily::kStructural, "Laterizi", {"Senza", "Generico"}}),
    [](const auto& test) { return test.param.name; });

TEST(OffTheLists, IsOfferedUnderItsOwnKeywordAlone) {
  const std::vector<storage::ListedMaterial> materials = {{"Mattone", "murature"},
                                                          {"Titanio", "fuori elenco"}};
  for (const MaterialFamily family :
       {MaterialFamily::kStructural, MaterialFamily::kFibrous, MaterialFamily::kResilient}) {
    EXPECT_EQ(KeywordFilter(family, materials, kTexts), (Names{"tutti", "murature"}));
    EXPECT_EQ(NamesUnderFilter(family, materials, "tutti", kTexts), Names{"Mattone"});
    EXPECT_EQ(NamesUnderFilter(family, materials, "murature", kTexts), Names{"Mattone"});
    EXPECT_EQ(NamesUnderFilter(family, materials, "fuori elenco", kTexts), Names{"Titanio"});
    EXPECT_FALSE(JoinsLists(family, "fuori elenco", "tutti", kTexts));
    EXPECT_TRUE(JoinsLists(family, "fuori elenco", "fuori elenco", kTexts));
  }
}

TEST(JoinsLists, KeepsWhatHasNoKeywordOutOfDoorsAndGlazing) {
  const struct {
    MaterialFamily family;
    const char* keyword;
    const char* filter;
    bool joins;
  } cases[] = {{MaterialFamily::kStructural, "laterizi", "laterizi", true},
               {MaterialFamily::kStructural, "laterizi", "porte", false},
               {MaterialFamily::kStructural, "laterizi", "tutti", true},
               {MaterialFamily::kStructural, "non specificata", "laterizi", true},
               {MaterialFamily::kStructural, "non specificata", "porte", false},
               {MaterialFamily::kStructural, "non specificata", "vetrate", false},
               {MaterialFamily::kStructural, "non specificata", "tutti", true},
               {MaterialFamily::kStructural, "porte", "porte", true},
               {MaterialFamily::kFibrous, "non specificata", "porte", true},
               {MaterialFamily::kResilient, "non specificata", "vetrate", true}};
  for (const auto& test : cases) {
    EXPECT_EQ(JoinsLists(test.family, test.keyword, test.filter, kTexts), test.joins)
        << test.keyword << " under " << test.filter;
  }
}

}  // namespace
}  // namespace velmar::materials
