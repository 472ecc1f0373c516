#include "storage/configuration/profile_file.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

struct ProfileCase {
  const char* name;
  std::string line;
  std::string value;
};

std::string Read(const std::string& text, const std::string& key = "CartellaDati") {
  const TemporaryFolder folder;
  WriteFile(folder / "Velmar.ini", text);
  return LeggiIni("Configurazione", key, folder / "Velmar.ini");
}

class ProfileTest : public testing::TestWithParam<ProfileCase> {};

TEST_P(ProfileTest, TakesTheValueAsItStands) {
  const std::string text = "; commento\r\n[Altra]\r\nCartellaDati=no\r\n[Configurazione]\r\n" +
                           GetParam().line + "\r\nCartellaDati=second\r\nLingua=English\r\n";
  EXPECT_EQ(Read(text), GetParam().value);
  EXPECT_EQ(Read(text, "Lingua"), "English");
}

std::string Long(std::size_t length, const std::string& unit = "abcde fghi") {
  std::string text;
  while (text.size() < length) text += unit;
  return text.substr(0, length);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ProfileTest,
    testing::Values(ProfileCase{"Plain", "CartellaDati=/srv/dati", "/srv/dati"},
                    ProfileCase{"Backslashes", "CartellaDati=C:\\Dati\\new\\x", "C:\\Dati\\new\\x"},
                    ProfileCase{"BlanksAround", "  CartellaDati =  /a b \t", "/a b"},
                    ProfileCase{"OtherCase", "CARTELLADATI=/x", "/x"},
                    ProfileCase{"Quoted", "CartellaDati=\" /x \"", " /x "},
                    ProfileCase{"OneQuote", "CartellaDati=\"/x", "\"/x"},
                    ProfileCase{"SemicolonAndHash", "CartellaDati=/a ;b #c", "/a ;b #c"},
                    ProfileCase{"ColonInValue", "CartellaDati=a:b=c", "a:b=c"},
                    ProfileCase{"Accents", "CartellaDati=/società/è", "/società/è"},
                    ProfileCase{"Windows1252", "CartellaDati=/societ\xE0\x80", "/società€"},
                    ProfileCase{"Of255", "CartellaDati=" + Long(255), Long(255)},
                    ProfileCase{"LongerIsCut", "CartellaDati=" + Long(900), Long(255)},
                    ProfileCase{"CharactersNotBytes", "CartellaDati=" + Long(600, "è"), Long(510, "è")}),
    [](const auto& test) { return test.param.name; });

TEST(Profile, WhatIsMissingIsEmpty) {
  EXPECT_EQ(Read(""), "");
  EXPECT_EQ(Read("[Configurazione]\nCartellaDati=\n"), "");
  EXPECT_EQ(Read("[Configurazione]\nLingua=x\n"), "");
  EXPECT_EQ(Read("CartellaDati=/x\n"), "") << "before any section";
  EXPECT_EQ(LeggiIni("Configurazione", "Lingua", "/nowhere/Velmar.ini"), "");
  EXPECT_EQ(LeggiIni("Configurazione", "Lingua", "/"), "");
}

TEST(Profile, SurvivesRubbish) {
  EXPECT_EQ(Read("\xEF\xBB\xBF[Configurazione]\n===\n[[]\n[Configurazione]\nno equals\nCartellaDati=/x"),
            "/x");
  EXPECT_EQ(Read(std::string(3'000'000, '[')), "");
  EXPECT_EQ(Read(std::string("[Configurazione]\nCartellaDati=/x\0y\n", 36)), "/xy");
}

}  // namespace
}  // namespace velmar::storage
