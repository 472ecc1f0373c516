#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "storage/configuration/configuration.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kPatience = 180s;
/// Names of what the program keeps for itself in a data folder.
constexpr const char* kShippedCopy = ".fornito";
constexpr const char* kNewShippedCopy = ".fornito.nuovo";

/// The real window program, started for a home of its own.
class Program {
 public:
  explicit Program(const fs::path& home) {
    const std::vector<std::string> variables = {
        "HOME=" + home.string(),          "XDG_CONFIG_HOME=" + home.string(),
        "XDG_DATA_HOME=" + home.string(), "XDG_RUNTIME_DIR=" + home.string(),
        "QT_QPA_PLATFORM=offscreen",      "PATH=/usr/bin:/bin"};
    std::vector<char*> environment;
    for (const std::string& variable : variables) environment.push_back(const_cast<char*>(variable.c_str()));
    environment.push_back(nullptr);
    child_ = ::fork();
    if (child_ != 0) return;
    const int nowhere = ::open("/dev/null", O_RDWR);
    for (const int standard : {0, 1, 2}) ::dup2(nowhere, standard);
    char program[] = WINDOW_PROGRAM;
    char* const arguments[] = {program, nullptr};
    ::execve(program, arguments, environment.data());
    ::_exit(127);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() { Kill(); }

  bool IsRunning() {
    if (child_ > 0 && ::waitpid(child_, nullptr, WNOHANG) == child_) child_ = 0;
    return child_ > 0;
  }
  void Kill() {
    if (!IsRunning()) return;
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
    child_ = 0;
  }

 private:
  pid_t child_ = 0;
};

using Rows = std::vector<std::string>;

/// Every row of every table of the database `file`, a text each.
Rows RowsOf(const fs::path& file) {
  Rows rows;
  SQLite::Database database(file.string(), SQLite::OPEN_READWRITE);  // a journal that was left is played back
  std::vector<std::string> tables;
  SQLite::Statement names(database, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
  while (names.executeStep()) tables.push_back(names.getColumn(0).getString());
  for (const std::string& table : tables) {
    SQLite::Statement all(database, "SELECT * FROM " + QuotedName(table));
    while (all.executeStep()) {
      std::string row = table;
      for (int i = 0; i < all.getColumnCount(); ++i) row += '|' + all.getColumn(i).getString();
      rows.push_back(std::move(row));
    }
  }
  std::ranges::sort(rows);
  return rows;
}

/// What a data folder holds for its user: the rows of the databases that are renewed row by row, the bytes of
/// every other file.
struct Contents {
  std::map<std::string, Rows> databases{};
  std::map<std::string, std::string> files{};

  bool operator==(const Contents&) const = default;
};

/// Copies that it keeps, and what it has not finished.
bool IsOfTheProgram(const fs::path& relative) {
  const std::string name = relative.filename().string();
  const bool hidden =
      std::ranges::any_of(relative, [](const fs::path& part) { return part.string().starts_with('.'); });
  return hidden || name.find(".copia-") != std::string::npos || name.ends_with("-journal");
}

Contents ContentsOf(const fs::path& folder) {
  Contents contents;
  for (const char* file : {kMaterialDatabase, kMessageDatabase})
    contents.databases[file] = RowsOf(folder / file);
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const fs::path relative = fs::relative(entry.path(), folder);
    if (!entry.is_regular_file() || IsOfTheProgram(relative)) continue;
    if (!contents.databases.contains(relative.string()))
      contents.files[relative.string()] = ReadFile(entry.path());
  }
  return contents;
}

std::size_t CountFiles(const fs::path& folder) {
  std::size_t count = 0;
  std::error_code error;
  for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error))
    ++count;
  return count;
}

/// A home with the data folder of the first version, in which a user changed things.
class KilledRenewalTest : public testing::Test {
 protected:
  static fs::path DataIn(const fs::path& home) { return home / "Documents/VELMARpro"; }

  void MakeOld(const fs::path& home) const {
    const fs::path shipped(SHARE);
    const fs::path data = DataIn(home);
    fs::create_directories(data.parent_path());
    fs::copy(shipped, data, fs::copy_options::recursive);
    fs::remove_all(data / "Former");
    fs::remove_all(data / "Examples");
    for (const char* file : {kMaterialDatabase, kMessageDatabase}) {
      fs::remove(data / file);
      fs::copy_file(shipped / "Former" / file, data / file);
    }
    for (const auto& entry : fs::recursive_directory_iterator(data))
      fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add);
    Execute(data / kMaterialDatabase,
            {"UPDATE Modulo_A1 SET [Densità (kg/m³)] = 777 WHERE Materiale = 'Mattone pieno'",
             "DELETE FROM Modulo_A1 WHERE Materiale = 'Acciaio'",
             "INSERT INTO Modulo_A1 (Materiale, [Densità (kg/m³)]) VALUES ('Mio muro', 1234)"});
    Execute(data / kResultDatabase,
            {"INSERT INTO Potere_fonoisolante (Nome, [Rw (dB)]) VALUES ('Parete mia', 50)"});
    WriteFile(data / "Templates/Formato_drav.xlsx", "carta intestata mia");
    WriteFile(data / "appunti.txt", "miei");
  }

  /// Starts the program until the renewal is done, then ends it; its box about that waits for nobody.
  static void RenewWhole(const fs::path& home) {
    Program program(home);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!fs::exists(DataIn(home) / kShippedCopy) || fs::exists(DataIn(home) / kNewShippedCopy)) {
      ASSERT_TRUE(program.IsRunning()) << "the program ended by itself";
      ASSERT_LT(std::chrono::steady_clock::now(), end);
      std::this_thread::sleep_for(20ms);
    }
  }

  /// Starts the program and kills it as soon as its data folder holds `count` files.
  static void KillAt(const fs::path& home, std::size_t count) {
    Program program(home);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (CountFiles(DataIn(home)) < count) {
      ASSERT_TRUE(program.IsRunning()) << "the program ended by itself";
      ASSERT_LT(std::chrono::steady_clock::now(), end);
      std::this_thread::sleep_for(1ms);
    }
    program.Kill();
  }

  /// Each file and each database is as it was or as it is to become.
  static void IsOldOrNew(const Contents& now, const Contents& before, const Contents& after) {
    for (const auto& [name, rows] : now.databases)
      EXPECT_TRUE(rows == before.databases.at(name) || rows == after.databases.at(name)) << name;
    for (const auto& [name, bytes] : now.files) {
      const auto was = before.files.find(name);
      const auto becomes = after.files.find(name);
      EXPECT_TRUE((was != before.files.end() && was->second == bytes) ||
                  (becomes != after.files.end() && becomes->second == bytes))
          << name;
    }
    for (const auto& [name, bytes] : before.files)
      EXPECT_TRUE(now.files.contains(name)) << name << " is lost";
  }

  TemporaryFolder folder_;
};

TEST_F(KilledRenewalTest, KilledAtAnyMomentEverythingIsOldOrNewAndTheNextStartGoesOn) {
  MakeOld(folder_ / "whole");
  const Contents before = ContentsOf(DataIn(folder_ / "whole"));
  const std::size_t files_before = CountFiles(DataIn(folder_ / "whole"));
  RenewWhole(folder_ / "whole");
  const Contents after = ContentsOf(DataIn(folder_ / "whole"));
  const std::size_t files_after = CountFiles(DataIn(folder_ / "whole"));
  ASSERT_GT(files_after, files_before + 20);
  ASSERT_FALSE(before == after) << "there is something to renew";
  const Rows& materials = after.databases.at(kMaterialDatabase);
  const auto holds = [&materials](const std::string& text) {
    return std::ranges::any_of(materials, [&](const std::string& row) { return row.find(text) != row.npos; });
  };
  EXPECT_TRUE(holds("|Mio muro|"));
  EXPECT_TRUE(holds("|777"));
  EXPECT_FALSE(holds("|Acciaio|"));
  EXPECT_EQ(after.files.at("Templates/Formato_drav.xlsx"), "carta intestata mia");
  EXPECT_EQ(after.files.at("appunti.txt"), "miei");

  // The first file beside the old ones, the copies before a change, the examples, then the copy of what was
  // shipped on its way.
  const std::size_t grown = files_after - files_before;
  for (const std::size_t count :
       {files_before + 1, files_before + 2, files_before + 4, files_before + grown / 4,
        files_before + grown / 2, files_before + 3 * grown / 4}) {
    const fs::path home = folder_ / ("killed-" + std::to_string(count - files_before));
    SCOPED_TRACE(home.filename().string());
    MakeOld(home);
    ASSERT_NO_FATAL_FAILURE(KillAt(home, count));
    IsOldOrNew(ContentsOf(DataIn(home)), before, after);
    ASSERT_NO_FATAL_FAILURE(RenewWhole(home));
    const Contents again = ContentsOf(DataIn(home));
    EXPECT_TRUE(again.databases == after.databases);
    EXPECT_TRUE(again.files == after.files);
    for (const auto& entry : fs::recursive_directory_iterator(DataIn(home))) {
      EXPECT_EQ(entry.path().filename().string().find(".velmar-"), std::string::npos)
          << "left behind: " << entry.path();
    }
    fs::remove_all(home);
  }
}

}  // namespace
}  // namespace velmar::storage
