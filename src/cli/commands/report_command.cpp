#include "cli/commands/report_command.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>
#include <system_error>

#include "application/material_sources.h"
#include "cli/commands/project_run.h"
#include "cli/output/failure_report.h"
#include "cli/output/outcome_table.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/files/open_elsewhere.h"
#include "storage/files/whole_file.h"
#include "validation/second_opinion.h"

namespace velmar::cli {
namespace {

using std::filesystem::path;

bool IsFolder(const path& target) {
  std::error_code error;
  return std::filesystem::is_directory(target, error);
}

/// The name under which two spellings of one file meet.
path Resolved(const path& file) {
  std::error_code error;
  const path resolved = std::filesystem::weakly_canonical(file, error);
  return error ? file.lexically_normal() : resolved;
}

path TargetOf(const path& project, const std::string& extension, const path& target) {
  return IsFolder(target) ? target / (project.stem().string() + "." + extension) : target;
}

Message Told(MessageRow row, const path& what) { return {{row, " " + what.string()}}; }

Message NoFormat(const Services& services) {
  std::string options;
  for (const ReportFormat& format : services.report_formats) options += " --" + format.extension;
  return {{kNoFormatRow, options}};
}

/// What is wrong with the targets of `command`.
std::optional<Message> Objection(const ReportCommand& command, const Services& services) {
  if (command.targets.empty()) return NoFormat(services);
  std::set<path> projects;
  for (const path& project : command.projects) projects.insert(Resolved(project));
  std::set<path> files;
  for (const auto& [extension, target] : command.targets) {
    if (command.projects.size() > 1 && !IsFolder(target)) return Told(kNeedsFolderRow, target);
    std::set<path> of_this_format;
    for (const path& project : command.projects) {
      const path file = Resolved(TargetOf(project, extension, target));
      if (projects.contains(file)) return Told(kReplacesProjectRow, file);
      if (!of_this_format.insert(file).second) return Told(kSameNameRow, file.filename());
      if (!files.insert(file).second) return Told(kSameTargetRow, file);
    }
  }
  return std::nullopt;
}

/// Writes what is asked of one project; a report that fails does not stop the others.
ExitCode WriteReports(const ReportCommand& command, const path& project, const ReportContent& content,
                      const Services& services, std::ostream& errors) {
  ExitCode code = ExitCode::kDone;
  for (const ReportFormat& format : services.report_formats) {
    const auto asked = command.targets.find(format.extension);
    if (asked == command.targets.end()) continue;
    try {
      const path target = TargetOf(project, format.extension, asked->second);
      if (storage::IsOpenElsewhere(target)) throw Failure(Told(kFillingFailedRow, target), "open elsewhere");
      storage::WriteWhole(target, format.bytes(content));
    } catch (const Failure& failure) {
      code = TellFailure(failure, services.words, errors);
    }
  }
  return code;
}

ExitCode ReportOne(const ReportCommand& command, const path& project, const Services& services,
                   std::ostream& errors) {
  // The name stands in the report.
  if (!IsUtf8(project.string())) {
    WriteMessage({{kArgumentNotUtf8Row, " " + WithReplacements(project.string())}}, services.words, errors);
    return ExitCode::kFailed;
  }
  ProjectRun run = RunProject(project, services.materials, command.go_on_outside_ranges);
  for (const Message& message : run.outcome.messages) WriteMessage(message, services.words, errors);
  if (!run.outcome.result) return CodeOf(run.outcome.status);
  Message confidence = validation::ConfidenceOf(run.setup, run.outcome.result, services.accuracy());
  const ReportContent content{
      .name = project.stem().string(),
      .setup = std::move(run.setup),
      .result = *run.outcome.result,
      .totals = run.totals,
      .confidence = std::move(confidence),
      .words = services.words,
      .file = project.filename().string(),
      .language = command.language,
      .sources = application::MaterialSourcesIn(services.material_database, services.words),
      .tell = [&](const Message& message) { WriteMessage(message, services.words, errors); }};
  return WriteReports(command, project, content, services, errors);
}

/// ReportOne() for a batch: nothing that one project does keeps the others from their reports.
ExitCode ReportWithin(const ReportCommand& command, const path& project, const Services& services,
                      std::ostream& errors) {
  try {
    return ReportOne(command, project, services, errors);
  } catch (const std::exception& exception) {
    return TellException(exception, services.words, errors);
  }
}

path TogetherTarget(const std::string& extension, const path& target, const Services& services) {
  return IsFolder(target) ? target / (services.words(kScheduleTitleRow) + "." + extension) : target;
}

/// What is wrong with the targets of a `command` that wants one document.
std::optional<Message> TogetherObjection(const ReportCommand& command, const Services& services) {
  if (command.targets.empty()) return NoFormat(services);
  std::set<path> projects;
  for (const path& project : command.projects) projects.insert(Resolved(project));
  std::set<path> files;
  for (const auto& [extension, target] : command.targets) {
    if (std::ranges::count(services.together.extensions, extension) == 0)
      return Told(kTogetherFormatRow, "--" + extension);
    const path file = Resolved(TogetherTarget(extension, target, services));
    if (projects.contains(file)) return Told(kReplacesProjectRow, file);
    if (!files.insert(file).second) return Told(kSameTargetRow, file);
  }
  return std::nullopt;
}

/// Writes one document of all projects.
ExitCode ReportTogether(const ReportCommand& command, const std::string& extension, const path& target,
                        const Services& services, std::ostream& errors) {
  try {
    const path file = TogetherTarget(extension, target, services);
    if (storage::IsOpenElsewhere(file)) throw Failure(Told(kFillingFailedRow, file), "open elsewhere");
    const TogetherDocument document =
        services.together.make({.projects = command.projects,
                                .extension = extension,
                                .title = command.title,
                                .go_on_outside_ranges = command.go_on_outside_ranges,
                                .language = command.language});
    storage::WriteWhole(file, document.bytes);
    for (const Message& remark : document.remarks) WriteMessage(remark, services.words, errors);
    if (document.failed.empty()) return ExitCode::kDone;
    errors << services.words(kScheduleSomeFailedRow) << '\n';
    for (const FailedProject& failed : document.failed) {
      errors << WithReplacements(failed.project.string()) << ":\n";
      WriteMessage(failed.reason, services.words, errors);
    }
    return ExitCode::kSomeFailed;
  } catch (const Failure& failure) {
    const ExitCode code = TellFailure(failure, services.words, errors);
    const bool nothing = failure.UserMessage().empty()
                             ? false
                             : LeadingRow(failure.UserMessage().front()) == kScheduleNothingRow;
    return nothing ? ExitCode::kNoResult : code;
  }
}

/// The graver of two codes; "failed" outweighs "no result".
ExitCode Graver(ExitCode left, ExitCode right) {
  if (left == ExitCode::kFailed || right == ExitCode::kFailed) return ExitCode::kFailed;
  return std::max(left, right);
}

}  // namespace

ExitCode Execute(const ReportCommand& command, const Services& services, std::ostream& errors) {
  if (command.together) {
    if (const std::optional<Message> objection = TogetherObjection(command, services)) {
      WriteMessage(*objection, services.words, errors);
      return ExitCode::kWrongUsage;
    }
    ExitCode code = ExitCode::kDone;
    for (const auto& [extension, target] : command.targets)
      code = Graver(code, ReportTogether(command, extension, target, services, errors));
    return code;
  }
  if (const std::optional<Message> objection = Objection(command, services)) {
    WriteMessage(*objection, services.words, errors);
    return ExitCode::kWrongUsage;
  }
  ExitCode code = ExitCode::kDone;
  for (const path& project : command.projects) {
    std::ostringstream said;
    code = Graver(code, ReportWithin(command, project, services, said));
    if (said.view().empty()) continue;
    if (command.projects.size() > 1) errors << WithReplacements(project.string()) << ":\n";
    errors << said.view();
  }
  return code;
}

ExitCode CheckTemplate(const path& file, const Services& services, std::ostream& out, std::ostream& errors) {
  try {
    const Message findings = services.check_template(file);
    if (findings.empty()) {
      out << services.words(kTemplateGoodRow) << ' ' << WithReplacements(file.string()) << '\n';
      return ExitCode::kDone;
    }
    out << services.words(kTemplateCheckedRow) << ' ' << WithReplacements(file.string()) << ":\n";
    WriteMessage(findings, services.words, out);
    return ExitCode::kFailed;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
