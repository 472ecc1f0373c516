#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "manual_builder/lists.h"

namespace velmar::manual {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

class MessageListTest : public testing::Test {
 protected:
  MessageListTest()
      : folder_(fs::temp_directory_path() /
                (std::string("messaggi-") + testing::UnitTest::GetInstance()->current_test_info()->name())) {
    fs::create_directories(folder_);
    Write("catalogo.csv",
          "row,name,use,Italiano,English\n"
          "1,kOneRow,calculation,La massa degli strati è nulla: controllare.,x\n"
          "2,kTwoRow,a command fails,Il comando non è riuscito questa volta.,x\n"
          "3,kThreeRow,tool tip of a field,Un suggerimento abbastanza lungo da contare.,x\n"
          "4,kFourRow,a label,Etichetta lunga ma senza il punto finale,x\n");
  }
  ~MessageListTest() override { fs::remove_all(folder_); }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  std::string Told(const std::string& advice, const std::string& group) const {
    Write("consigli.csv", "gruppo,riga,consiglio\n" + advice);
    Directives directives;
    AddMessageLists({folder_ / "catalogo.csv"}, folder_ / "consigli.csv", directives);
    return directives["messaggi"]({group});
  }

 private:
  fs::path folder_;
};

TEST_F(MessageListTest, TellsAMessageWithItsAdvice) {
  EXPECT_THAT(Told("calcolo,kOneRow,Controllare gli spessori.\n", "calcolo"),
              HasSubstr("| La massa degli strati è nulla: controllare. | Controllare gli spessori. |"));
}

TEST_F(MessageListTest, TellsTheSentencesThatNobodyGaveAdviceOn) {
  const std::string others = Told("calcolo,kOneRow,Controllare.\n", "altri");
  EXPECT_THAT(others, HasSubstr("Il comando non è riuscito"));
  EXPECT_THAT(others, Not(HasSubstr("La massa")));
  EXPECT_THAT(others, Not(HasSubstr("suggerimento")));
  EXPECT_THAT(others, Not(HasSubstr("Etichetta")));
}

TEST_F(MessageListTest, RefusesARowThatThereIsNotOrThatStandsTwice) {
  EXPECT_THROW(Told("calcolo,kNoSuchRow,x\n", "calcolo"), std::runtime_error);
  EXPECT_THROW(Told("calcolo,kOneRow,x\ncampo,kOneRow,y\n", "calcolo"), std::runtime_error);
  EXPECT_THROW(Told("calcolo,kOneRow,x\n", "vuoto"), std::runtime_error);
}

}  // namespace
}  // namespace velmar::manual
