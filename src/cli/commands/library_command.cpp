#include "cli/commands/library_command.h"

#include <array>
#include <optional>
#include <ostream>

#include <nlohmann/json.hpp>

#include "cli/output/failure_report.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/library/library_store.h"

namespace velmar::cli {
namespace {

nlohmann::json JsonOf(const std::optional<double>& value) {
  return value ? nlohmann::json(*value) : nlohmann::json(nullptr);
}

nlohmann::json JsonOf(const storage::LibraryFolder& folder, const storage::MeasuredTest& test) {
  nlohmann::json bands = nlohmann::json::array();
  for (const auto& band : test.bands) bands.push_back(JsonOf(band));
  return {{"kind", folder.key},
          {"name", test.name},
          {"description", test.description},
          {"keyword", test.keyword},
          {"rating", JsonOf(test.rating)},
          {"rating_column", folder.rating},
          {"adaptation", JsonOf(test.adaptation)},
          {"other_adaptation", JsonOf(test.other_adaptation)},
          {"bands", std::move(bands)},
          {"area", JsonOf(test.area_m2)},
          {"surface_mass", JsonOf(test.mass_kg_m2)},
          {"thickness", JsonOf(test.field.thickness_mm)},
          {"source_volume", JsonOf(test.field.source_volume_m3)},
          {"receiving_volume", JsonOf(test.field.receiving_volume_m3)},
          {"site", test.field.site},
          {"certificate", test.certificate},
          {"date", test.date},
          {"laboratory", test.laboratory},
          {"client", test.client},
          {"notes", test.notes},
          {"picture", test.picture}};
}

void WriteLine(std::ostream& out, const std::string& name, const std::string& value) {
  if (!value.empty()) out << name << ": " << value << '\n';
}

void WriteLine(std::ostream& out, const std::string& name, const std::optional<double>& value) {
  if (value) WriteLine(out, name, FormatShortest(*value));
}

void WriteTest(std::ostream& out, const storage::LibraryFolder& folder, const storage::MeasuredTest& test) {
  WriteLine(out, "Nome", test.name);
  WriteLine(out, "Descrizione", test.description);
  WriteLine(out, "Parola chiave", test.keyword);
  WriteLine(out, folder.rating, test.rating);
  const std::array<std::string, 2> adaptation = storage::AdaptationColumns(folder);
  WriteLine(out, adaptation[0], test.adaptation);
  WriteLine(out, adaptation[1], test.other_adaptation);
  WriteLine(out, "Area (m²)", test.area_m2);
  WriteLine(out, "m' (kg/m²)", test.mass_kg_m2);
  WriteLine(out, "Ve (m³)", test.field.source_volume_m3);
  WriteLine(out, "Vr (m³)", test.field.receiving_volume_m3);
  WriteLine(out, "s (mm)", test.field.thickness_mm);
  WriteLine(out, "Cantiere", test.field.site);
  const std::vector<std::string> columns = storage::BandColumns(folder.band_prefix);
  for (std::size_t band = 0; band < columns.size(); ++band)
    WriteLine(out, columns[band], test.bands.at(band));
  WriteLine(out, "Certificato", test.certificate);
  WriteLine(out, "Data Prova", test.date);
  WriteLine(out, "Ente di prova", test.laboratory);
  WriteLine(out, "Società richiedente", test.client);
  WriteLine(out, "Informazione addizionale", test.notes);
  WriteLine(out, "Immagine", test.picture);
}

std::optional<storage::LibraryFile> FindSeries(const storage::LibraryStore& store,
                                               const storage::LibraryFolder& folder,
                                               const std::string& name) {
  for (storage::LibraryFile& file : store.Files(folder)) {
    if (SameName(file.name, name)) return std::move(file);
  }
  return std::nullopt;
}

void ListFiles(const LibraryCommand& command, const storage::LibraryStore& store, std::ostream& out) {
  nlohmann::json list = nlohmann::json::array();
  for (const storage::LibraryFolder& folder : storage::LibraryFolders()) {
    if (!command.kind.empty() && folder.key != command.kind) continue;
    for (const storage::LibraryFile& file : store.Files(folder)) {
      if (command.json) {
        list.push_back({{"kind", folder.key}, {"series", file.name}});
      } else {
        out << folder.key << '\t' << file.name << '\n';
      }
    }
  }
  if (command.json) WriteJson(list, out);
}

void ListTests(const LibraryCommand& command, const std::vector<storage::ListedTest>& tests,
               std::ostream& out) {
  nlohmann::json list = nlohmann::json::array();
  for (const storage::ListedTest& test : tests) {
    if (command.json) {
      list.push_back({{"name", test.name}, {"description", test.description}, {"keyword", test.keyword}});
    } else {
      out << test.name << '\t' << test.keyword << '\n';
    }
  }
  if (command.json) WriteJson(list, out);
}

/// @return what is to be told when the command names something that is not there
std::optional<Message> Run(const LibraryCommand& command, const Services& services, std::ostream& out) {
  storage::AccessSession session({services.access_reader});
  const storage::LibraryStore store(services.library_folder, session);
  const auto folder = storage::FindLibraryFolder(command.kind);
  if (!folder && !command.kind.empty()) return Message{{kUnknownSeriesRow, " " + command.kind}};
  if (command.series.empty()) {
    ListFiles(command, store, out);
    return std::nullopt;
  }
  const auto series = FindSeries(store, *folder, command.series);
  if (!series) return Message{{kUnknownSeriesRow, " " + command.series}};
  if (command.action == LibraryAction::kList) {
    ListTests(command, store.Tests(*folder, series->path), out);
    return std::nullopt;
  }
  const auto test = store.Find(*folder, series->path, command.test);
  if (!test) return Message{{kUnknownStructureRow, " " + command.test}};
  if (command.json) {
    WriteJson(JsonOf(*folder, *test), out);
  } else {
    WriteTest(out, *folder, *test);
  }
  return std::nullopt;
}

}  // namespace

ExitCode Execute(const LibraryCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    const std::optional<Message> unknown = Run(command, services, out);
    if (!unknown) return ExitCode::kDone;
    WriteMessage(*unknown, services.words, errors);
    return ExitCode::kNoResult;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
