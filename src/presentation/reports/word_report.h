#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "elements/catalogue.h"
#include "foundation/message.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {

/// The file name of the Word template for calculations of `family`.
std::string_view WordTemplateName(elements::Family family);

/// The file name of template `name` for documents in `language`: "Formato_drav_en.xlsx", "..._it_en.xlsx"; as
/// it is for Italian and without a language.
std::string WithLanguage(std::string_view name, std::optional<DocumentLanguage> language);

/// A report made of a template.
struct WrittenReport {
  std::string bytes{};
  std::set<std::string> unknown_placeholders{};  ///< left in the document as they stood
  std::set<std::string> unpaired_markers{};      ///< of blocks that stay because an end is missing

  /// What the user is to know of it, a line each.
  Message Remarks() const;
};

/// Fills the Word template `docx` with `record`. The same record and template give the same bytes.
/// @throws TemplateFailure when the template cannot be used
WrittenReport WriteWordReport(std::string_view docx, const ReportRecord& record);

}  // namespace velmar::presentation
