#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "presentation/documents/package.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {

/// The bytes of a shipped template.
std::string ShippedTemplate(std::string_view name);

/// The text of all paragraphs of a part, a line each.
std::string TextOf(const Package& package, const std::string& part);

/// What is wrong with the package: parts that are no XML, links that lead nowhere, parts without a content
/// type.
std::vector<std::string> FaultsOf(const Package& package);

/// What a cell of the first sheet holds; a number as it is written, nothing for an empty cell.
struct OpenedCell {
  std::string text{};
  bool number = false;
  int style = 0;
};
std::optional<OpenedCell> CellOf(const Package& package, const std::string& name);

/// A setup with its result, as a report needs it.
struct ReportCase {
  std::string name{};
  elements::Setup setup{};
  elements::ResultSet result{};
  ElementTotals totals{};
};

/// Names the case in failures.
void PrintTo(const ReportCase& report_case, std::ostream* out);

/// One of every family.
std::vector<ReportCase> ReportCases();

ReportRecord RecordOf(const ReportCase& report_case);

}  // namespace velmar::presentation
