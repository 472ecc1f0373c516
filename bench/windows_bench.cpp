// What a hand waits for in the windows over many rows: opening one, and each key of a search.
#include <QApplication>
#include <QLineEdit>
#include <QPixmap>
#include <QTest>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "shell/materials/material_list_window.h"
#include "shell/materials/material_tree_window.h"
#include "shell/structures/saved_results_window.h"
#include "tests/shell/materials/fake_source.h"
#include "tests/shell/structures/fake_sources.h"

namespace velmar {
namespace {

constexpr int kMaterials = 10'000;
constexpr int kStructures = 5'000;

shell::FakeMaterials ManyMaterials() {
  shell::FakeMaterials materials;
  for (int i = 0; i < kMaterials; ++i)
    materials.structural.push_back(
        shell::Wall("Materiale numero " + std::to_string(i * 7919 % kMaterials), 500 + i % 1500, "prova"));
  return materials;
}

/// Opens the window that `make` makes, draws it, and times that.
template <typename Make>
void Open(benchmark::State& state, const Make& make) {
  for (auto _ : state) {
    const auto window = make();
    window->show();
    benchmark::DoNotOptimize(window->grab());
  }
}

/// Types "numero 49" into the field called `search`, drawing after each key: nine keys a round.
template <typename Make>
void Search(benchmark::State& state, const Make& make, const char* search) {
  const auto window = make();
  window->show();
  auto& field = shell::Child<QLineEdit>(*window, search);
  for (auto _ : state) {
    state.PauseTiming();
    field.clear();
    state.ResumeTiming();
    for (const char letter : std::string("numero 49")) {
      QTest::keyClick(&field, letter);
      benchmark::DoNotOptimize(window->grab());
    }
  }
}

struct Lists {
  shell::FakeBoxes boxes;
  shell::FakeMaterials materials = ManyMaterials();

  auto Table() {
    return std::make_unique<shell::MaterialListWindow>(boxes.Tools(), materials.Source(), std::nullopt);
  }
  auto Tree() {
    return std::make_unique<shell::MaterialTreeWindow>(boxes.Tools(), materials.Source(),
                                                       [](const shell::DraggedMaterial&) { return true; });
  }
};

void MaterialTableOpens(benchmark::State& state) {
  Lists lists;
  Open(state, [&] { return lists.Table(); });
}
void MaterialTableSearches(benchmark::State& state) {
  Lists lists;
  Search(
      state, [&] { return lists.Table(); }, "TextCerca");
}
void MaterialTreeOpens(benchmark::State& state) {
  Lists lists;
  Open(state, [&] { return lists.Tree(); });
}
void MaterialTreeSearches(benchmark::State& state) {
  Lists lists;
  Search(
      state, [&] { return lists.Tree(); }, "TextCerca");
}

struct Stores {
  Stores() {
    for (int i = 0; i < kStructures; ++i)
      results.tables[structures::ResultKind::kAirborne].push_back(
          structures::PartOf("Parete numero " + std::to_string(i), 30));
  }

  shell::FakeBoxes boxes{};
  structures::FakeResults results{};

  auto Results() {
    return std::make_unique<structures::SavedResultsWindow>(boxes.Tools(), results.Source(),
                                                            structures::SavedResultsWindow::Purpose::kList);
  }
};

void SavedResultsOpen(benchmark::State& state) {
  Stores stores;
  Open(state, [&] { return stores.Results(); });
}
void SavedResultsSearch(benchmark::State& state) {
  Stores stores;
  Search(
      state, [&] { return stores.Results(); }, "TextCerca");
}

BENCHMARK(MaterialTableOpens)->Unit(benchmark::kMillisecond);
BENCHMARK(MaterialTableSearches)->Unit(benchmark::kMillisecond);
BENCHMARK(MaterialTreeOpens)->Unit(benchmark::kMillisecond);
BENCHMARK(MaterialTreeSearches)->Unit(benchmark::kMillisecond);
BENCHMARK(SavedResultsOpen)->Unit(benchmark::kMillisecond);
BENCHMARK(SavedResultsSearch)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmar

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
