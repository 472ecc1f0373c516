#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "shell/structures/store_sources.h"
#include "storage/results/results_store.h"
#include "tests/shell/structures/fake_sources.h"

namespace velmar::structures {

/// The windows on real files: the shipped library, or a copy of it to change, and a results database of the
/// test's own.
class StoresTest : public testing::Test {
 protected:
  StoresTest() {
    const std::filesystem::path databases = std::filesystem::path(SHARE) / "Databases";
    places_.library = databases / "Database";
    places_.pictures = databases / "immagine";
    places_.results = InFolder("Database_teorico.mdb");
    std::filesystem::copy_file(places_.library / "Database_teorico.mdb", places_.results);
    std::filesystem::permissions(places_.results, std::filesystem::perms::owner_all);
  }

  std::filesystem::path InFolder(const char* name) const { return folder_.filePath(name).toStdString(); }

  /// From here on the library is a copy that may be changed. @return its folder of walls
  std::filesystem::path CopyLibrary() {
    std::filesystem::copy(places_.library, InFolder("Database"), std::filesystem::copy_options::recursive);
    places_.library = InFolder("Database");
    const auto& all = std::filesystem::perms::owner_all;
    std::filesystem::permissions(places_.library, all);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(places_.library))
      std::filesystem::permissions(entry.path(), all);
    return places_.library / "Partizioni verticali (Rw)";
  }

  LibrarySource Library() const {
    return MeasuredLibrary(
        places_, std::make_shared<storage::AccessSession>(storage::AccessReader{VELMAR_ACCESS_READER}));
  }

  /// Stores a result with R (or Ln) from 33,25 dB, 1 dB more a band.
  storage::SavedResult Store(storage::ResultTable table, const std::string& name) const {
    storage::SavedResult result;
    result.name = name;
    result.description = name + ", 200 mm";
    result.rating = 54;
    result.adaptation = -1;
    result.other_adaptation = -5;
    result.area_m2 = 10.8;
    result.thickness_mm = 230;
    result.mass_kg_m2 = 310.5;
    for (std::size_t i = 0; i < result.bands.size(); ++i) result.bands[i] = 33.25 + static_cast<double>(i);
    EXPECT_EQ(storage::ResultsStore(places_.results).Save(table, result), storage::SaveStatus::kSaved);
    return result;
  }

  QTemporaryDir folder_;
  LibraryPlaces places_;
  FakeBoxes boxes_;
};

}  // namespace velmar::structures
