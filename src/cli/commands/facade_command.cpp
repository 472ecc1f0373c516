#include "cli/commands/facade_command.h"

#include <optional>
#include <ostream>
#include <string_view>

#include "application/projects.h"
#include "calculation/edits/facade_parts.h"
#include "cli/output/failure_report.h"
#include "cli/output/outcome_table.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "storage/access/access_session.h"
#include "storage/library/library_store.h"
#include "storage/project/project_writer.h"
#include "storage/results/results_store.h"

namespace velmar::cli {
namespace {

using calculation::FacadePart;

constexpr std::string_view kResults = "results:";
constexpr std::string_view kLibrary = "library:";

std::optional<FacadePart> StoredPart(std::string_view name, const Services& services) {
  const auto result =
      storage::ResultsStore(services.result_database).Find(storage::ResultTable::kAirborne, name);
  if (!result) return std::nullopt;
  return FacadePart{.name = result->name,
                    .description = result->description,
                    .rating_db = result->rating,
                    .c_db = result->adaptation,
                    .ctr_db = result->other_adaptation,
                    .area_m2 = result->area_m2,
                    .mass_kg_m2 = result->mass_kg_m2,
                    .thickness_mm = result->thickness_mm,
                    .bands_db = result->bands,
                    .origin = calculation::PartOrigin::kStoredResult};
}

/// Where in a facade a part is to stand.
enum class Place { kOpaque, kComponent };

/// Whether tests of `folder` can stand there: R anywhere, Dn,e of a small element as a component; levels and
/// improvements nowhere.
bool Fits(const storage::LibraryFolder& folder, Place place) {
  constexpr std::string_view kReductionIndex = "Rw (dB)";
  return folder.rating == kReductionIndex || (storage::IsSmallElement(folder) && place == Place::kComponent);
}

/// @param place "KIND/SERIES/NAME"; a series has no "/" in its name, a test may
std::optional<FacadePart> MeasuredPart(const std::string& place, const Services& services) {
  const std::size_t first = place.find('/');
  const std::size_t second = place.find('/', first == std::string::npos ? first : first + 1);
  if (second == std::string::npos) return std::nullopt;
  const auto folder = storage::FindLibraryFolder(place.substr(0, first));
  if (!folder) return std::nullopt;
  storage::AccessSession session({.program = services.access_reader});
  const storage::LibraryStore library(services.library_folder, session);
  const std::string series = place.substr(first + 1, second - first - 1);
  for (const storage::LibraryFile& file : library.Files(*folder)) {
    if (file.name != series) continue;
    const auto test = library.Find(*folder, file.path, place.substr(second + 1));
    if (!test) return std::nullopt;
    const storage::MeasuredCurve curve = storage::CurveOf(*folder, *test);
    const bool small = storage::IsSmallElement(*folder);
    return FacadePart{.name = curve.name,
                      .description = curve.description,
                      .rating_db = curve.rating,
                      .c_db = curve.c,
                      .ctr_db = curve.ctr,
                      .area_m2 = curve.area_m2,
                      .mass_kg_m2 = curve.mass_kg_m2,
                      .bands_db = curve.bands,
                      .origin = calculation::PartOrigin::kMeasurement,
                      .quantity = small ? calculation::PartQuantity::kElementDifference
                                        : calculation::PartQuantity::kReductionIndex};
  }
  return std::nullopt;
}

std::optional<FacadePart> FindPart(const std::string& where, const Services& services) {
  if (where.starts_with(kResults))
    return StoredPart(std::string_view(where).substr(kResults.size()), services);
  if (where.starts_with(kLibrary)) return MeasuredPart(where.substr(kLibrary.size()), services);
  return std::nullopt;
}

/// Why what `where` names cannot stand at `place`, when its kind is known.
std::optional<Message> Unfit(std::string_view where, Place place) {
  if (!where.starts_with(kLibrary)) return std::nullopt;
  const std::string_view kind = where.substr(kLibrary.size(), where.find('/') - kLibrary.size());
  const auto folder = storage::FindLibraryFolder(kind);
  if (!folder || Fits(*folder, place)) return std::nullopt;
  return Message{{kUnfitForFacadeRow, " " + std::string(where)}};
}

/// Puts what `component` ("N=WHERE") names into its place. @return the refusal, if any
std::optional<Message> TakeComponent(elements::Setup& setup, const std::string& component,
                                     const Services& services) {
  const std::size_t sign = component.find('=');
  const std::optional<double> number = ParseDecimal(component.substr(0, sign));
  const bool valid =
      sign != std::string::npos && number && *number >= 1 && *number <= elements::Facade::kCapacity;
  if (valid) {
    if (auto refusal = Unfit(component.substr(sign + 1), Place::kComponent)) return refusal;
  }
  const auto part = valid ? FindPart(component.substr(sign + 1), services) : std::nullopt;
  if (!part) return Message{{kUnknownStructureRow, " " + component}};
  const int place = static_cast<int>(*number);
  calculation::TakeAsComponent(setup, place, *part);
  if (setup.facade.Count() < place) setup.facade.count_text = std::to_string(place);
  return std::nullopt;
}

std::optional<Message> TakeParts(const FacadeCommand& command, elements::Setup& setup,
                                 const Services& services) {
  if (setup.calculation != elements::Calculation::kCompositeElement) return Message{{kNoFacadeRow}};
  if (!command.opaque.empty()) {
    if (auto refusal = Unfit(command.opaque, Place::kOpaque)) return refusal;
    const auto part = FindPart(command.opaque, services);
    if (!part) return Message{{kUnknownStructureRow, " " + command.opaque}};
    calculation::TakeAsOpaquePart(setup, *part);
  }
  for (const std::string& component : command.components) {
    if (auto refusal = TakeComponent(setup, component, services)) return refusal;
  }
  return std::nullopt;
}

}  // namespace

ExitCode Execute(const FacadeCommand& command, const Services& services, std::ostream& errors) {
  try {
    elements::Setup setup = application::OpenProject(command.from, {}, services.materials).setup;
    if (const auto refusal = TakeParts(command, setup, services)) {
      WriteMessage(*refusal, services.words, errors);
      return ExitCode::kNoResult;
    }
    storage::SaveProject(command.to, setup);
    return ExitCode::kDone;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
