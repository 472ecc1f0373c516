#include "presentation/schedule/schedule.h"

#include <algorithm>
#include <set>

#include "elements/catalogue.h"
#include "elements/requirement.h"
#include "elements/single_numbers.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/descriptions.h"
#include "presentation/texts/requirement_text.h"
#include "presentation/texts/result_lines.h"
#include "presentation/texts/result_notes.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {
namespace {

constexpr const char* kOutsideMark = " *";

std::string OrDash(std::string text) { return text.empty() ? kNoValue : text; }

std::string Shortest(std::optional<double> value, int decimals) {
  return value ? FormatShortest(RoundToEven(*value, decimals)) : kNoValue;
}

/// Rw at least, Ln,w at most; and how the result stands to it.
void AddRequirement(const elements::Setup& setup, const elements::ResultSet& result, const Words& words,
                    ScheduleElement& element) {
  const std::optional<double> required = elements::RequirementOf(setup);
  if (!required) return;
  element.requirement =
      (result.lnw ? "Ln,w ≤ " : "Rw ≥ ") + FormatShortest(RoundToEven(*required, 1)) + " dB";
  const std::string text = RequirementText(*required, result, words);
  const std::size_t colon = text.find(": ");
  element.verdict = colon == std::string::npos ? text : text.substr(colon + 2);
}

void AddRatings(elements::Family family, const elements::ResultSet& result, ScheduleElement& element) {
  if (family == elements::Family::kImpact) {
    element.lnw_db = result.lnw;
    element.ci_db = result.ci;
    element.improvement_db = result.delta_lnw;
    return;
  }
  element.rw_db = result.rw;
  element.improvement_db = result.delta_rw;
  // A lining's terms stand against its base's rating: beside Rw they would be taken for the element's.
  if (IsLining(family)) return;
  element.c_db = result.c;
  element.ctr_db = result.ctr;
}

}  // namespace

ScheduleWords ScheduleWordsOf(const Words& words) {
  const auto information = elements::Setup().information;
  return {.contents = words(kScheduleContentsRow),
          .table = words(kScheduleTableRow),
          .failed = words(kScheduleFailedRow),
          .outside = words(kScheduleOutsideRow),
          .project = words(kScheduleProjectRow),
          .client = words(kScheduleClientRow),
          .studio = words(kScheduleStudioRow),
          .date = words(kScheduleDateRow),
          .page = words(kPageRow),
          .of = words(kPageOfRow),
          .signer = words(kSignerCaptionRow)};
}

std::vector<std::string> ScheduleHeads(const Words& words) {
  return {words(kScheduleCodeRow),
          words(kScheduleDescriptionRow),
          words(kScheduleSectionRow),
          "S [mm]",
          "m' [kg/m²]",
          "Rw [dB]",
          "C",
          "Ctr",
          "Ln,w [dB]",
          "CI",
          "ΔRw, ΔLw [dB]",
          words(kScheduleRequirementRow),
          words(kScheduleVerdictRow)};
}

std::vector<double> ScheduleWeights() {
  return {1.1, 5.2, 2.2, 1.1, 1.3, 1.2, 0.7, 0.7, 1.2, 0.7, 1.4, 1.6, 1.8};
}

std::vector<std::string> ScheduleCells(const ScheduleElement& element, DocumentLanguage language) {
  const auto rating = [&](std::optional<double> value) {
    return value ? FormatLevel(value) + (element.outside_range ? kOutsideMark : "") : std::string(kNoValue);
  };
  std::string description = element.title;
  for (const std::string* further : {&element.description, &element.remark}) {
    if (!further->empty()) description += "\n" + ForPaper(*further, language);
  }
  std::vector<std::string> cells = {element.code,
                                    description,
                                    element.drawing ? std::string() : kNoValue,
                                    Shortest(element.thickness_mm, 1),
                                    element.mass_kg_m2 ? FormatFixed(*element.mass_kg_m2, 1) : kNoValue,
                                    rating(element.rw_db),
                                    OrDash(FormatTerm(element.c_db)),
                                    OrDash(FormatTerm(element.ctr_db)),
                                    rating(element.lnw_db),
                                    OrDash(FormatTerm(element.ci_db)),
                                    OrDash(FormatLevel(element.improvement_db)),
                                    OrDash(element.requirement),
                                    OrDash(element.verdict)};
  for (std::size_t i = kScheduleDrawingColumn + 1; i < cells.size(); ++i)
    cells[i] = ForPaper(cells[i], language);
  return cells;
}

ScheduleElement ScheduleElementOf(const elements::Setup& setup, const elements::ResultSet& result,
                                  const ElementTotals& totals, const Words& words, std::size_t place) {
  ScheduleElement element{.code = setup.information[elements::kAttachmentRow].value};
  if (element.code.empty()) element.code = std::to_string(place);
  if (!setup.calculation) return element;
  const elements::Family family = elements::RowOf(*setup.calculation).family;
  element.description = ElementTypeText(*setup.calculation, words);
  if (family == elements::Family::kFacade) {
    element.mass_kg_m2 = result.mass_kg_m2;
  } else {
    element.thickness_mm = totals.thickness_mm;
    element.mass_kg_m2 = totals.surface_mass_kg_m2;
  }
  AddRatings(family, result, element);
  element.outside_range = !result.ranges_left.empty();
  element.remark = ResultingElementLine(*setup.calculation, result, words);
  AddRequirement(setup, result, words, element);
  return element;
}

std::string ChapterHeading(const ScheduleElement& element) {
  return element.code + (element.title.empty() ? "" : " – " + element.title);
}

void NameElements(std::vector<ScheduleElement>& elements, const std::vector<std::string>& projects) {
  std::set<std::string> different = {""};
  bool speaking = true;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (elements[i].failure.empty()) speaking = different.insert(projects[i]).second && speaking;
  }
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const std::string& file = elements[i].file;
    elements[i].title = speaking ? projects[i] : file.substr(0, file.rfind('.'));
  }
}

std::string SharedText(const std::vector<std::string>& texts) {
  if (texts.empty() || std::ranges::count(texts, texts.front()) != std::ranges::ssize(texts)) return {};
  return texts.front();
}

}  // namespace velmar::presentation
