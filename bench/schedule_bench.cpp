// A report of 200 projects in one document: time, size and the most memory that the program ever took.
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <vector>

#include <sys/resource.h>

#include "documents/schedule_maker.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace {

using velmar::documents::ScheduleFormat;

constexpr std::size_t kProjects = 200;

/// The examples, as often as it takes.
std::vector<std::filesystem::path> Projects() {
  std::vector<std::filesystem::path> examples;
  for (const auto& entry : std::filesystem::directory_iterator(EXAMPLES)) {
    if (entry.path().extension() == ".drav") examples.push_back(entry.path());
  }
  std::ranges::sort(examples);
  std::vector<std::filesystem::path> projects;
  while (projects.size() < kProjects) projects.push_back(examples[projects.size() % examples.size()]);
  return projects;
}

double PeakMegabytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const velmar::documents::ScheduleTools tools{
      .words = velmar::presentation::CatalogueWords(),
      .materials = velmar::storage::MaterialLookupIn(SHARE "/Databases/Database/Database.mdb"),
      .places = {.templates = SHARE "/Templates"}};
  for (const auto& [name, format] :
       {std::pair{"Word", ScheduleFormat::kWord}, std::pair{"PDF", ScheduleFormat::kPdf},
        std::pair{"Excel", ScheduleFormat::kExcel}}) {
    const auto start = std::chrono::steady_clock::now();
    const auto made = velmar::documents::MakeSchedule(
        {.projects = Projects(), .format = format, .go_on_outside_ranges = true}, tools);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::cout << name << ": " << kProjects << " projects, " << took.count() << " s, "
              << static_cast<double>(made->bytes.size()) / 1e6 << " MB, " << made->failed.size()
              << " without result, at most " << PeakMegabytes() << " MB of memory so far\n";
  }
  return 0;
}
