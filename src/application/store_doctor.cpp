#include "application/store_doctor.h"

#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "foundation/failure.h"
#include "storage/configuration/configuration.h"
#include "storage/configuration/first_start.h"
#include "storage/database/database_failure.h"
#include "storage/database/row_repair.h"
#include "storage/database/set_aside.h"
#include "storage/files/unfinished.h"
#include "storage/messages/catalogue_rules.h"
#include "storage/tables/schema.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using storage::DatabaseCondition;
using storage::DatabaseFailure;
using storage::DatabaseProblem;

/// What the values of a material or a result can be, whatever the material.
const std::vector<storage::ColumnRange> kRanges = {
    {.column = "s (mm)", .lowest = 0.0},
    {.column = "Densità (kg/m³)", .lowest = 0.0},
    {.column = "m' (kg/m²)", .lowest = 0.0},
    {.column = "Modulo di Young E (GPa)", .lowest = 0.0},
    {.column = "Frequenza di coincidenza fc (Hz)", .lowest = 0.0},
    {.column = "Fattore di perdita interna", .lowest = 0.0, .highest = 1.0},
    {.column = "Rapporto di Poisson", .lowest = 0.0, .highest = 0.5},
    {.column = "Resistenza specifica al flusso Rs (Pa sec/m)", .lowest = 0.0},
    {.column = "s' (MN/m³)", .lowest = 0.0},
    {.column = "f0 (Hz)", .lowest = 0.0},
    {.column = "Area (m²)", .lowest = 0.0},
    {.column = "fc (Hz)", .lowest = 0.0},
};

StoreProblem ProblemOf(DatabaseCondition condition) {
  switch (condition) {
    case DatabaseCondition::kMissing:
      return StoreProblem::kMissing;
    case DatabaseCondition::kAccess:
      return StoreProblem::kAccess;
    case DatabaseCondition::kIndex:
      return StoreProblem::kIndex;
    case DatabaseCondition::kNoFile:
      return StoreProblem::kNoFile;
    case DatabaseCondition::kUnreadable:
      return StoreProblem::kUnreadable;
    case DatabaseCondition::kLocked:
      return StoreProblem::kLocked;
    case DatabaseCondition::kGood:
    case DatabaseCondition::kDamaged:
      break;
  }
  return StoreProblem::kDamaged;
}

StoreProblem ProblemOf(DatabaseProblem problem) {
  switch (problem) {
    case DatabaseProblem::kLocked:
      return StoreProblem::kLocked;
    case DatabaseProblem::kUnreadable:
    case DatabaseProblem::kReadOnly:
    case DatabaseProblem::kDiskFull:
    case DatabaseProblem::kNotChanged:
      return StoreProblem::kUnreadable;
    default:
      return StoreProblem::kDamaged;
  }
}

StoreProblem ProblemOf(storage::RowProblem problem) {
  switch (problem) {
    case storage::RowProblem::kNoTable:
      return StoreProblem::kNoTable;
    case storage::RowProblem::kText:
      return StoreProblem::kText;
    case storage::RowProblem::kName:
      return StoreProblem::kName;
    case storage::RowProblem::kValue:
      break;
  }
  return StoreProblem::kValue;
}

std::string DetailOf(const storage::RowFault& fault) {
  std::string detail = fault.table;
  if (!fault.row.empty()) detail += ", " + fault.row;
  if (!fault.column.empty()) detail += ", " + fault.column;
  if (!fault.value.empty()) detail += ": " + fault.value;
  return detail;
}

class Examination {
 public:
  Examination(const StorePlaces& places, bool repair) : places_(places), repair_(repair) {}

  std::vector<StoreFinding> Run() {
    if (repair_ && places_.shipped) RestoreFolder();
    LookForAbandoned(places_.data_folder.parent_path());
    LookForAbandoned(places_.data_folder / "Databases");
    LookForAbandoned(places_.data_folder / "Databases/Database");
    LookAtStore(storage::kMessageDatabase);
    LookAtStore(storage::kMaterialDatabase);
    LookAtStore(storage::kResultDatabase);
    for (const storage::LibraryFolder& folder : storage::LibraryFolders()) LookAtLibrary(folder.folder);
    return std::move(findings_);
  }

 private:
  void Found(StoreProblem problem, const fs::path& file, std::string detail = {}) {
    findings_.push_back({.problem = problem, .file = file, .detail = std::move(detail)});
  }
  void Repaired(const fs::path& copy) {
    findings_.back().repaired = true;
    findings_.back().copy = copy;
  }

  void RestoreFolder() {
    const fs::path& folder = places_.data_folder;
    if (storage::PrepareDataFolder(folder, *places_.shipped) != storage::DataFolderState::kCreated) return;
    Found(StoreProblem::kMissing, folder);
    Repaired({});
  }

  void LookForAbandoned(const fs::path& folder) {
    const std::vector<fs::path> abandoned = storage::AbandonedIn(folder);
    if (repair_) storage::RemoveAbandoned(folder);
    for (const fs::path& path : abandoned) {
      Found(StoreProblem::kAbandoned, path);
      std::error_code error;
      findings_.back().repaired = repair_ && !fs::exists(fs::symlink_status(path, error));
    }
  }

  void LookAtStore(const char* name) {
    Guarded(name, [&] {
      if (LookAtFile(name)) LookAtRows(name);
    });
  }

  /// What cannot be looked at or repaired is told, and does not keep the rest from being looked at.
  template <typename Work>
  void Guarded(const fs::path& name, const Work& work) {
    const fs::path file = places_.data_folder / name;
    const std::size_t before = findings_.size();
    try {
      work();
    } catch (const DatabaseFailure& failure) {
      if (findings_.size() == before) Found(ProblemOf(failure.Problem()), file);
    } catch (const Failure&) {
      // The finding stands, and says that it is not repaired.
    }
  }

  void LookAtLibrary(const std::string& folder) {
    const fs::path place = fs::path("Databases/Database") / folder;
    std::error_code error;
    std::set<fs::path> names;
    for (const auto& entry : fs::directory_iterator(places_.data_folder / place, error)) {
      // Genuine Access files are read there as they are.
      const bool database = entry.path().extension() == ".mdb";
      if (database && storage::ConditionOf(entry.path()) != DatabaseCondition::kAccess)
        names.insert(place / entry.path().filename());
    }
    for (const fs::path& name : names) Guarded(name, [&] { LookAtFile(name); });
  }

  /// @return whether the file can be read now
  bool LookAtFile(const fs::path& name) {
    const fs::path file = places_.data_folder / name;
    const DatabaseCondition condition = storage::ConditionOf(file);
    if (condition == DatabaseCondition::kGood) return true;
    Found(ProblemOf(condition), file);
    if (!repair_) return false;
    switch (condition) {
      case DatabaseCondition::kMissing:
        storage::SetAsideCompanions(file);
        return Restore(name, {});
      case DatabaseCondition::kDamaged:
        return Restore(name, storage::SetAside(file));
      case DatabaseCondition::kIndex:
        return Reindex(name);
      default:
        return false;
    }
  }

  bool Reindex(const fs::path& name) {
    const fs::path file = places_.data_folder / name;
    const fs::path copy = storage::KeepDatedCopy(file);
    try {
      storage::RebuildIndexes(file);
      Repaired(copy);
      return true;
    } catch (const DatabaseFailure& failure) {
      if (failure.Problem() != DatabaseProblem::kDamaged) throw;
      return Restore(name, storage::SetAside(file));
    }
  }

  /// Puts the shipped database where none stands.
  bool Restore(const fs::path& name, const fs::path& copy) {
    findings_.back().copy = copy;
    const bool restored =
        places_.shipped && storage::RestoreShippedFile(places_.data_folder, *places_.shipped, name);
    findings_.back().repaired = restored;
    return restored;
  }

  storage::RowRules RulesOf(const std::string& name, const fs::path& file) const {
    if (name == storage::kMaterialDatabase) return {storage::MaterialTables(), kRanges, {}};
    if (name == storage::kResultDatabase) return {storage::ResultTables(), kRanges, {}};
    std::optional<fs::path> shipped;
    if (repair_ && places_.shipped) shipped = *places_.shipped / name;
    return storage::CatalogueRules(file, shipped);
  }

  void LookAtRows(const char* name) {
    const fs::path file = places_.data_folder / name;
    const storage::RowRules rules = RulesOf(name, file);
    if (rules.tables.empty()) {  // a catalogue without its table
      Found(StoreProblem::kNoTable, file, "DRAV");
      if (repair_) Restore(name, storage::SetAside(file));
      return;
    }
    const auto faults = storage::FindRowFaults(file, rules);
    if (faults.empty()) return;
    for (const storage::RowFault& fault : faults) Found(ProblemOf(fault.problem), file, DetailOf(fault));
    if (!repair_) return;
    const fs::path copy = storage::KeepDatedCopy(file);
    storage::MendRows(file, rules);
    for (auto finding = findings_.end() - static_cast<std::ptrdiff_t>(faults.size());
         finding != findings_.end(); ++finding) {
      finding->repaired = true;
      finding->copy = copy;
    }
  }

  const StorePlaces& places_;
  bool repair_;
  std::vector<StoreFinding> findings_{};
};

}  // namespace

std::vector<StoreFinding> ExamineStores(const StorePlaces& places) {
  return Examination(places, false).Run();
}

std::vector<StoreFinding> RepairStores(const StorePlaces& places) { return Examination(places, true).Run(); }

}  // namespace velmar::application
