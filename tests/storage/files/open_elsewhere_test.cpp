#include "storage/files/open_elsewhere.h"

#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

struct Beside {
  const char* document;
  const char* owner;
  bool open;
};

class OpenElsewhere : public testing::TestWithParam<Beside> {
 protected:
  OpenElsewhere() { fs::create_directories(folder_); }
  ~OpenElsewhere() override {
    std::error_code error;
    fs::remove_all(folder_, error);
  }

  fs::path folder_ = fs::temp_directory_path() / ("velmar-open-" + std::to_string(::getpid()));
};

TEST_P(OpenElsewhere, FollowsTheOwnersFile) {
  std::ofstream(folder_ / GetParam().document) << "x";
  EXPECT_FALSE(IsOpenElsewhere(folder_ / GetParam().document));
  std::ofstream(folder_ / GetParam().owner) << "x";
  EXPECT_EQ(IsOpenElsewhere(folder_ / GetParam().document), GetParam().open);
}

INSTANTIATE_TEST_SUITE_P(Names, OpenElsewhere,
                         testing::Values(Beside{"relazione.docx", ".~lock.relazione.docx#", true},
                                         Beside{"relazione.docx", "~$lazione.docx", true},
                                         Beside{"càlcolo1.docx", "~$lcolo1.docx", true},
                                         Beside{"calcolo.docx", "~$alcolo.docx", true},
                                         Beside{"muro.docx", "~$muro.docx", true},
                                         Beside{"muro.docx", "~$ro.docx", false},
                                         Beside{"relazione.xlsx", "~$relazione.xlsx", true},
                                         Beside{"relazione.docx", "~$fazione.docx", false},
                                         Beside{"relazione.docx", ".~lock.altra.docx#", false}));

}  // namespace
}  // namespace velmar::storage
