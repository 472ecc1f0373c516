// Opening and saving a project, and reading the materials for the lists, by how much there is of each.
#include <filesystem>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/many_materials.h"
#include "storage/configuration/configuration.h"
#include "storage/materials/material_store.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

std::filesystem::path Example(const std::string& name) {
  return std::filesystem::path(EXAMPLES) / (name + ".drav");
}

void ProjectOpens(benchmark::State& state, const std::string& name) {
  for (auto _ : state) benchmark::DoNotOptimize(OpenProject(Example(name), {}));
}

/// Written beside, brought to the disk and renamed, as every save is.
void ProjectIsSaved(benchmark::State& state, const std::string& name) {
  const TemporaryFolder folder;
  const OpenedProject project = OpenProject(Example(name), {});
  for (auto _ : state) SaveProject(folder / "progetto.drav", project.setup, project.stored);
}

void MaterialsAreListed(benchmark::State& state) {
  const TemporaryFolder folder;
  std::filesystem::copy_file(std::filesystem::path(SHARE) / kMaterialDatabase, folder / "Database.mdb");
  AddMaterials(folder / "Database.mdb", static_cast<int>(state.range(0)));
  const MaterialStore store(folder / "Database.mdb");
  for (auto _ : state) benchmark::DoNotOptimize(store.List(elements::MaterialFamily::kStructural));
}

BENCHMARK_CAPTURE(ProjectOpens, single_wall, "parete-forato-intonacata")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ProjectOpens, facade, "facciata")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ProjectIsSaved, single_wall, "parete-forato-intonacata")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(ProjectIsSaved, facade, "facciata")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(MaterialsAreListed)->Arg(200)->Arg(2'000)->Arg(20'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmar::storage
