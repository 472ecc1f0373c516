#include "presentation/reports/report_record.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "acoustics/airborne_rating.h"
#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/box_number.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/descriptions.h"
#include "presentation/texts/facade_texts.h"
#include "presentation/texts/field_texts.h"
#include "presentation/texts/result_lines.h"
#include "presentation/texts/result_notes.h"
#include "presentation/texts/results_table.h"

namespace velmar::presentation {
namespace {

using elements::Orientation;

struct Kind {
  Orientation orientation{};
  MessageRow row{};
};

constexpr std::array<Kind, 8> kKinds = {{{Orientation::kVerticalSingle, kSingleWallKindRow},
                                         {Orientation::kVerticalDouble, kDoubleWallKindRow},
                                         {Orientation::kHorizontalSingle, kFloorKindRow},
                                         {Orientation::kHorizontalDouble, kScreedFloorKindRow},
                                         {Orientation::kLining, kWallLiningRow},
                                         {Orientation::kCeiling, kCeilingRow},
                                         {Orientation::kComposite, kFacadeKindRow},
                                         {Orientation::kMultilayer, kMultilayerRow}}};

/// The row that names the kind of element in reports: single or double wall, glazing, floor, lining and so
/// on. Row 0 before a choice.
MessageRow KindOfElementRow(const elements::Setup& setup) {
  if (!setup.calculation) return {};
  if (elements::IsGlazing(*setup.calculation)) return kGlazingRow;
  if (elements::RowOf(*setup.calculation).Reads(elements::Field::kDecoupling) && setup.decoupled)
    return kDecoupledBrickRow;
  const Orientation orientation = elements::RowOf(*setup.calculation).orientation;
  return std::ranges::find(kKinds, orientation, &Kind::orientation)->row;
}

using elements::Family;
using elements::Setup;

/// Of the project information.
constexpr std::size_t kProjectRow = 0;
constexpr std::size_t kEngineerRow = 3;
/// Rw is the reference curve at 500 Hz.
constexpr double kRatingBelowShift = 4.0;

MessageRow StandardRow(Family family) {
  if (family == Family::kFacade) return kFacadeStandardRow;
  return family == Family::kImpact ? kImpactStandardRow : kAirborneStandardRow;
}

/// The improvement that the main window shows beside the rating.
std::string Improvement(Family family, const elements::ResultSet& result) {
  if (family != Family::kImpact && !IsLining(family) && result.delta_rw && *result.delta_rw != 0.0) {
    return "DRw= " + FormatLevel(result.delta_rw) + " dB";
  }
  return ImprovementLine(family, result);
}

/// Why the rating shown is not that of the curve: a relation moves the curve by a value that is not rounded.
std::string RatingNote(Family family, const elements::ResultSet& result, const Words& words) {
  if (!result.spectrum || !result.rw || !result.relation_rating || IsLining(family)) return {};
  if (family == Family::kImpact || family == Family::kFacade) return {};
  const double of_curve = acoustics::FindShift(*result.spectrum) - kRatingBelowShift;
  if (of_curve == *result.rw) return {};
  return words(kRatingNoteRow) + " " + FormatLevel(of_curve) + " dB.";
}

void FillBands(const Setup& setup, Family family, ReportRecord& record) {
  const std::optional<BandSpan> span = ShownBands(setup);
  if (!span || !record.result.spectrum) return;
  record.has_bands = true;
  for (std::size_t band = span->first; band <= span->last; ++band) {
    const double level = (*record.result.spectrum)[band];
    if (level != 0.0) record.bands[band].level_db = level;
    if (IsLining(family)) record.bands[band].base = setup.base.band_texts[band];
    record.bands[band].reference = ReferenceLevel(family, record.result.shift, band);
  }
}

void FillDimensions(const Setup& setup, Family family, ReportRecord& record) {
  if (family == Family::kFacade) {
    record.area = FormatFixed(FacadeArea(setup), 2);
    return;
  }
  // A dimension that the calculation does not read is none of the element's.
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  if (row.Reads(elements::Field::kWidth)) record.width = setup.width_text;
  if (row.Reads(elements::Field::kHeight)) record.height = setup.height_text;
  if (record.width.empty() || record.height.empty()) return;
  const double area = NumberOf(setup.width_text) * NumberOf(setup.height_text);
  if (area > 0.0) record.area = FormatFixed(area, 2);
}

std::string Compared(const std::string& caption, const std::string& name) {
  return name.empty() ? name : caption + ": " + name;
}

void FillLabels(const Setup& setup, Family family, const Words& words, ReportRecord& record) {
  const elements::Calculation calculation = *setup.calculation;
  record.title = TitleOf(family, words);
  record.insulation = words(family == Family::kImpact ? kImpactInsulationRow : kAirborneInsulationRow);
  record.kind_of_element = words(KindOfElementRow(setup));
  record.element_type = ElementTypeText(calculation, words);
  record.description = ElementDescription(setup, words);
  record.theory = calculation == elements::Calculation::kDoubleWallSeaBrick ? words(kBrickSeaTheoryRow)
                                                                            : TheoryText(calculation, words);
  record.standard = words(StandardRow(family));
  record.band_heading = words(family == Family::kImpact ? kReportImpactHeadingRow : kAirborneHeadingRow);
  const bool generic = elements::RowOf(calculation).model == elements::Model::kGenericLining;
  if (generic || (family == Family::kFacade && setup.facade.simplified))
    record.generic_note = words(generic ? kGenericNoteRow : kSimplifiedNoteRow);
  record.reference_heading = words(kReferenceHeadingRow);
  if (IsLining(family) && !generic) record.base_heading = words(kBaseCurveRow);
  record.remarks_title = words(kMessagesTitleRow);
  record.section_title = words(kLayersTitleRow);
  record.width_caption = words(kElementWidthRow);
  record.height_caption = words(kElementHeightRow);
  record.layer_sheet = words(kProjectSheetRow);
  record.more_layers = words(kLayersOnSheetRow) + " \"" + record.layer_sheet + "\"";
  record.section_sheet = words(kSectionSheetRow);
  record.section_elsewhere = words(kSectionOnSheetRow) + " \"" + record.section_sheet + "\"";
  record.part_heading = words(kPartHeadingRow);
  record.resilient_name = words(kResilientMaterialTabRow);
  record.resilient_heading = words(kResilientHeadingRow);
}

}  // namespace

ReportRecord ReportRecordOf(const Setup& setup, const elements::ResultSet& result,
                            const ElementTotals& totals, const Words& words, ReportPictures pictures,
                            const ComparedStructures& compared, const Provenance& provenance) {
  ReportRecord record{.information = setup.information,
                      .result = result,
                      .chart = std::move(pictures.chart),
                      .section = std::move(pictures.section),
                      .data = CalculationDataOf(setup, words, provenance)};
  if (!setup.calculation) return record;
  const Family family = elements::RowOf(*setup.calculation).family;
  record.footer = FootText(setup.information, provenance);
  record.date = provenance.date;
  record.engineer = setup.information[kEngineerRow].value;
  record.signer_caption = words(kSignerCaptionRow);
  record.properties = {.title = record.information[kProjectRow].value,
                       .author = record.engineer,
                       .subject = words(kDocumentSubjectRow),
                       .created = provenance.iso_date,
                       .program = provenance.program};
  record.family = family;
  FillLabels(setup, family, words, record);
  if (record.properties.title.empty()) record.properties.title = record.title;
  FillBands(setup, family, record);
  FillDimensions(setup, family, record);
  record.result_line = ResultLine(family, result);
  record.improvement_line = Improvement(family, result);
  record.messages = Joined(RangeNotes(*setup.calculation, result, words));
  record.resulting_line = ResultingElementLine(*setup.calculation, result, words);
  record.rating_note = RatingNote(family, result, words);
  record.further_line = FurtherNumbersLine(*setup.calculation, result);
  record.laboratory_data = Compared(words(kLaboratoryFrameRow), compared.laboratory);
  record.in_situ_data = Compared(words(kInSituRow), compared.in_situ);
  if (family == Family::kFacade) {
    record.surface_mass_kg_m2 = result.mass_kg_m2;
  } else {
    record.totals = totals;
    record.surface_mass_kg_m2 = totals.surface_mass_kg_m2;
  }
  record.structure = StructureRowsOf(setup, words);
  if (IsLining(family)) {
    record.base_element = FullName({.name = setup.base.name, .description = setup.base.description});
  }
  if (elements::RowOf(*setup.calculation).Reads(elements::Field::kHanger)) {
    record.hanger = HangerText(setup.hanger, words);
    record.hanger_line = WithoutColon(words(kConnectionTypeRow)) + ": " + record.hanger;
  }
  return record;
}

void PutStudio(ReportRecord& record, const Letterhead& letterhead, std::optional<Picture> logo,
               std::optional<Picture> signature) {
  record.letterhead = letterhead;
  record.logo = std::move(logo);
  record.signature = std::move(signature);
  if (record.engineer.empty()) record.engineer = letterhead.signer;
  if (!letterhead.name.empty()) record.properties.author = letterhead.name;
}

ReportRecord InBoth(ReportRecord italian, const ReportRecord& english) {
  using Text = std::string ReportRecord::*;
  // Where the layers go on is told with the name of a sheet, which is one.
  for (const Text text : {&ReportRecord::title,           &ReportRecord::insulation,
                          &ReportRecord::kind_of_element, &ReportRecord::element_type,
                          &ReportRecord::theory,          &ReportRecord::standard,
                          &ReportRecord::band_heading,    &ReportRecord::reference_heading,
                          &ReportRecord::base_heading,    &ReportRecord::remarks_title,
                          &ReportRecord::section_title,   &ReportRecord::width_caption,
                          &ReportRecord::height_caption,  &ReportRecord::part_heading,
                          &ReportRecord::resilient_name,  &ReportRecord::resilient_heading,
                          &ReportRecord::signer_caption,  &ReportRecord::hanger,
                          &ReportRecord::hanger_line,     &ReportRecord::resulting_line,
                          &ReportRecord::laboratory_data, &ReportRecord::in_situ_data,
                          &ReportRecord::base_element})
    italian.*text = InBoth(italian.*text, english.*text);
  for (const Text text : {&ReportRecord::description, &ReportRecord::rating_note, &ReportRecord::messages,
                          &ReportRecord::generic_note})
    italian.*text = InBoth(italian.*text, english.*text, "\n");
  for (std::size_t i = 0; i < italian.information.size(); ++i)
    italian.information[i].caption = InBoth(italian.information[i].caption, english.information[i].caption);
  italian.properties.subject = InBoth(italian.properties.subject, english.properties.subject);
  for (std::size_t i = 0; i < italian.structure.size() && i < english.structure.size(); ++i) {
    italian.structure[i].name = InBoth(italian.structure[i].name, english.structure[i].name);
    italian.structure[i].note = InBoth(italian.structure[i].note, english.structure[i].note);
  }
  italian.data = InBoth(std::move(italian.data), english.data);
  return italian;
}

void AddConfidence(ReportRecord& record, const Message& confidence, const Words& words) {
  for (const MessageLine& line : confidence)
    record.messages += (record.messages.empty() ? "" : "\n") + InWords(line, words);
}

std::string SectionDescription(double thickness_mm, const Words& words) {
  return words(kSectionPictureRow) + " " + FormatShortest(thickness_mm) + " mm";
}

std::string ChartDescription(const Setup& setup, const elements::ResultSet& result, const Words& words) {
  if (!setup.calculation) return {};
  const Family family = elements::RowOf(*setup.calculation).family;
  return words(family == Family::kImpact ? kImpactChartRow : kAirborneChartRow) + " " +
         ResultLine(family, result);
}

}  // namespace velmar::presentation
