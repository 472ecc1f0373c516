#include "storage/configuration/configuration.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

Configuration Read(const std::string& text) {
  const TemporaryFolder folder;
  WriteFile(folder / "Velmar.ini", text);
  return ReadConfiguration(folder / "Velmar.ini", "/home/ada/Documenti");
}

TEST(Configuration, WithOnlyALanguageTheDataFolderIsInTheDocuments) {
  const Configuration configuration = Read("[Configurazione]\nLingua=English\n");
  EXPECT_EQ(configuration.LeggiLingua(), "English");
  EXPECT_EQ(configuration.LeggiCartellaDati(), "/home/ada/Documenti/VELMARpro");
}

TEST(Configuration, WithoutAFileItIsItalian) {
  const TemporaryFolder folder;
  const Configuration configuration = ReadConfiguration(folder / "Velmar.ini", "/d");
  EXPECT_EQ(configuration.LeggiLingua(), "Italiano");
  EXPECT_FALSE(std::filesystem::exists(folder / "Velmar.ini")) << "the file is only read";
}

TEST(Configuration, EveryPathHangsFromTheDataFolder) {
  const Configuration configuration("Italiano", "/dati");
  EXPECT_EQ(configuration.CartellaTemplates().string(), "/dati/Templates");
  EXPECT_EQ(configuration.CartellaDatabases().string(), "/dati/Databases");
  EXPECT_EQ(configuration.PercorsoInterfMess().string(), "/dati/Databases/InterfMess.mdb");
  EXPECT_EQ(configuration.PercorsoDatabase().string(), "/dati/Databases/Database/Database.mdb");
  EXPECT_EQ(configuration.PercorsoDatabaseTeorico().string(),
            "/dati/Databases/Database/Database_teorico.mdb");
  EXPECT_EQ(configuration.CartellaImmagini().string(), "/dati/Databases/immagine");
}

TEST(Configuration, ATrailingSeparatorIsDoubledInEveryPath) {
  const Configuration configuration = Read("[Configurazione]\nCartellaDati=/dati/\n");
  EXPECT_EQ(configuration.PercorsoDatabase().string(), "/dati//Databases/Database/Database.mdb");
}

TEST(Configuration, BackslashesSeparateFolders) {
  EXPECT_EQ(Read("[Configurazione]\nCartellaDati=/srv\\studio\\dati\n").LeggiCartellaDati().string(),
            "/srv/studio/dati");
}

TEST(EsisteFile, SwallowsEveryFailure) {
  const TemporaryFolder folder;
  WriteFile(folder / "a", "");
  EXPECT_TRUE(EsisteFile(folder / "a"));
  EXPECT_FALSE(EsisteFile(folder / "b"));
  EXPECT_FALSE(EsisteFile(folder.Path()));
  EXPECT_FALSE(EsisteFile(""));
}

}  // namespace
}  // namespace velmar::storage
