#include "shell/structures/store_sources.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "measurements/octave_steps.h"
#include "shell/windows/long_work.h"
#include "storage/library/library_store.h"
#include "storage/library/own_measurements.h"
#include "storage/library/own_pictures.h"
#include "storage/library/pictures.h"
#include "storage/results/result_copy.h"
#include "storage/results/results_store.h"

namespace velmar::structures {
namespace {

constexpr std::array kLibraryKeys = {
    std::pair{Branch::kWalls, "Rw"},         std::pair{Branch::kLinings, "DRw"},
    std::pair{Branch::kFloors, "Lnw"},       std::pair{Branch::kCoverings, "DLw"},
    std::pair{Branch::kOpenings, "Infissi"}, std::pair{Branch::kSmallElements, "Piccoli elementi"},
    std::pair{Branch::kFieldWalls, "R'w"},   std::pair{Branch::kFieldFloors, "L'nw"},
};

constexpr std::array kResultTables = {
    std::pair{Branch::kCalculatedWalls, storage::ResultTable::kAirborne},
    std::pair{Branch::kCalculatedFloors, storage::ResultTable::kImpact},
    std::pair{Branch::kCalculatedLinings, storage::ResultTable::kLining},
};

/// A calculated result serves for everything.
constexpr storage::TestUses kUsesOfResults{true, true, true};

template <typename Table>
auto RowFor(const Table& table, Branch branch) {
  return std::find_if(table.begin(), table.end(), [branch](const auto& row) { return row.first == branch; });
}

/// The table of the results database behind `branch`; nothing for a folder of the library.
std::optional<storage::ResultTable> TableOf(Branch branch) {
  const auto* row = RowFor(kResultTables, branch);
  return row == kResultTables.end() ? std::nullopt : std::optional(row->second);
}

storage::ResultTable TableOf(ResultKind kind) {
  switch (kind) {
    case ResultKind::kAirborne:
      return storage::ResultTable::kAirborne;
    case ResultKind::kImpact:
      return storage::ResultTable::kImpact;
    case ResultKind::kLining:
      return storage::ResultTable::kLining;
  }
  return storage::ResultTable::kAirborne;
}

MeasuredTest TestOf(const storage::LibraryFolder& folder, storage::MeasuredTest test,
                    const std::filesystem::path& pictures) {
  const storage::MeasuredCurve curve = storage::CurveOf(folder, test);
  MeasuredTest shown;
  shown.part.name = curve.name;
  shown.part.description = curve.description;
  shown.part.rating_db = curve.rating;
  shown.part.c_db = curve.c;
  shown.part.ctr_db = curve.ctr;
  shown.part.area_m2 = curve.area_m2;
  shown.part.mass_kg_m2 = test.mass_kg_m2;
  shown.part.bands_db = curve.bands;
  shown.part.origin = calculation::PartOrigin::kMeasurement;
  shown.part.quantity = storage::IsSmallElement(folder) ? calculation::PartQuantity::kElementDifference
                                                        : calculation::PartQuantity::kReductionIndex;
  shown.part.thickness_mm = test.field.thickness_mm;
  shown.source_volume_m3 = test.field.source_volume_m3;
  shown.receiving_volume_m3 = test.field.receiving_volume_m3;
  shown.site = std::move(test.field.site);
  shown.certificate = test.certificate;
  shown.date = std::move(test.date);
  shown.laboratory = std::move(test.laboratory);
  shown.client = std::move(test.client);
  shown.notes = std::move(test.notes);
  shown.picture = storage::PictureFile(pictures, folder.folder, test.picture);
  shown.octave_steps_db = measurements::OctaveSteps(test);
  shown.derived_thirds_db = measurements::ThirdsFromOctaves(folder, test);
  shown.index_kind = test.index_kind;
  shown.index_value = test.index_value;
  shown.uncertainty_db = test.uncertainty_db;
  shown.source = test.source;
  shown.check = storage::CheckRating(folder, test);
  shown.picture_name = std::move(test.picture);
  return shown;
}

/// The stores behind a LibrarySource.
class Library {
 public:
  Library(LibraryPlaces places, std::shared_ptr<storage::AccessSession> session)
      : places_(std::move(places)),
        session_(std::move(session)),
        library_(places_.library, *session_),
        results_(places_.results) {}

  std::vector<LibraryFile> Files(Branch branch) const {
    if (TableOf(branch)) return {{branch, places_.results.stem().string(), places_.results}};
    std::vector<LibraryFile> files;
    for (storage::LibraryFile& file : library_.Files(FolderOf(branch)))
      files.push_back({branch, std::move(file.name), std::move(file.path)});
    return files;
  }

  std::vector<TestEntry> Tests(const LibraryFile& file) const {
    std::vector<TestEntry> entries;
    if (const auto table = TableOf(file.branch)) {
      for (storage::ListedResult& result : results_.List(*table))
        entries.push_back({std::move(result.name), std::move(result.description), {}, kUsesOfResults});
      return entries;
    }
    for (storage::ListedTest& test : library_.Tests(FolderOf(file.branch), file.path))
      entries.push_back(
          {std::move(test.name), std::move(test.description), std::move(test.keyword), test.uses});
    return entries;
  }

  std::optional<MeasuredTest> Test(const LibraryFile& file, const std::string& name) const {
    if (const auto table = TableOf(file.branch)) {
      const auto result = results_.Find(*table, name);
      if (!result) return std::nullopt;
      MeasuredTest shown;
      shown.part = PartOf(*result);
      shown.notes = result->messages;
      return shown;
    }
    const storage::LibraryFolder folder = FolderOf(file.branch);
    auto test = library_.Find(folder, file.path, name);
    if (!test) return std::nullopt;
    return TestOf(folder, std::move(*test), places_.pictures);
  }

 private:
  LibraryPlaces places_;
  std::shared_ptr<storage::AccessSession> session_;
  storage::LibraryStore library_;
  storage::ResultsStore results_;
};

}  // namespace

storage::LibraryFolder FolderOf(Branch branch) {
  return storage::FindLibraryFolder(RowFor(kLibraryKeys, branch)->second).value();
}

calculation::FacadePart PartOf(const storage::SavedResult& result) {
  calculation::FacadePart part;
  part.name = result.name;
  part.description = result.description;
  part.rating_db = result.rating;
  part.c_db = result.adaptation;
  part.ctr_db = result.other_adaptation;
  part.area_m2 = result.area_m2;
  part.mass_kg_m2 = result.mass_kg_m2;
  part.thickness_mm = result.thickness_mm;
  part.bands_db = result.bands;
  return part;
}

ResultSource StoredResults(const std::filesystem::path& file) {
  const auto store = std::make_shared<storage::ResultsStore>(file);
  ResultSource source;
  source.list = [store](ResultKind kind) {
    std::vector<ResultEntry> entries;
    for (storage::ListedResult& result : store->List(TableOf(kind)))
      entries.push_back({std::move(result.name), result.rating, std::move(result.description)});
    return entries;
  };
  source.find = [store](ResultKind kind, const std::string& name) -> std::optional<calculation::FacadePart> {
    const auto result = store->Find(TableOf(kind), name);
    if (!result) return std::nullopt;
    return PartOf(*result);
  };
  source.copy = [store](ResultKind kind, const std::string& name) {
    const auto result = store->Find(TableOf(kind), name);
    return result ? storage::CopyOf(TableOf(kind), *result) : CopiedTable();
  };
  source.messages = [store](ResultKind kind, const std::string& name) {
    const auto result = store->Find(TableOf(kind), name);
    return result ? result->messages : std::string();
  };
  source.remove = [store](ResultKind kind, const std::string& name) {
    bool removed = false;
    shell::RunBeside([&] { removed = store->Delete(TableOf(kind), name); });
    return removed;
  };
  return source;
}

namespace {

OwnMeasurementSource OwnMeasurementsIn(const LibraryPlaces& places) {
  const auto store = std::make_shared<storage::OwnMeasurements>(places.library);
  OwnMeasurementSource own;
  own.holds = [store](const LibraryFile& file) {
    return !TableOf(file.branch) && file.path == store->FileOf(FolderOf(file.branch));
  };
  own.all = [store](Branch branch) { return store->All(FolderOf(branch)); };
  own.add = [store](Branch branch, const std::vector<storage::MeasuredTest>& tests) {
    return store->Add(FolderOf(branch), tests);
  };
  own.change = [store](Branch branch, const std::string& name, const storage::MeasuredTest& test) {
    return store->Change(FolderOf(branch), name, test);
  };
  own.remove = [store](Branch branch, const std::string& name) {
    return store->Delete(FolderOf(branch), name);
  };
  own.keep_picture = [pictures = places.pictures](Branch branch, const std::filesystem::path& file) {
    return storage::KeepPicture(pictures, FolderOf(branch).folder, file);
  };
  own.picture = [pictures = places.pictures](Branch branch, const std::string& picture) {
    return storage::PictureFile(pictures, FolderOf(branch).folder, picture);
  };
  return own;
}

}  // namespace

LibrarySource MeasuredLibrary(const LibraryPlaces& places, std::shared_ptr<storage::AccessSession> session) {
  const auto library = std::make_shared<const Library>(places, std::move(session));
  LibrarySource source;
  source.files = [library](Branch branch) { return library->Files(branch); };
  source.tests = [library](const LibraryFile& file) { return library->Tests(file); };
  source.test = [library](const LibraryFile& file, const std::string& name) {
    return library->Test(file, name);
  };
  source.own = OwnMeasurementsIn(places);
  return source;
}

}  // namespace velmar::structures
