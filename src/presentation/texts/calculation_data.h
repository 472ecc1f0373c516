#pragma once

#include <functional>
#include <string>
#include <vector>

#include "elements/setup.h"
#include "presentation/texts/field_texts.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// Where the values of a layer's material come from, in words; an empty text where nobody knows.
struct MaterialSources {
  std::function<std::string(const elements::StructuralMaterial&)> structural{};
  std::function<std::string(const elements::FibrousMaterial&)> fibrous{};
  std::function<std::string(const elements::ResilientMaterial&)> resilient{};
};

/// Of what a document is made and by what: so that its reader can compute it again.
struct Provenance {
  std::string program{};       ///< with its version; empty: not told
  std::string date{};          ///< of the document
  std::string iso_date{};      ///< the same as "2026-11-22"; empty: not told
  std::string project_file{};  ///< its name without a folder; empty for a project that was never saved
  std::string fingerprint{};  ///< SHA-256, in hexadecimal, of what saving the project writes; empty: not told
  MaterialSources sources{};
};

/// A table with heads; every row has as many cells as there are heads.
struct DataTable {
  std::string title{};
  std::vector<std::string> heads{};
  std::vector<double> weights{};  ///< of the columns' widths
  std::vector<std::vector<std::string>> rows{};
};

/// Every input that a calculation reads, as paper tells it.
struct CalculationData {
  std::string title{};
  std::vector<DataField> fields{};
  std::vector<DataTable> tables{};
  std::string references_title{};
  std::vector<std::string>
      references{};  ///< "[10] Pareti doppie ..." first, then model and standard of the rating
};

/// What the calculation of `setup` reads: the fields that its row of the catalogue names, the values of the
/// materials of every layer, the bands of parts and base elements. Nothing before a choice.
CalculationData CalculationDataOf(const elements::Setup& setup, const Words& words,
                                  const Provenance& provenance = {});

/// What stands at the foot of a document's pages: project, attachment code, date and program.
std::string FootText(const elements::ProjectInformation& information, const Provenance& provenance);

/// The references of a calculation with their marks: experimental relation, model, standard of the rating.
std::vector<std::string> ReferencesOf(elements::Calculation calculation, const Words& words);

}  // namespace velmar::presentation
