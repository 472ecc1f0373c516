#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "storage/configuration/configuration.h"
#include "storage/database/file_kind.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

namespace fs = std::filesystem;
using storage::ReadFile;
using storage::WriteFile;

constexpr const char* kAccessHead = "\x01\x01\x01\x01Standard Jet DB";

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char letter : text) quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
  return quoted + "'";
}

/// The built program in a folder of its own, installed as a package would, with an empty home.
class ProgramTest : public testing::Test {
 protected:
  ProgramTest() {
    for (const char* name : {"bin", "share", "lib/velmarpro", "home"}) fs::create_directories(root_ / name);
    fs::copy_file(VELMAR_PROGRAM, Program());
    fs::create_directory_symlink(SHIPPED, root_ / "share/velmarpro");
    fs::create_symlink(VELMAR_ACCESS_READER, root_ / "lib/velmarpro/velmar-access-reader");
  }

  struct Said {
    int code = -1;
    std::string out{};
    std::string errors{};
  };

  /// Runs a line of shell in which the program is called `velmar`.
  Said Shell(const std::string& line) const {
    const std::string set_up = "export HOME=" + Quoted(root_ / "home") + " PATH=" + Quoted(root_ / "bin") +
                               ":$PATH; unset XDG_CONFIG_HOME; ";
    WriteFile(root_ / "line", set_up + line);
    const int status = std::system(
        ("sh " + Quoted(root_ / "line") + " >" + Quoted(root_ / "out") + " 2>" + Quoted(root_ / "errors"))
            .c_str());
    return {WEXITSTATUS(status), ReadFile(root_ / "out"), ReadFile(root_ / "errors")};
  }

  void Configure(const std::string& lines) const {
    WriteFile(root_ / "bin/Velmar.ini", "[Configurazione]\n" + lines + "\n");
  }
  /// A first start, which makes the data folder.
  void Start() const { ASSERT_EQ(Shell("velmar catalogue").code, 0); }

  fs::path Program() const { return root_ / "bin/velmar"; }
  fs::path Data() const { return root_ / "home/Documents/VELMARpro"; }
  fs::path FileOf(const char* name) const { return Data() / name; }

  /// Every file of the data folder with its bytes.
  std::map<fs::path, std::string> Contents() const {
    std::map<fs::path, std::string> contents;
    for (const auto& entry : fs::recursive_directory_iterator(Data())) {
      if (entry.is_regular_file()) contents[entry.path()] = ReadFile(entry.path());
    }
    return contents;
  }

 private:
  static std::string Quoted(const fs::path& path) { return cli::Quoted(path.string()); }

  storage::TemporaryFolder root_;
};

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

std::string Example(const char* name) { return std::string(EXAMPLES) + "/" + name + ".drav"; }

TEST_F(ProgramTest, AFirstStartUnderAnEmptyHomeMakesTheDataFolder) {
  const Said said = Shell("velmar materials list --json");
  EXPECT_EQ(said.code, 0) << said.errors;
  EXPECT_GE(nlohmann::json::parse(said.out).size(), 190U);
  EXPECT_EQ(said.errors, "");
  EXPECT_TRUE(fs::exists(FileOf(storage::kMessageDatabase)));
}

TEST_F(ProgramTest, WithoutAPlaceForTheDataFolderTheShippedDataServe) {
  Configure("CartellaDati=/proc/none/VELMARpro");
  const Said said = Shell("velmar materials list");
  EXPECT_EQ(said.code, 0);
  EXPECT_TRUE(Holds(said.errors, "/proc/none/VELMARpro")) << said.errors;
  EXPECT_FALSE(said.out.empty());
}

TEST_F(ProgramTest, AMistypedOrRelativeDataFolderIsNotMade) {
  const Said mistyped = Shell("cd \"$HOME\"; velmar --data Docments/VELMARpro materials list");
  EXPECT_EQ(mistyped.code, 1);
  EXPECT_TRUE(Holds(mistyped.errors, "Docments/VELMARpro")) << mistyped.errors;
  EXPECT_EQ(mistyped.out, "");
  EXPECT_TRUE(fs::is_empty(Data().parent_path().parent_path()));
  Configure("CartellaDati=dati");
  EXPECT_EQ(Shell("cd \"$HOME\"; velmar materials list").code, 1);
  EXPECT_TRUE(fs::is_empty(Data().parent_path().parent_path()));
  EXPECT_EQ(Shell("cd \"$HOME\"; velmar doctor --repair").code, 0);
  EXPECT_EQ(Shell("cd \"$HOME\"; velmar materials list").code, 0) << "where it stands it is used";
}

TEST_F(ProgramTest, AWorkingFolderThatIsGoneEndsInACode) {
  Start();
  for (const char* command : {"velmar materials list", "velmar run a.drav", "velmar save a.drav b.drav",
                              "velmar --data dati materials list", "velmar report a.drav --csv b.csv",
                              "velmar import a.mdb", "velmar doctor"}) {
    const Said said =
        Shell("mkdir \"$HOME/gone\"; cd \"$HOME/gone\"; rmdir \"$HOME/gone\"; " + std::string(command));
    EXPECT_LE(said.code, 3) << command << ": " << said.errors;
    EXPECT_FALSE(Holds(said.errors, "terminate")) << command << ": " << said.errors;
  }
}

TEST_F(ProgramTest, OutputToAFullDeviceIsAFailure) {
  Start();
  const std::string project = cli::Quoted(Example("parete-forato-intonacata"));
  for (const std::string& command : {std::string("catalogue"), std::string("materials list --json"),
                                     "run " + project, std::string("--help")}) {
    EXPECT_EQ(Shell("velmar " + command + " > /dev/full").code, 1) << command;
  }
}

/// No display, no session: nothing is said of either.
TEST_F(ProgramTest, RunsWithoutASession) {
  Start();
  const std::string bare = "unset DISPLAY WAYLAND_DISPLAY XDG_RUNTIME_DIR QT_QPA_PLATFORM; velmar ";
  const std::string project = cli::Quoted(Example("parete-forato-intonacata"));
  EXPECT_EQ(Shell(bare + "run " + project).errors, "");
  const Said report = Shell(bare + "report " + project + " --csv \"$HOME/a.csv\"");
  EXPECT_EQ(report.code, 0);
  EXPECT_EQ(report.errors, "");
}

TEST_F(ProgramTest, ABrokenTextOfTheCatalogueEndsNoCommand) {
  Start();
  WriteFile(FileOf(storage::kMessageDatabase),
            ReadFile(fs::path(DAMAGED_DATABASES) / "line-break-in-texts-messages.mdb"));
  for (const char* command : {"velmar --help", "velmar catalogue", "velmar materials list"})
    EXPECT_EQ(Shell(command).code, 0) << command;
  EXPECT_TRUE(Holds(Shell("velmar --help").out, "Opzioni"));
}

TEST_F(ProgramTest, ADamagedMaterialTableEndsNoCommandByASignal) {
  Start();
  const std::string project = cli::Quoted(Example("doppia-forati-lana"));
  for (const char* name : {"pages-swapped-materials.mdb", "row-deleted-past-its-index-materials.mdb"}) {
    WriteFile(FileOf(storage::kMaterialDatabase), ReadFile(fs::path(DAMAGED_DATABASES) / name));
    for (const std::string& command : {"run " + project, std::string("materials show 'Mattone pieno'"),
                                       std::string("materials list --json"),
                                       std::string("materials delete --family structural 'Mattone pieno'"),
                                       std::string("materials export --family structural")}) {
      const Said said = Shell("velmar " + command);
      EXPECT_LE(said.code, 3) << name << ' ' << command << ": " << said.errors;
    }
  }
}

TEST_F(ProgramTest, TheDoctorWorksWhereNothingElseDoes) {
  Start();
  WriteFile(FileOf(storage::kMessageDatabase), "damaged");
  WriteFile(FileOf(storage::kMaterialDatabase), "damaged");
  EXPECT_EQ(Shell("velmar catalogue").code, 1);
  const Said found = Shell("velmar doctor");
  EXPECT_EQ(found.code, 1);
  EXPECT_TRUE(Holds(found.out, "danneggiato")) << found.out;
  EXPECT_EQ(Shell("velmar doctor --repair").code, 0);
  EXPECT_EQ(Shell("velmar doctor").code, 0);
  EXPECT_EQ(Shell("velmar catalogue").code, 0);
}

TEST_F(ProgramTest, AWrongLanguageIsToldInBothLanguages) {
  Configure("Lingua=Klingon");
  const Said said = Shell("velmar catalogue");
  EXPECT_EQ(said.code, 1);
  EXPECT_TRUE(Holds(said.errors, "non contiene la lingua")) << said.errors;
  EXPECT_TRUE(Holds(said.errors, "does not hold the language")) << said.errors;
}

TEST_F(ProgramTest, AMissingOrDamagedCatalogueIsToldAndLeftAlone) {
  Start();
  fs::remove(FileOf(storage::kMessageDatabase));
  const Said missing = Shell("velmar catalogue");
  EXPECT_EQ(missing.code, 1);
  EXPECT_TRUE(Holds(missing.errors, "InterfMess.mdb")) << missing.errors;
  EXPECT_FALSE(fs::exists(FileOf(storage::kMessageDatabase)));
  WriteFile(FileOf(storage::kMessageDatabase), "damaged");
  EXPECT_EQ(Shell("velmar catalogue").code, 1);
  EXPECT_EQ(ReadFile(FileOf(storage::kMessageDatabase)), "damaged");
}

TEST_F(ProgramTest, CommandsThatReadChangeNothing) {
  Start();
  const auto before = Contents();
  const std::string project = cli::Quoted(Example("parete-forato-intonacata"));
  for (const std::string& command :
       {std::string("materials list"), std::string("results list"), std::string("library list"),
        std::string("materials export --family structural"), "run " + project}) {
    EXPECT_EQ(Shell("velmar " + command).code, 0) << command;
  }
  EXPECT_EQ(Contents(), before);
}

struct StoreUse {
  const char* store;
  std::string command;
};

/// Every command that cannot do without the store.
const StoreUse kStoreUses[] = {
    {storage::kMaterialDatabase, "materials list"},
    {storage::kMaterialDatabase, "materials show Vetro"},
    {storage::kMaterialDatabase, "materials delete --family structural Vetro"},
    {storage::kMaterialDatabase, "materials export --family structural"},
    {storage::kResultDatabase, "results list"},
    {storage::kResultDatabase, "results show x"},
    {storage::kResultDatabase, "results delete --table airborne x"},
    {storage::kResultDatabase, "results save " + cli::Quoted(Example("doppia-forati-lana")) + " x"},
    {storage::kResultDatabase, "facade " + cli::Quoted(Example("facciata")) + " out.drav --opaque results:x"},
};

TEST_F(ProgramTest, ADamagedStoreFailsEveryCommandThatNeedsItAndIsLeftAlone) {
  Start();
  for (const StoreUse& use : kStoreUses) {
    const std::string good = ReadFile(FileOf(use.store));
    WriteFile(FileOf(use.store), "damaged");
    const auto before = Contents();
    const Said said = Shell("velmar " + use.command);
    EXPECT_EQ(said.code, 1) << use.command;
    EXPECT_TRUE(Holds(said.errors, "danneggiato")) << use.command << ": " << said.errors;
    EXPECT_EQ(said.out, "") << use.command;
    EXPECT_EQ(Contents(), before) << use.command;
    WriteFile(FileOf(use.store), good);
  }
}

TEST_F(ProgramTest, AnAccessStoreFailsWithTheCommandThatConvertsIt) {
  Start();
  for (const StoreUse& use : kStoreUses) {
    const std::string good = ReadFile(FileOf(use.store));
    WriteFile(FileOf(use.store), kAccessHead);
    const auto before = Contents();
    const Said said = Shell("velmar " + use.command);
    EXPECT_EQ(said.code, 1) << use.command;
    EXPECT_TRUE(Holds(said.errors, "  velmar import --yes '" + FileOf(use.store).string() + "'\n"))
        << use.command << ": " << said.errors;
    EXPECT_EQ(Contents(), before) << use.command;
    WriteFile(FileOf(use.store), good);
  }
}

/// A project holds what its run needs: the table only refreshes it.
TEST_F(ProgramTest, ARunGoesOnWithoutTheMaterialDatabaseAndSaysSo) {
  Start();
  const std::string run = "velmar run --json " + cli::Quoted(Example("parete-forato-intonacata"));
  const Said whole = Shell(run);
  for (const char* bytes : {"damaged", kAccessHead}) {
    WriteFile(FileOf(storage::kMaterialDatabase), bytes);
    const Said said = Shell(run);
    EXPECT_EQ(said.code, 0);
    EXPECT_EQ(said.out, whole.out);
    EXPECT_TRUE(Holds(said.errors, "Database.mdb")) << said.errors;
    EXPECT_EQ(Holds(said.errors, "velmar import"), bytes == kAccessHead) << said.errors;
  }
}

/// The last line of `text` that begins with two blanks, without them.
std::string CommandIn(const std::string& text) {
  const std::size_t start = text.rfind("  velmar import");
  return start == std::string::npos ? "" : text.substr(start + 2, text.find('\n', start) - start - 2);
}

class GenuineAccessTest : public ProgramTest {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMAR_ACCESS_FIXTURES");
    if (folder == nullptr || *folder == '\0')
      GTEST_SKIP() << "left out: VELMAR_ACCESS_FIXTURES names no folder";
    bytes_ = ReadFile(fs::path(folder) / "jet4-schema-generated.mdb");
  }
  std::string bytes_;
};

TEST_F(GenuineAccessTest, TheCommandThatIsNamedConverts) {
  // A path that a shell would take apart.
  Configure("CartellaDati=" + (Data().parent_path() / "dell'ufficio $HOME").string());
  Start();
  const fs::path file = Data().parent_path() / "dell'ufficio $HOME" / storage::kMaterialDatabase;
  WriteFile(file, bytes_);
  const std::string command = CommandIn(Shell("velmar materials list").errors);
  const Said said = Shell(command);
  EXPECT_EQ(said.code, 0) << command << ": " << said.errors;
  EXPECT_TRUE(Holds(said.out, "Modulo_A1: 4")) << said.out;
  EXPECT_EQ(ReadFile(file.string() + ".originale"), bytes_);
  EXPECT_EQ(nlohmann::json::parse(Shell("velmar materials list --json").out).size(), 8U);
}

TEST_F(GenuineAccessTest, AnAccessCatalogueLeavesTheProgramUsable) {
  Start();
  WriteFile(FileOf(storage::kMessageDatabase), bytes_);
  const Said said = Shell("velmar catalogue");
  EXPECT_EQ(said.code, 0);
  EXPECT_FALSE(said.out.empty());
  EXPECT_EQ(ReadFile(FileOf(storage::kMessageDatabase)), bytes_);
  EXPECT_EQ(Shell(CommandIn(said.errors)).code, 0) << said.errors;
  EXPECT_EQ(storage::KindOf(FileOf(storage::kMessageDatabase)), storage::FileKind::kSqlite);
}

}  // namespace
}  // namespace velmar::cli
