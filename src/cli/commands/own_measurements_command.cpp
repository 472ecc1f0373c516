#include "cli/commands/own_measurements_command.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <variant>

#include "cli/output/failure_report.h"
#include "cli/output/material_table.h"
#include "cli/output/outcome_table.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "measurements/band_text.h"
#include "measurements/measurement_entry.h"
#include "measurements/test_table.h"
#include "storage/files/whole_file.h"
#include "storage/library/library_store.h"
#include "storage/library/own_measurements.h"
#include "storage/library/rating_check.h"

namespace velmar::cli {
namespace {

using storage::MeasuredTest;

constexpr std::size_t kTextSizeLimit = std::size_t{64} * 1024 * 1024;

/// One command on its way.
struct Work {
  const OwnMeasurementsCommand& command;
  const Services& services;
  const storage::LibraryFolder& folder;
  std::ostream& out;
  std::ostream& errors;

  storage::OwnMeasurements Store() const { return storage::OwnMeasurements(services.library_folder); }
  ExitCode Refuse(const Message& message) const {
    WriteMessage(message, services.words, errors);
    return ExitCode::kNoResult;
  }
  ExitCode Refuse(const measurements::RefusedText& refused) const {
    Message message{{kNothingTakenRow}};
    message.insert(message.end(), refused.lines.begin(), refused.lines.end());
    return Refuse(message);
  }
  std::string TextIn(const std::filesystem::path& file) const {
    return measurements::TextOfFile(storage::ReadWhole(file, kTextSizeLimit));
  }
};

void WarnOfRating(const Work& work, const MeasuredTest& test) {
  const storage::RatingCheck check = storage::CheckRating(work.folder, test);
  if (!check.differs) return;
  WriteMessage({{kRatingDiffersWarningRow, " " + test.name + ": " + FormatShortest(*test.rating) + " / " +
                                               FormatShortest(*check.rating)}},
               work.services.words, work.errors);
}

ExitCode AddAll(const Work& work, const std::vector<MeasuredTest>& tests) {
  if (const auto refusal = work.Store().Add(work.folder, tests)) return work.Refuse(*refusal);
  for (const MeasuredTest& test : tests) WarnOfRating(work, test);
  work.errors << work.services.words(kMeasurementsAddedRow) << ' ' << tests.size() << '\n';
  return ExitCode::kDone;
}

/// `entry` with the bands of the file that the command names.
std::variant<measurements::MeasurementEntry, measurements::RefusedText> WithBandsOf(
    const Work& work, measurements::MeasurementEntry entry) {
  if (work.command.bands.empty()) return entry;
  auto read = measurements::ReadBandText(work.TextIn(work.command.bands), work.folder.band_prefix);
  if (auto* refused = std::get_if<measurements::RefusedText>(&read)) return std::move(*refused);
  const auto& text = std::get<measurements::BandText>(read);
  if (text.left_out > 0) work.errors << work.services.words(kBandsLeftOutRow) << ' ' << text.left_out << '\n';
  return measurements::WithBands(std::move(entry), text);
}

/// `before` with the settings and the bands of the command, checked as the window checks it.
std::variant<MeasuredTest, ExitCode> Changed(const Work& work, const MeasuredTest& before) {
  const storage::TableSchema& schema = work.folder.table;
  auto cells = WithSettings(schema, storage::CellsFromTest(work.folder, before), work.command.settings);
  if (const auto* refusal = std::get_if<Message>(&cells)) return work.Refuse(*refusal);
  MeasuredTest given = storage::TestFromCells(work.folder, std::get<Cells>(cells));
  // A rating that is typed now is the certificate's.
  const bool typed = given.rating != before.rating;
  if (typed) given.rating_origin = storage::kDeclaredOrigin;
  auto entry = WithBandsOf(work, measurements::EntryOf(given));
  if (const auto* refused = std::get_if<measurements::RefusedText>(&entry)) return work.Refuse(*refused);
  auto test = measurements::TestOf(work.folder, std::get<measurements::MeasurementEntry>(entry));
  if (const auto* refusal = std::get_if<measurements::MeasurementRefusal>(&test))
    return work.Refuse(refusal->message);
  MeasuredTest checked = std::get<MeasuredTest>(std::move(test));
  if (!given.index_kind.empty()) checked.index_kind = given.index_kind;
  checked.index_value = given.index_value;
  return checked;
}

ExitCode Add(const Work& work) {
  auto test = Changed(work, {});
  if (const auto* code = std::get_if<ExitCode>(&test)) return *code;
  return AddAll(work, {std::get<MeasuredTest>(test)});
}

ExitCode Edit(const Work& work) {
  const std::vector<MeasuredTest> tests = work.Store().All(work.folder);
  const auto before = std::ranges::find(tests, work.command.name, &MeasuredTest::name);
  if (before == tests.end()) return work.Refuse({{kMeasurementGoneRow, " " + work.command.name}});
  auto test = Changed(work, *before);
  if (const auto* code = std::get_if<ExitCode>(&test)) return *code;
  const MeasuredTest& changed = std::get<MeasuredTest>(test);
  if (const auto refusal = work.Store().Change(work.folder, work.command.name, changed))
    return work.Refuse(*refusal);
  WarnOfRating(work, changed);
  return ExitCode::kDone;
}

ExitCode Delete(const Work& work) {
  const std::vector<MeasuredTest> tests = work.Store().All(work.folder);
  const bool there = std::ranges::find(tests, work.command.name, &MeasuredTest::name) != tests.end();
  if (!there || !work.Store().Delete(work.folder, work.command.name))
    return work.Refuse({{kMeasurementGoneRow, " " + work.command.name}});
  return ExitCode::kDone;
}

ExitCode Import(const Work& work) {
  const std::string text = work.TextIn(work.command.file);
  if (measurements::IsTestTable(text)) {
    auto read = measurements::ReadTestTable(work.folder, text);
    if (const auto* refused = std::get_if<measurements::RefusedText>(&read)) return work.Refuse(*refused);
    return AddAll(work, std::get<std::vector<MeasuredTest>>(read));
  }
  if (work.command.name.empty()) return work.Refuse({{kNameNeededRow}});
  OwnMeasurementsCommand one = work.command;
  one.bands = work.command.file;
  const std::size_t name = work.folder.table.Find("Nome").value();
  one.settings = {work.folder.table.columns[name].name + "=" + work.command.name};
  return Add({one, work.services, work.folder, work.out, work.errors});
}

ExitCode Export(const Work& work) {
  const std::string bytes = measurements::FormatTestTable(work.folder, work.Store().All(work.folder));
  if (work.command.file.empty()) {
    work.out << bytes;
  } else {
    storage::WriteWhole(work.command.file, bytes);
  }
  return ExitCode::kDone;
}

ExitCode Dispatch(const Work& work) {
  switch (work.command.action) {
    case OwnMeasurementsAction::kAdd:
      return Add(work);
    case OwnMeasurementsAction::kEdit:
      return Edit(work);
    case OwnMeasurementsAction::kDelete:
      return Delete(work);
    case OwnMeasurementsAction::kImport:
      return Import(work);
    case OwnMeasurementsAction::kExport:
      return Export(work);
  }
  return ExitCode::kWrongUsage;
}

}  // namespace

ExitCode Execute(const OwnMeasurementsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    const auto folder = storage::FindLibraryFolder(command.kind);
    if (!folder) {
      WriteMessage({{kUnknownSeriesRow, " " + command.kind}}, services.words, errors);
      return ExitCode::kNoResult;
    }
    return Dispatch({command, services, *folder, out, errors});
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
