#include <algorithm>
#include <cmath>

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/texts/box_number.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/facade_texts.h"
#include "presentation/texts/field_texts.h"
#include "presentation/texts/result_lines.h"
#include "presentation/texts/result_notes.h"
#include "presentation/texts/results_table.h"

namespace velmar::presentation {
namespace {

/// Of the project information.
constexpr std::size_t kEngineerRow = 3;

using elements::Calculation;
using elements::CalculationRow;
using elements::Family;
using elements::Field;
using elements::Setup;

std::string NumberText(double value) { return FormatShortest(RoundToEven(value, 4)); }

std::vector<PageField> InformationOf(const Setup& setup, const Words& words) {
  std::vector<PageField> fields;
  for (std::size_t i = 0; i < setup.information.size(); ++i) {
    const elements::ProjectInformationRow& row = setup.information[i];
    if (row.value.empty()) continue;
    const std::string caption = row.caption.empty() ? words(elements::kInformationCaptions[i]) : row.caption;
    fields.push_back({WithoutColon(caption), row.value});
  }
  return fields;
}

std::vector<PageField> FieldsOf(const Setup& setup, const CalculationRow& row, const PageTotals& totals,
                                const Words& words) {
  std::vector<PageField> fields;
  const auto add = [&](MessageRow caption, std::string value) {
    if (!value.empty()) fields.push_back({WithoutColon(words(caption)), std::move(value)});
  };
  add(kElementTypeRow, ElementTypeText(row.calculation, words));
  add(kTheoryRow, TheoryText(row.calculation, words));
  if (row.family == Family::kFacade) {
    add(kPartAreaRow, NumberText(FacadeArea(setup)));
    return fields;
  }
  if (row.Reads(Field::kWidth)) add(kElementWidthRow, setup.width_text);
  if (row.Reads(Field::kHeight)) add(kElementHeightRow, setup.height_text);
  add(kTotalThicknessRow, NumberText(totals.thickness_mm));
  add(kSurfaceMassRow, FormatFixed(totals.surface_mass_kg_m2, 1));
  if (IsLining(row.family)) {
    add(row.family == Family::kCeiling ? kBaseFloorRow : kBaseWallRow, setup.base.name);
  }
  for (InputText& text : ConnectionTexts(setup, words)) {
    const bool tick = text.value.empty();
    fields.push_back(tick ? PageField{{}, std::move(text.caption)}
                          : PageField{std::move(text.caption), std::move(text.value)});
  }
  return fields;
}

/// What the curves beside the calculated one are.
void AddComparisons(const CurveChart& chart, const Words& words, std::vector<PageField>& fields) {
  if (chart.laboratory && !chart.laboratory_name.empty())
    fields.push_back({words(kLaboratoryFrameRow), chart.laboratory_name});
  if (chart.in_situ && !chart.in_situ_name.empty()) fields.push_back({words(kInSituRow), chart.in_situ_name});
}

PageTable BandsOf(const Setup& setup, Family family, const elements::ResultSet& result, const Words& words) {
  PageTable table;
  const std::optional<BandSpan> span = ShownBands(setup);
  if (!span || !result.spectrum) return table;
  table.heads = {words(kFrequencyRow), ValueHeading(family, words), words(kReferenceColumnRow)};
  for (std::size_t band = span->first; band <= span->last; ++band) {
    table.rows.push_back({FormatShortest(acoustics::BandCentre(band)), FormatLevel((*result.spectrum)[band]),
                          ReferenceLevel(family, result.shift, band)});
  }
  return table;
}

/// "infisso 2: Porta", or the kind alone for a part without a name.
std::string PartName(const std::string& kind, const std::string& name) {
  return name.empty() ? kind : kind + ": " + name;
}

bool HasSmallElement(const elements::Facade& facade) {
  const auto end = facade.components.begin() + facade.Count();
  return std::any_of(facade.components.begin(), end,
                     [](const elements::FacadeComponent& part) { return ComponentArea(part) == 0.0; });
}

PageTable FacadeTable(const Setup& setup, const Words& words) {
  // A small element has a level difference Dn,e,w, which is no Rw.
  const bool small_parts = HasSmallElement(setup.facade);
  PageTable table{.heads = {words(kPartHeadingRow), small_parts ? words(kSmallElementRatingRow) : "Rw (dB)",
                            words(kPartAreaRow), words(kShareHeadingRow), words(kNotesHeadingRow)}};
  const double opaque = OpaqueArea(setup);
  table.rows.push_back({PartName(words(kOpaquePartRow), setup.base.name),
                        setup.base.rating_text,
                        NumberText(opaque),
                        ShareText(setup, opaque),
                        {}});
  for (int i = 0; i < setup.facade.Count(); ++i) {
    const elements::FacadeComponent& part = setup.facade.components[static_cast<std::size_t>(i)];
    const double area = ComponentArea(part);
    const bool small = area == 0.0;
    const std::string symbol = small && !part.rating_text.empty() ? "Dn,e,w " : "";
    table.rows.push_back({PartName(words(kWindowOrDoorRow), part.name), symbol + part.rating_text,
                          small ? std::string(elements::kSmallElementArea) : NumberText(area),
                          small ? std::string(elements::kSmallElementArea) : ShareText(setup, area),
                          small ? std::string() : TightnessText(part.tightness_class, words)});
  }
  return table;
}

PageTable LiningTable(const Setup& setup, const elements::ResultSet* result) {
  PageTable table{.heads = {"m'", "Rw (dB)", "m' add", "DRw (dB)"}};
  table.rows.push_back({FormatFixed(static_cast<double>(setup.base.mass_kg_m2), 1), setup.base.rating_text,
                        FormatFixed(LiningMass(setup), 1),
                        result != nullptr ? FormatTerm(result->delta_rw) : std::string()});
  return table;
}

/// What there is to know of the result, a line each.
std::string NoteOf(const CalculationRow& row, const elements::ResultSet& result, const Message& confidence,
                   const Words& words) {
  std::vector<std::string> notes = ResultNotes(row.calculation, result, confidence, words);
  if (IsLining(row.family) && result.c) notes.insert(notes.begin(), words(kLiningTermsRow));
  return Joined(notes);
}

/// What the two floors in hollow brick and concrete add behind their layers.
std::vector<std::string> NotesOf(const CalculationRow& row, const PageTotals& totals,
                                 const elements::ResultSet* result) {
  std::vector<std::string> notes;
  const bool floating = row.calculation == Calculation::kFloorWithFloatingScreed;
  if (!floating && row.calculation != Calculation::kFloorHollowBrickConcrete) return notes;
  notes.push_back("S= " + NumberText(totals.thickness_mm) + "mm");
  notes.push_back(MassText(totals.surface_mass_kg_m2));
  if (floating && result != nullptr && result->delta_rw) {
    notes.push_back("DRw= " + FormatLevel(result->delta_rw) + " dB");
  }
  return notes;
}

void SetAll(std::vector<std::string>& texts, DocumentLanguage language) {
  for (std::string& text : texts) text = ForPaper(text, language);
}

void SetTable(PageTable& table, DocumentLanguage language) {
  SetAll(table.heads, language);
  for (auto& row : table.rows) {
    for (std::string& cell : row) cell = CellForPaper(cell, language);
  }
}

/// The texts that the program composed; names and what somebody typed stay.
void SetForPaper(PaginaDiStampa& page, DocumentLanguage language) {
  for (PageField& field : page.fields) field.value = ForPaper(field.value, language);
  SetAll(page.results, language);
  page.further_results = ForPaper(page.further_results, language);
  page.results_note = ForPaper(page.results_note, language);
  SetTable(page.bands, language);
  SetTable(page.elements, language);
  for (StructureBlock& block : page.structure) {
    block.mass = ForPaper(block.mass, language);
    for (StructureLine& line : block.lines) {
      if (line.number == 0) line.name = ForPaper(line.name, language);
      line.amount = ForPaper(line.amount, language);
    }
  }
  SetAll(page.structure_notes, language);
}

void JoinFields(std::vector<PageField>& italian, const std::vector<PageField>& english) {
  for (std::size_t i = 0; i < italian.size() && i < english.size(); ++i) {
    italian[i].caption = InBoth(italian[i].caption, english[i].caption);
    italian[i].value = InBoth(italian[i].value, english[i].value);
  }
}

void JoinTable(PageTable& italian, const PageTable& english) {
  for (std::size_t i = 0; i < italian.heads.size() && i < english.heads.size(); ++i)
    italian.heads[i] = InBoth(italian.heads[i], english.heads[i]);
  for (std::size_t row = 0; row < italian.rows.size() && row < english.rows.size(); ++row) {
    for (std::size_t i = 0; i < italian.rows[row].size(); ++i)
      italian.rows[row][i] = InBoth(italian.rows[row][i], english.rows[row][i]);
  }
}

/// What the calculation reads, and what it is compared with.
CalculationData DataOf(const Setup& setup, const Words& words, const std::optional<CurveChart>& chart,
                       const Provenance& provenance = {}) {
  CalculationData data = CalculationDataOf(setup, words, provenance);
  if (chart) AddComparison(data, chart->comparison, words);
  return data;
}

}  // namespace

PaginaDiStampa PaginaDi(const Setup& setup, const PageTotals& totals, const elements::ResultSet* result,
                        const Words& words, std::optional<CurveChart> chart, const Message& confidence,
                        DocumentLanguage language) {
  PaginaDiStampa page;
  page.information = InformationOf(setup, words);
  if (!setup.calculation) return page;
  const CalculationRow& row = elements::RowOf(*setup.calculation);
  page.title = TitleOf(row.family, words);
  page.fields = FieldsOf(setup, row, totals, words);
  if (result != nullptr) {
    page.chart = chart ? std::move(chart) : CurveChartOf(setup, *result, words);
    page.results_note = NoteOf(row, *result, confidence, words);
    if (page.chart) AddComparisons(*page.chart, words, page.fields);
    page.bands = BandsOf(setup, row.family, *result, words);
    for (std::string line : {ResultLine(row.family, *result), ImprovementLine(row.family, *result)}) {
      if (!line.empty()) page.results.push_back(std::move(line));
    }
    page.further_results = FurtherNumbersLine(row.calculation, *result);
  }
  if (row.family == Family::kFacade) page.elements = FacadeTable(setup, words);
  if (IsLining(row.family)) page.elements = LiningTable(setup, result);
  page.structure = StructureOf(setup, words);
  if (!page.structure.empty()) page.structure_heading = words(kLayersTitleRow);
  page.structure_notes = NotesOf(row, totals, result);
  page.section = SectionOf(setup, words);
  page.section_options = PaperOptions(setup, words, language);
  page.data = ForPaper(DataOf(setup, words, page.chart), language);
  page.foot = {.page = words(kPageRow), .of = words(kPageOfRow)};
  SetForPaper(page, language);
  return page;
}

void TellProvenance(PaginaDiStampa& page, const Setup& setup, const Words& words,
                    const Provenance& provenance, DocumentLanguage language) {
  page.data = ForPaper(DataOf(setup, words, page.chart, provenance), language);
  page.foot.left = FootText(setup.information, provenance);
  page.author = setup.information[kEngineerRow].value;
  page.subject = words(kDocumentSubjectRow);
  page.program = provenance.program;
}

void TellStudio(PaginaDiStampa& page, const Setup& setup, PageStudio studio, const Words& words,
                const Provenance& provenance) {
  const std::string& engineer = setup.information[kEngineerRow].value;
  studio.signer = engineer.empty() ? studio.words.signer : engineer;
  studio.signer_caption = words(kSignerCaptionRow);
  studio.date = provenance.date;
  if (!studio.words.name.empty()) page.author = studio.words.name;
  page.studio = std::move(studio);
}

PaginaDiStampa InBoth(PaginaDiStampa italian, const PaginaDiStampa& english) {
  JoinFields(italian.information, english.information);
  JoinFields(italian.fields, english.fields);
  JoinTable(italian.bands, english.bands);
  JoinTable(italian.elements, english.elements);
  italian.title = InBoth(italian.title, english.title);
  italian.structure_heading = InBoth(italian.structure_heading, english.structure_heading);
  italian.further_results = InBoth(italian.further_results, english.further_results);
  italian.results_note = InBoth(italian.results_note, english.results_note, "\n");
  for (std::size_t i = 0; i < italian.structure.size() && i < english.structure.size(); ++i) {
    StructureBlock& block = italian.structure[i];
    const StructureBlock& other = english.structure[i];
    block.heading = InBoth(block.heading, other.heading);
    for (std::size_t line = 0; line < block.lines.size() && line < other.lines.size(); ++line)
      block.lines[line].name = InBoth(block.lines[line].name, other.lines[line].name);
  }
  italian.data = InBoth(std::move(italian.data), english.data);
  italian.subject = InBoth(italian.subject, english.subject);
  italian.foot.page = InBoth(italian.foot.page, english.foot.page);
  italian.foot.of = InBoth(italian.foot.of, english.foot.of);
  italian.studio.signer_caption = InBoth(italian.studio.signer_caption, english.studio.signer_caption);
  return italian;
}

}  // namespace velmar::presentation
