#include "cli/commands/profile_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/spoken_command.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

class Profile : public testing::Test {
 protected:
  Said Say(const std::vector<std::string>& arguments) {
    Services services = BareServices();
    services.data_folder = folder_.Path();
    services.readable_picture = [](const std::string& bytes) {
      return bytes.find("broken") == std::string::npos;
    };
    std::vector<std::string> all = {"profile"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return Speak(all, services);
  }

  storage::TemporaryFolder folder_;
};

TEST_F(Profile, ShowsWhatWasSet) {
  EXPECT_EQ(Say({"set", "name", " Studio Neri "}).code, 0);
  EXPECT_EQ(Say({"set", "address", "via Roma 1\\nBologna"}).code, 0);
  EXPECT_EQ(Say({"set", "language", "it+en"}).out,
            "name: Studio Neri\naddress: via Roma 1|Bologna\nlanguage: it+en\n");
  const Said said = Say({"show", "--json"});
  EXPECT_EQ(said.Json()["address"], "via Roma 1\nBologna");
  EXPECT_EQ(said.Json().size(), 3U);
  EXPECT_EQ(Say({"set", "language", ""}).out, "name: Studio Neri\naddress: via Roma 1|Bologna\n");
}

TEST_F(Profile, CopiesAPicture) {
  storage::WriteFile(folder_ / "mio.svg", "<svg/>");
  const Said said = Say({"set", "logo", (folder_ / "mio.svg").string(), "--json"});
  EXPECT_EQ(said.code, 0) << said.errors;
  EXPECT_EQ(storage::ReadFile(folder_.Path() / "Studio" / said.Json()["logo"].get<std::string>()), "<svg/>");
}

TEST_F(Profile, RefusesWhatItCannotHold) {
  EXPECT_EQ(Say({"set", "name", "Studio"}).code, 0);
  storage::WriteFile(folder_ / "rotto.svg", "<svg> broken");
  storage::WriteFile(folder_ / "testo.txt", "no picture");
  for (const std::vector<std::string>& wrong :
       std::vector<std::vector<std::string>>{{"set", "stamp", "x"},
                                             {"set", "language", "de"},
                                             {"set", "name", std::string(121, 'a')},
                                             {"set", "logo", (folder_ / "rotto.svg").string()},
                                             {"set", "logo", (folder_ / "testo.txt").string()},
                                             {"set", "logo", (folder_ / "nowhere.png").string()}}) {
    const Said said = Say(wrong);
    EXPECT_EQ(said.code, 1) << wrong[1];
    EXPECT_NE(said.errors, "") << wrong[1];
  }
  EXPECT_EQ(Say({"show"}).out, "name: Studio\n");
}

TEST_F(Profile, IsClearedAndADamagedOneKept) {
  EXPECT_EQ(Say({"set", "name", "Studio"}).code, 0);
  EXPECT_EQ(Say({"clear", "--json"}).out, "{}\n");
  storage::WriteFile(folder_ / "Studio/profilo.txt", "damaged");
  EXPECT_EQ(Say({"show"}).code, 1);
  EXPECT_EQ(Say({"set", "name", "Studio"}).code, 1);
  EXPECT_EQ(storage::ReadFile(folder_ / "Studio/profilo.txt"), "damaged");
  const Said said = Say({"clear"});
  EXPECT_EQ(said.code, 0);
  EXPECT_THAT(said.errors, testing::HasSubstr("danneggiato"));
  EXPECT_EQ(Say({"set", "name", "Studio"}).code, 0);
}

}  // namespace
}  // namespace velmar::cli
