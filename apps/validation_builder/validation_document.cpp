#include "validation_builder/validation_document.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <optional>
#include <vector>

#include "validation/accuracy.h"
#include "validation/model_choice.h"

namespace velmar::validation_builder {
namespace {

using validation::Accuracy;
using validation::AccuracyRow;

constexpr const char* kIntroduction = R"(# Accuracy

Written by the build (target `validation_document`) from the program's own figures; a test fails when this text is not what the program says. The measurements stand in `data/validation`, each with its source.

## What is compared

Every measured construction is run with every calculation that covers it, through the same function as in the window, and with the new models. Error = predicted minus measured, in dB. The rating compared is the one that was published: Rw, else STC, else Rw + C, else Rw out of the octave bands; the prediction is rated the same way. Floors: Ln,w; coverings and linings: the improvement. A construction counts once in a group, also where a source gives it to a calculation in two forms.

- n: constructions; src: sources; bias: mean; sd: standard deviation; rms; worst; 3 dB: share of errors up to 3 dB.
- out: rms of what is left when the mean error of all other sources is taken off (with one source: of all other constructions). It is the error of the centre of an interval for a source not seen before.
- 63-125, 250-500, 1k-4k: mean error of the octaves, where octaves or thirds were published.
- `*`: the model that is marked for the kind of element.

The existing calculations hold no number that was found on these measurements. The layered model holds ten that were found on measurements of these kinds together (`src/models/layered`: losses of mounted sheets, absorption at the edges of glazed cavities, compliance of resilient connections, share of the tracks, shear of interlayers); no number belongs to one construction. Its rms here is therefore that of numbers found on largely the same rows, not a blind figure.

)";

constexpr const char* kIntervals = R"(
## Intervals

An interval of 90 % says what a laboratory would measure: the result less the bias of its model on elements of this kind, plus and minus a half width. The result itself is never corrected.

- Model of the error: mean + trends + effect of the source + rest. Trends over log10 of the surface mass, log10 of the depth of the cavity, and a filled cavity; a set of trends is kept when n ln(RSS/n) + 2 p ln n is least (Schwarz's criterion with doubled penalty), with at least six constructions a term.
- Variances between and within sources by the method of moments (DerSimonian and Laird, Controlled Clinical Trials 7, 1986); the interval for a further source after Higgins, Thompson and Spiegelhalter (J. R. Statist. Soc. A 172, 2009), with the 95 % quantile of Student's t for n - 1 - k degrees of freedom, k the number of trends. The standard deviation is never below 1.2 dB, that of reproducibility (ISO 12999-1).
- No estimate below nine constructions, with a single source, or outside what was measured: mass and depth a tenth beyond the extremes, a filled cavity only where filled ones were measured, a rating 5 dB beyond those predicted.

)";

std::string Decibels(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%+.1f", value);
  const std::string written = text;
  return written == "-0.0" ? "+0.0" : written;
}

std::string Plain(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", value);
  return text;
}

std::string Percent(double share) { return std::to_string(std::lround(100.0 * share)) + " %"; }

std::string Optional(const std::optional<double>& value) { return value ? Decibels(*value) : ""; }

bool IsMarked(const AccuracyRow& row) {
  return std::ranges::any_of(validation::ModelRules(), [&](const validation::ModelRule& rule) {
    return RowOf(rule.kind).id == row.group && rule.model == row.model;
  });
}

std::string TableText(const std::vector<AccuracyRow>& table) {
  std::string text =
      "## Table\n\n| group | model | quantity | n | src | bias | sd | rms | out | worst | 3 dB | 63-125 | "
      "250-500 | 1k-4k |\n"
      "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n";
  for (const AccuracyRow& row : table) {
    const validation::ErrorSummary& errors = row.errors;
    text += "| " + row.group + " | " + row.model + (IsMarked(row) ? " *" : "") + " | " + row.quantity +
            " | " + std::to_string(errors.count) + " | " + std::to_string(errors.sources) + " | " +
            Decibels(errors.bias) + " | " + Plain(errors.spread) + " | " + Plain(errors.rms) + " | " +
            Plain(errors.rms_source_out) + " | " + Decibels(errors.worst) + " | " +
            Percent(errors.within_3db) + " | " + Optional(row.bands.low) + " | " + Optional(row.bands.mid) +
            " | " + Optional(row.bands.high) + " |\n";
  }
  return text;
}

std::string CoverageText(const Accuracy& accuracy) {
  const validation::CoverageFigures figures = accuracy.Coverages();
  const auto words = [](const char* name, const validation::Coverage& coverage) {
    return std::string("| ") + name + " | " + std::to_string(coverage.held) + " of " +
           std::to_string(coverage.tried) + " | " + Percent(coverage.Share()) + " |\n";
  };
  return "Over every model and kind of element for which an interval may be claimed:\n\n| left out | held | "
         "share "
         "|\n|---|---|---|\n" +
         words("one construction", figures.leave_one_out) + words("one source", figures.leave_one_source_out);
}

std::string RuleText() {
  std::string text =
      "\n## The marked model\n\nA fixed rule, one line a kind of element (`src/validation/model_choice.cpp`, "
      "with "
      "the reasons). A free choice by the smallest error on the same measurements does worse on sources that "
      "it "
      "has not seen: the groups are too small.\n\n| kind of element | model |\n|---|---|\n";
  for (const validation::ModelRule& rule : validation::ModelRules()) {
    text += "| " + std::string(RowOf(rule.kind).id) + " | " + std::string(rule.model) + " |\n";
  }
  return text;
}

constexpr const char* kObstacles = R"(
What stands behind the largest of them, and why no number was changed for it:

- Thin sheets: all from one handbook, in which two plywoods of one thickness stand 3 dB apart (bhh-plywood-6a, bhh-plywood-6b): a model that reads thickness, density and stiffness gives both the same. Lead and galvanised sheets are measured 1 to 5 dB below the prediction, most in the lowest and the highest bands, where mounting and edges count; the source says nothing of either.
- Aerated concrete: the sources contradict each other. A maker measures 37 dB at 71 kg/m² (rw-aac-block610-100), the handbook 43 dB at 75 kg/m² (bhh-aac-150); both give mass and thickness alone. Without the two rows of the handbook the rms is 1.8 dB.
- Wood studs: a wall of two boards on either side of 100 mm is declared with 41 dB (rw-part-tim100-2x15-empty), lighter and shallower ones in the handbook are measured at 43 dB (har-w89-22-empty): the model gives 47 and 40 dB. Neither source states what could tell them apart, as the distance of the screws.
- Resilient steel studs: seven of nine come from one maker, and the model lies below all seven. A higher compliance would mend them, but none of the sources at hand states one for these studs: it would be a number found on one maker's product, with hardly a row left to test it.
- Brick and clay: among the five rows with bands are a wall without plaster (bhh-brick-plain-100), for which its handbook gives 38 dB where another source gives 45 dB for a bare wall of nearly its mass (sha-brick-102), as leaking joints would have it, and one of 720 kg/m² that measures no more than one of 480 (bhh-brick-360, bhh-brick-255), as flanking would. No model here knows leaks or the flanks of a test room. The relation that is marked errs by +6 and -1 dB on the two.
)";

/// What is left of a marked model's error without the construction that it misses most.
struct Farthest {
  std::string measured{};
  double error = 0.0;
  double rms = 0.0;
  double rms_without = 0.0;
  std::size_t count = 0;
};

std::optional<Farthest> FarthestOf(const Accuracy& accuracy, const validation::ModelRule& rule) {
  std::map<std::string, std::vector<double>> errors;
  for (const validation::Prediction* prediction : accuracy.Compared()) {
    const bool rating =
        validation::PooledQuantity(prediction->quantity) == "Rw" || prediction->quantity == "Lnw";
    if (rating && prediction->group == RowOf(rule.kind).id && prediction->model == rule.model)
      errors[prediction->measured].push_back(prediction->Error());
  }
  if (errors.size() < 2) return std::nullopt;
  Farthest farthest{.count = errors.size()};
  double squares = 0.0;
  for (const auto& [measured, of_one] : errors) {
    double error = 0.0;
    for (const double value : of_one) error += value / static_cast<double>(of_one.size());
    squares += error * error;
    if (std::abs(error) > std::abs(farthest.error)) {
      farthest.error = error;
      farthest.measured = measured;
    }
  }
  const auto count = static_cast<double>(errors.size());
  farthest.rms = std::sqrt(squares / count);
  farthest.rms_without = std::sqrt((squares - farthest.error * farthest.error) / (count - 1.0));
  return farthest;
}

std::string FarthestText(const Accuracy& accuracy) {
  std::string text =
      "\n## Where the marked models err most\n\nThe construction that each of them misses most, and its rms "
      "with and without it.\n\n| kind of element | model | n | rms | missed most | error | rms without it |\n"
      "|---|---|---|---|---|---|---|\n";
  for (const validation::ModelRule& rule : validation::ModelRules()) {
    const std::optional<Farthest> farthest = FarthestOf(accuracy, rule);
    if (!farthest) continue;
    text += "| " + std::string(RowOf(rule.kind).id) + " | " + std::string(rule.model) + " | " +
            std::to_string(farthest->count) + " | " + Plain(farthest->rms) + " | " + farthest->measured +
            " | " + Decibels(farthest->error) + " | " + Plain(farthest->rms_without) + " |\n";
  }
  return text + kObstacles;
}

std::string UncoveredText(const elements::MeasuredData& data) {
  std::map<std::string, std::vector<std::string>> by_reason;
  for (const elements::UncoveredConstruction& uncovered : data.uncovered) {
    by_reason[uncovered.reason].push_back(uncovered.id);
  }
  std::string text =
      "\n## Not covered\n\nMeasured, but no calculation describes them; the reason as the program gives "
      "it.\n\n";
  for (const auto& [reason, ids] : by_reason) {
    text += "- " + reason + " (" + std::to_string(ids.size()) + "):";
    for (const std::string& id : ids) text += " " + id;
    text += '\n';
  }
  return text;
}

}  // namespace

std::string ValidationDocument(const elements::MeasuredData& data,
                               const validation::PredictionOutcome& outcome) {
  const Accuracy accuracy(outcome.predictions);
  return kIntroduction + TableText(accuracy.Table()) + kIntervals + CoverageText(accuracy) + RuleText() +
         FarthestText(accuracy) + UncoveredText(data);
}

}  // namespace velmar::validation_builder
