#include "cli/commands/report_command.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "tests/cli/spoken_command.h"

namespace velmar::cli {
namespace {

using std::filesystem::path;
using testing::HasSubstr;

std::string BytesOf(const path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class Report : public testing::Test {
 protected:
  Report() { std::filesystem::create_directories(folder_); }
  ~Report() override {
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  std::string In(const std::string& name) const { return (folder_ / name).string(); }

  std::string Copy(const std::string& example, const std::string& name) const {
    std::filesystem::create_directories(path(In(name)).parent_path());
    std::filesystem::copy_file(Example(example.c_str()), In(name));
    return In(name);
  }

  /// The command line with the table and a format "txt" that writes the project's name and Rw.
  int Say(const std::vector<std::string>& arguments) {
    Services services = BareServices();
    services.report_formats = {CsvFormat(),
                               {.extension = "txt", .help = {}, .bytes = [](const ReportContent& content) {
                                  if (!content.result.spectrum)
                                    throw Failure({{MessageRow{1022}}}, "no spectrum");
                                  return content.name + " " +
                                         std::to_string(static_cast<int>(content.result.rw.value_or(0.0)));
                                }}};
    const Said said = Speak(arguments, services);
    said_ = said.out + said.errors;
    return said.code;
  }

  std::size_t FileCount() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::recursive_directory_iterator(folder_), {}));
  }

  path folder_ = std::filesystem::temp_directory_path() / ("velmar-report-" + std::to_string(::getpid()));
  std::string said_;
};

TEST_F(Report, WritesTheTableOfOneProject) {
  EXPECT_EQ(Say({"report", Example("parete-forato-intonacata"), "--csv", In("a.csv")}), 0) << said_;
  const std::string csv = BytesOf(In("a.csv"));
  EXPECT_THAT(csv, HasSubstr("\r\n100;36,2;25\r\n"));
  EXPECT_THAT(csv, HasSubstr("\r\nRw [dB];44,0;\r\n"));
  EXPECT_EQ(said_, "");
}

TEST_F(Report, WritesSeveralFormatsAtOnceAndNamesFilesInAFolderAfterTheProject) {
  EXPECT_EQ(Say({"report", Example("parete-forato-intonacata"), "--csv", In(""), "--txt", In("x.txt")}), 0);
  EXPECT_TRUE(std::filesystem::exists(In("parete-forato-intonacata.csv")));
  EXPECT_EQ(BytesOf(In("x.txt")), "parete-forato-intonacata 44");
}

TEST_F(Report, WritesManyProjectsIntoAFolder) {
  EXPECT_EQ(Say({"report", Example("parete-forato-intonacata"), Example("facciata"), "--csv", In("")}), 0);
  EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Report, AProjectThatFailsDoesNotStopTheOthers) {
  EXPECT_EQ(
      Say({"report", In("none.drav"), Example("parete-fuori-campo"), Example("facciata"), "--csv", In("")}),
      1);
  EXPECT_EQ(FileCount(), 1U);
  EXPECT_TRUE(std::filesystem::exists(In("facciata.csv")));
  EXPECT_THAT(said_, HasSubstr("none.drav:\n"));
  EXPECT_THAT(said_, HasSubstr("parete-fuori-campo.drav:\n"));
}

TEST_F(Report, ADeclinedRunWritesNothingUnlessAnswered) {
  EXPECT_EQ(Say({"report", Example("parete-fuori-campo"), "--csv", In("a.csv")}), 3);
  EXPECT_EQ(FileCount(), 0U);
  EXPECT_EQ(Say({"report", Example("parete-fuori-campo"), "--csv", In("a.csv"), "--answer", "yes"}), 0);
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Report, AFormatThatTheCalculationDoesNotGiveIsToldAndTheOthersWritten) {
  EXPECT_EQ(Say({"report", Example("controplaccaggio-generico"), "--csv", In(""), "--txt", In("")}), 1);
  EXPECT_THAT(said_, HasSubstr("row 1022"));
  EXPECT_TRUE(std::filesystem::exists(In("controplaccaggio-generico.csv")));
  EXPECT_FALSE(std::filesystem::exists(In("controplaccaggio-generico.txt")));
}

TEST_F(Report, AReadOnlyTargetIsToldAndStays) {
  std::ofstream(In("old.csv")) << "old";
  std::filesystem::permissions(In("old.csv"), std::filesystem::perms::owner_read);
  EXPECT_EQ(Say({"report", Example("facciata"), "--csv", In("old.csv")}), 1);
  EXPECT_EQ(BytesOf(In("old.csv")), "old");
  EXPECT_NE(said_, "");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Report, ATargetThatIsOpenElsewhereIsToldAndStays) {
  std::ofstream(In("old.csv")) << "old";
  std::ofstream(In(".~lock.old.csv#")) << "me";
  EXPECT_EQ(Say({"report", Example("facciata"), "--csv", In("old.csv")}), 1);
  EXPECT_EQ(BytesOf(In("old.csv")), "old");
  EXPECT_THAT(said_, HasSubstr("row 272"));
}

TEST_F(Report, AMissingFolderIsTold) {
  EXPECT_EQ(Say({"report", Example("facciata"), "--csv", In("none/a.csv")}), 1);
  EXPECT_THAT(said_, HasSubstr("none/a.csv"));
}

TEST_F(Report, RefusesTargetsThatMeetBeforeItWrites) {
  const std::string first = Copy("facciata", "a/p.drav");
  const std::string second = Copy("facciata", "b/p.drav");
  const std::size_t before = FileCount();
  const struct {
    std::vector<std::string> arguments;
    const char* row;
  } cases[] = {
      {{"report", first}, "row 1290 --csv --txt"},
      {{"report", first, second, "--csv", In("one.csv")}, "row 1291"},
      {{"report", first, second, "--csv", In("")}, "row 1292"},
      {{"report", first, "--csv", In("a/../a/p.drav")}, "row 1293"},
      {{"report", first, "--csv", In("same"), "--txt", In("same")}, "row 1294"},
  };
  for (const auto& [arguments, row] : cases) {
    EXPECT_EQ(Say(arguments), 2) << row;
    EXPECT_THAT(said_, HasSubstr(row));
  }
  EXPECT_EQ(FileCount(), before);
  EXPECT_EQ(BytesOf(first), BytesOf(second));
}

TEST_F(Report, UnknownFormatsAreWrongUsage) {
  EXPECT_EQ(Say({"report", Example("facciata"), "--pdf", In("a.pdf")}), 2);
  EXPECT_EQ(Say({"report", "--csv", In("a.csv")}), 2);
}

/// Services whose documents of several projects are the names of those that exist, a line each.
Services TogetherServices() {
  Services services = BareServices();
  services.together = {.extensions = {"docx", "pdf"}, .make = [](const TogetherOrder& order) {
                         TogetherDocument document{.bytes = order.title + "\n"};
                         for (const path& project : order.projects) {
                           if (std::filesystem::exists(project)) {
                             document.bytes += project.stem().string() + "\n";
                           } else {
                             document.failed.push_back({project, {{std::string("manca")}}});
                           }
                         }
                         if (document.failed.size() == order.projects.size())
                           throw Failure({{kScheduleNothingRow}}, "nothing");
                         return document;
                       }};
  services.report_formats = {{.extension = "docx"}, {.extension = "pdf"}, {.extension = "csv"}};
  return services;
}

TEST_F(Report, TogetherWritesOneDocumentOfAllProjects) {
  const Said said = Speak({"report", Example("vetro-6"), Example("facciata"), "--together", "--title",
                           "Scuola", "--docx", In("abaco.docx")},
                          TogetherServices());
  EXPECT_EQ(said.code, 0) << said.errors;
  EXPECT_EQ(BytesOf(In("abaco.docx")), "Scuola\nvetro-6\nfacciata\n");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Report, TogetherNamesWhatGaveNoResultAndSaysSoByItsCode) {
  const Said said =
      Speak({"report", Example("vetro-6"), In("manca.drav"), "--together", "--pdf", In("a.pdf")},
            TogetherServices());
  EXPECT_EQ(said.code, 4);
  EXPECT_THAT(said.errors, HasSubstr("manca.drav"));
  EXPECT_EQ(BytesOf(In("a.pdf")), "\nvetro-6\n");
}

TEST_F(Report, TogetherWithoutAnyResultWritesNothing) {
  const Said said =
      Speak({"report", In("manca.drav"), "--together", "--pdf", In("a.pdf")}, TogetherServices());
  EXPECT_EQ(said.code, 3);
  EXPECT_EQ(FileCount(), 0U);
}

TEST_F(Report, TogetherRefusesTheFormatsOfSingleProjectsAndToReplaceOne) {
  const std::string project = Copy("vetro-6", "vetro.docx");
  EXPECT_EQ(Speak({"report", project, "--together", "--csv", In("a.csv")}, TogetherServices()).code, 2);
  EXPECT_EQ(Speak({"report", project, "--together", "--docx", project}, TogetherServices()).code, 2);
  EXPECT_EQ(Speak({"report", project, "--together"}, TogetherServices()).code, 2);
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Report, ATemplateIsCheckedAndNothingWritten) {
  Services services = BareServices();
  services.check_template = [](const path& file) {
    return file.filename() == "buono.docx" ? Message() : Message{{std::string("[X]")}};
  };
  EXPECT_EQ(Speak({"report", "--check-template", "buono.docx"}, services).code, 0);
  const Said bad = Speak({"report", "--check-template", "altro.docx"}, services);
  EXPECT_EQ(bad.code, 1);
  EXPECT_THAT(bad.out, HasSubstr("[X]"));
  EXPECT_EQ(Speak({"report"}, services).code, 2);
}

TEST(References, EveryMarkModelAndStandardIsListedOnce) {
  const Said said = Speak({"references", "--json"});
  ASSERT_EQ(said.code, 0);
  std::set<int> marks;
  for (const nlohmann::json& entry : said.Json()) {
    if (entry.contains("mark")) marks.insert(entry["mark"].get<int>());
  }
  EXPECT_EQ(marks.size(), 28U);
  EXPECT_EQ(*marks.begin(), 1);
  EXPECT_EQ(*marks.rbegin(), 28);
  // One model a kind of physics, two standards.
  const auto of_kind = [&](const char* kind) {
    const nlohmann::json json = said.Json();
    return std::ranges::count_if(json, [&](const nlohmann::json& entry) { return entry["kind"] == kind; });
  };
  EXPECT_EQ(of_kind("rating"), 2);
  EXPECT_EQ(of_kind("model"), 8);
}

}  // namespace
}  // namespace velmar::cli
