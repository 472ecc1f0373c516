#pragma once

#include <functional>
#include <optional>
#include <string>

#include "calculation/runs/totals.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "elements/studio_profile.h"
#include "foundation/message.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// What a report is made of.
struct ReportContent {
  std::string name{};  ///< of the project, without folder and extension; UTF-8
  elements::Setup setup{};
  elements::ResultSet result{};
  calculation::Totals totals{};
  Message confidence{};  ///< what is known of the error of the result
  presentation::Words words{};
  std::string file{};                                    ///< the project's name without its folder; UTF-8
  std::optional<elements::DocumentLanguage> language{};  ///< none: as the studio profile says
  presentation::MaterialSources sources{};               ///< of the layers' materials
  std::function<void(const Message&)> tell{};  ///< what the user is to know of a report that was written
};

/// A kind of report.
struct ReportFormat {
  std::string extension{};  ///< "pdf": its option is --pdf, its files end in ".pdf"
  MessageRow help{};        ///< describes the option
  /// The bytes of the file. @throws Failure when this calculation gives no such report
  std::function<std::string(const ReportContent&)> bytes{};
};

/// The table of the results, for a spreadsheet.
ReportFormat CsvFormat();

}  // namespace velmar::cli
