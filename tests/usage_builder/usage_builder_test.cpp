#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "usage_builder/completions.h"
#include "usage_builder/manual_page.h"

namespace velmar::usage_builder {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// A kitchen's command line: "cook PLATE --heat low|high --quick", "shelf list", "shelf fill WHAT".
class Kitchen : public testing::Test {
 protected:
  Kitchen() {
    app_.add_option("--room", text_, "the room: which one");
    CLI::App* cook = app_.add_subcommand("cook", "cooks what's there");
    cook->add_option("PLATE", text_, "what to cook")->required();
    cook->add_option("--heat", text_, "how hot")->type_name("low|high");
    cook->add_flag("--quick", flag_, "at once");
    CLI::App* shelf = app_.add_subcommand("shelf", "looks after the shelf");
    shelf->add_subcommand("list", "tells what is there");
    shelf->add_subcommand("fill", "puts something there")->add_option("WHAT", text_, "what to put");
  }

  UsageCommand Usage() const { return UsageOf(app_, "kitchen"); }

  /// What bash offers for the last of `words`, blanks between.
  std::string Offered(const std::string& words) const {
    std::string script = BashCompletion(Usage()) + "COMP_WORDS=(" + words + ")\n" +
                         "COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_kitchen\necho \"${COMPREPLY[*]}\"\n";
    const std::string file = testing::TempDir() + "completion-" + std::to_string(getpid()) + ".bash";
    std::ofstream(file) << script;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> bash(popen(("bash " + file).c_str(), "r"), pclose);
    std::string said;
    for (int letter = std::fgetc(bash.get()); letter != EOF && letter != '\n';
         letter = std::fgetc(bash.get()))
      said += static_cast<char>(letter);
    return said;
  }

  std::string text_{};
  bool flag_ = false;
  CLI::App app_{"a kitchen"};
};

TEST_F(Kitchen, IsATreeOfCommandsInTheirOrder) {
  const UsageCommand kitchen = Usage();
  ASSERT_EQ(kitchen.commands.size(), 2U);
  EXPECT_EQ(kitchen.commands[0].name, "cook");
  EXPECT_EQ(kitchen.commands[1].commands[1].name, "fill");
}

TEST_F(Kitchen, TellsFlagsValuesAndArgumentsApart) {
  const UsageCommand cook = Usage().commands[0];
  ASSERT_EQ(cook.options.size(), 4U);  // help stands first
  EXPECT_FALSE(cook.options[0].takes_value);
  EXPECT_TRUE(cook.options[1].argument);
  EXPECT_TRUE(cook.options[1].required);
  EXPECT_THAT(cook.options[2].choices, ElementsAre("low", "high"));
  EXPECT_FALSE(cook.options[3].takes_value);
}

TEST_F(Kitchen, BashOffersCommandsOptionsAndChoices) {
  EXPECT_EQ(Offered("kitchen ''"), "cook shelf");
  EXPECT_EQ(Offered("kitchen sh"), "shelf");
  EXPECT_EQ(Offered("kitchen shelf ''"), "list fill");
  EXPECT_EQ(Offered("kitchen cook soup --heat ''"), "low high");
  EXPECT_EQ(Offered("kitchen cook soup --q"), "--quick");
  EXPECT_EQ(Offered("kitchen cook soup --quick --he"), "--help --heat");
}

TEST_F(Kitchen, BashOffersTheProgramsOwnOptionsBehindACommand) {
  EXPECT_EQ(Offered("kitchen shelf list --ro"), "--room");
}

TEST_F(Kitchen, ZshQuotesWhatItsArgumentsWouldRead) {
  const std::string zsh = ZshCompletion(Usage());
  EXPECT_THAT(zsh, HasSubstr("'--heat[how hot]:low|high:(low high)'"));
  EXPECT_THAT(zsh, HasSubstr("'--quick[at once]'"));
  EXPECT_THAT(zsh, HasSubstr("the room\\: which one"));
  EXPECT_THAT(zsh, HasSubstr("'cook:cooks what'\\''s there'"));
}

TEST_F(Kitchen, FishOffersACommandUntilOneIsTyped) {
  const std::string fish = FishCompletion(Usage());
  EXPECT_THAT(fish, HasSubstr("-n 'not __fish_seen_subcommand_from cook shelf' -f -a cook"));
  EXPECT_THAT(fish, HasSubstr("-n '__fish_seen_subcommand_from cook' -l heat -x -a 'low high' -d 'how hot'"));
  EXPECT_THAT(fish, HasSubstr("-l quick -d 'at once'"));
}

TEST_F(Kitchen, TheManualPageHasEveryCommandWithItsOptions) {
  const std::string page = ManualPage(".TH KITCHEN 1\n.\\\" COMMANDS\n.SH END\n", Usage());
  EXPECT_THAT(page, HasSubstr(".SS kitchen cook\n"));
  EXPECT_THAT(page, HasSubstr(".SS kitchen shelf fill\n"));
  EXPECT_THAT(page, HasSubstr("[\\fB\\-\\-heat\\fR \\fIlow|high\\fR]"));
  EXPECT_THAT(page, HasSubstr(".SH END\n"));
  EXPECT_THAT(page, Not(HasSubstr("help")));
}

TEST_F(Kitchen, APageWithoutAPlaceForTheCommandsIsRefused) {
  EXPECT_THROW(ManualPage(".TH KITCHEN 1\n", Usage()), std::invalid_argument);
}

}  // namespace
}  // namespace velmar::usage_builder
