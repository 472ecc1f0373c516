// bench_schedule PROJECTS Word|PDF|Excel     makes one document of so many projects: the milliseconds that it
// took, its
//                                            size and the most memory in use, MB, and how many gave no result
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "documents/schedule_maker.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace {

using velmar::documents::ScheduleFormat;

/// The examples, as often as it takes for `count`.
std::vector<std::filesystem::path> Projects(std::size_t count) {
  std::vector<std::filesystem::path> examples;
  for (const auto& entry : std::filesystem::directory_iterator(EXAMPLES)) {
    if (entry.path().extension() == ".drav") examples.push_back(entry.path());
  }
  std::ranges::sort(examples);
  std::vector<std::filesystem::path> projects;
  while (projects.size() < count) projects.push_back(examples[projects.size() % examples.size()]);
  return projects;
}

double PeakMegabytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

}  // namespace

int main(int argc, char** argv) {
  static const std::map<std::string, ScheduleFormat> kFormats = {
      {"Word", ScheduleFormat::kWord}, {"PDF", ScheduleFormat::kPdf}, {"Excel", ScheduleFormat::kExcel}};
  if (argc != 3 || !kFormats.contains(argv[2])) return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::size_t count = std::strtoul(argv[1], nullptr, 10);
  const ScheduleFormat format = kFormats.at(argv[2]);
  const QGuiApplication application(argc, argv);
  const velmar::documents::ScheduleTools tools{
      .words = velmar::presentation::CatalogueWords(),
      .materials = velmar::storage::MaterialLookupIn(SHARE "/Databases/Database/Database.mdb"),
      .places = {.templates = SHARE "/Templates"}};
  const auto start = std::chrono::steady_clock::now();
  const auto made = velmar::documents::MakeSchedule(
      {.projects = Projects(count), .format = format, .go_on_outside_ranges = true}, tools);
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  std::printf("%.0f %.1f %.0f %zu\n", took.count(), static_cast<double>(made->bytes.size()) / 1e6,
              PeakMegabytes(), made->failed.size());
  return 0;
}
