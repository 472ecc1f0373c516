#include "cli/output/report_format.h"

#include "elements/single_numbers.h"
#include "foundation/message_rows.h"
#include "presentation/texts/result_notes.h"
#include "presentation/texts/results_csv.h"

namespace velmar::cli {

ReportFormat CsvFormat() {
  return {.extension = "csv", .help = kCsvHelpRow, .bytes = [](const ReportContent& content) {
            const auto table = presentation::ResultsTableOf(content.setup, content.result, content.words);
            if (!content.setup.calculation) return presentation::ResultsCsv(table);
            const elements::Calculation calculation = *content.setup.calculation;
            return presentation::ResultsCsv(
                table, elements::SingleNumbersOf(content.result, calculation),
                presentation::ResultNotes(calculation, content.result, content.confidence, content.words));
          }};
}

}  // namespace velmar::cli
