#include "cli/report_format.h"

#include "presentation/texts/results_csv.h"

namespace velmar::cli {

ReportFormat CsvFormat() {
  return {.extension = "csv", .help = {1297}, .bytes = [](const ReportContent& content) {
            return presentation::ResultsCsv(
                presentation::ResultsTableOf(content.setup, content.result, content.words));
          }};
}

}  // namespace velmar::cli
