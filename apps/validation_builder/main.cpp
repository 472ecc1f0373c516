// velmar-build-validation SOURCE TARGET [DOCUMENT]: predicts the measured constructions of SOURCE with every
// calculation and model, and writes the outcome beside a copy of the measurements into TARGET; with DOCUMENT
// the table of accuracy as text.
#include <clocale>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "application/accuracy_file.h"
#include "storage/files/whole_file.h"
#include "storage/validation/measured_data.h"
#include "validation/model_prediction.h"
#include "validation_builder/validation_document.h"

namespace {

namespace fs = std::filesystem;

void CopyMeasurements(const fs::path& source, const fs::path& target) {
  for (const fs::directory_entry& entry : fs::directory_iterator(source)) {
    fs::copy_file(entry.path(), target / entry.path().filename(), fs::copy_options::overwrite_existing);
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::setlocale(LC_NUMERIC, "C");
  if (argc < 3 || argc > 4) {
    std::fprintf(stderr, "velmar-build-validation SOURCE TARGET [DOCUMENT]\n");
    return 2;
  }
  try {
    const fs::path target = argv[2];
    fs::create_directories(target);
    const velmar::elements::MeasuredData data = velmar::storage::ReadMeasuredData(argv[1]);
    const velmar::validation::PredictionOutcome outcome = velmar::validation::PredictWithAllModels(data);
    velmar::application::WritePredictions(target / velmar::application::kPredictionsFile,
                                          outcome.predictions);
    if (argc == 4) {
      velmar::storage::WriteWhole(argv[3], velmar::validation_builder::ValidationDocument(data, outcome));
    } else {
      CopyMeasurements(argv[1], target);
    }
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar-build-validation: %s\n", failure.what());
    return 1;
  }
}
