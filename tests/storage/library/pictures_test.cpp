#include "storage/library/pictures.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

TEST(PictureFile, IsTheOneNamedOrSenza) {
  const TemporaryFolder folder;
  for (const char* name : {"senza.jpg", "Infissi/Porta.JPG", "Infissi/sotto/a.png", "segreto.jpg"}) {
    WriteFile(folder / name, "x");
  }
  const auto none = folder / "senza.jpg";
  const struct {
    const char* picture;
    std::filesystem::path file;
  } cases[] = {{"Porta.JPG", folder / "Infissi/Porta.JPG"},
               {"porta.jpg", folder / "Infissi/Porta.JPG"},
               {"sotto\\a.png", folder / "Infissi/sotto/a.png"},
               {"SOTTO/A.PNG", folder / "Infissi/sotto/a.png"},
               {"senza", none},
               {"", none},
               {"manca.jpg", none},
               {"..\\segreto.jpg", none},
               {"../segreto.jpg", none},
               {"/etc/passwd", none},
               {"sotto", none},
               {"sotto/", none}};
  for (const auto& test : cases)
    EXPECT_EQ(PictureFile(folder.Path(), "Infissi", test.picture), test.file) << test.picture;
}

}  // namespace
}  // namespace velmar::storage
