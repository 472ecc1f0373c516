#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "application/report_content.h"
#include "elements/studio_profile.h"
#include "foundation/message.h"

namespace velmar::cli {

using application::ReportContent;

/// A kind of report.
struct ReportFormat {
  std::string extension{};  ///< "pdf": its option is --pdf, its files end in ".pdf"
  MessageRow help{};        ///< describes the option
  /// The bytes of the file. @throws Failure when this calculation gives no such report
  std::function<std::string(const ReportContent&)> bytes{};
};

/// What is asked of one document of several projects.
struct TogetherOrder {
  std::vector<std::filesystem::path> projects{};
  std::string extension{};  ///< of its format
  std::string title{};      ///< empty: the usual one
  bool go_on_outside_ranges = false;
  std::optional<elements::DocumentLanguage> language{};  ///< none: as the studio profile says
};

/// A project that gave no result, and why.
struct FailedProject {
  std::filesystem::path project{};
  Message reason{};
};

/// One document of several projects.
struct TogetherDocument {
  std::string bytes{};
  std::vector<FailedProject> failed{};  ///< named in the document
  std::vector<Message> remarks{};       ///< what the user is to know of it
};

/// Makes such documents in the formats `extensions`.
struct TogetherReports {
  std::vector<std::string> extensions{};
  /// @throws Failure when there is no document; of row kScheduleNothingRow when no project gives a result
  std::function<TogetherDocument(const TogetherOrder&)> make{};
};

/// The table of the results, for a spreadsheet.
ReportFormat CsvFormat();

}  // namespace velmar::cli
