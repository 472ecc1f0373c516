#include "presentation/reports/excel_report.h"

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "presentation/documents/cell_text.h"
#include "presentation/documents/workbook.h"
#include "presentation/reports/data_sheet.h"
#include "presentation/reports/layer_table.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {
namespace {

constexpr CellPlace kTitle{1, 1};
constexpr CellPlace kKind{4, 4};
constexpr CellPlace kTheory{5, 4};
constexpr CellPlace kElementType{6, 4};
constexpr CellPlace kDescription{7, 4};
/// The template joins the cells of the description up to here.
constexpr int kLastDescriptionColumn = 10;
constexpr CellPlace kSectionTitle{12, 8};
constexpr CellPlace kSection{13, 8};
constexpr CellPlace kSurfaceMass{25, 8};
constexpr CellPlace kThickness{27, 8};
constexpr CellPlace kBandHeading{36, 2};
constexpr int kFirstBandRow = 37;
constexpr int kBandColumn = 2;
constexpr CellPlace kGenericNote{40, 3};
constexpr int kLastNoteRow = 56;
constexpr int kReferenceColumn = 3;
constexpr int kBaseColumn = 4;
constexpr CellPlace kFirstCaption{4, 1};
constexpr int kFirstInformationRow = 8;
constexpr int kInformationRows = 4;
constexpr CellPlace kRemarksTitle{28, 8};
constexpr CellPlace kRemarks{29, 8};
constexpr int kLastRemarksRow = 34;
constexpr int kRatingRow = 59;
constexpr int kTermsRow = 60;
constexpr int kWidthRow = 54;
constexpr int kHeightRow = 56;
constexpr int kCaptionColumn = 8;
constexpr int kValueColumn = 9;
constexpr CellPlace kArea{58, 9};
constexpr CellPlace kLogo{1, 8};
constexpr CellPlace kStudioName{2, 1};
constexpr CellPlace kStudioAddress{3, 1};
constexpr CellPlace kSigner{62, 8};
constexpr int kLastSignedRow = 68;
constexpr const char* kOneDecimal = "0.0";
constexpr const char* kWhole = "0";

void SetNumber(Workbook& workbook, CellPlace place, std::optional<double> value, const char* format) {
  if (!value) {
    workbook.Sheet().Clear(place);
    return;
  }
  workbook.Sheet().SetNumber(place, *value);
  workbook.ChangeStyle(place, {.number_format = format});
}

/// A number as entered; its text when it is none.
void SetEntered(Workbook& workbook, CellPlace place, const std::string& text) {
  if (const std::optional<double> number = ParseDecimal(text)) {
    workbook.Sheet().SetNumber(place, *number);
  } else {
    workbook.Sheet().SetText(place, text);
  }
}

/// A dimension behind its caption; neither where the calculation has none.
void SetDimension(Workbook& workbook, int row, const std::string& caption, const std::string& value) {
  workbook.Sheet().SetText({row, kCaptionColumn}, value.empty() ? std::string() : caption);
  SetEntered(workbook, {row, kValueColumn}, value);
}

/// A curve beside the result's: its heading and its values, as far as it has any.
template <typename TextOf>
void WriteFurtherCurve(Workbook& workbook, int column, const std::string& heading, const TextOf& text_of) {
  workbook.Sheet().SetText({kBandHeading.row, column}, heading);
  workbook.Sheet().SetStyle({kBandHeading.row, column}, workbook.Sheet().StyleOf(kBandHeading));
  FitHeight(workbook.Sheet(), kBandHeading.row, heading, column, column);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const CellPlace place{kFirstBandRow + static_cast<int>(band), column};
    workbook.Sheet().SetStyle(place, workbook.Sheet().StyleOf({place.row, kBandColumn}));
    SetNumber(workbook, place, ParseDecimal(text_of(band)), kOneDecimal);
  }
}

void WriteCurves(Workbook& workbook, const ReportRecord& record) {
  if (!record.has_bands) {
    workbook.RemoveCharts();
    return;
  }
  workbook.Sheet().Unmerge(kGenericNote.row, kLastNoteRow, kReferenceColumn, kBaseColumn);
  WriteFurtherCurve(workbook, kReferenceColumn, record.reference_heading,
                    [&](std::size_t band) { return record.bands[band].reference; });
  if (record.base_heading.empty()) {
    workbook.RemoveCurve("D");
    return;
  }
  WriteFurtherCurve(workbook, kBaseColumn, record.base_heading,
                    [&](std::size_t band) { return record.bands[band].base; });
}

/// Project, client and what else is known of the project, in the rows above the layers.
void WriteInformation(Workbook& workbook, const ReportRecord& record) {
  Worksheet& sheet = workbook.Sheet();
  int count = 0;
  for (const elements::ProjectInformationRow& row : record.information) {
    if (row.value.empty() || count == 2 * kInformationRows) continue;
    const int line = kFirstInformationRow + count % kInformationRows;
    const int caption = count < kInformationRows ? 1 : 7;
    const int value = count < kInformationRows ? 3 : 8;
    const int last = count < kInformationRows ? 6 : kLastDescriptionColumn;
    sheet.SetText({line, caption}, row.caption);
    sheet.SetStyle({line, caption}, sheet.StyleOf(kFirstCaption));
    sheet.SetText({line, value}, row.value);
    workbook.ChangeStyle({line, value}, {.horizontal = "left", .wrap = true});
    sheet.MergeRange({line, value}, {line, last});
    FitHeight(sheet, line, row.value, value, last);
    ++count;
  }
}

/// What there is to know of the result, beside the table of layers.
void WriteRemarks(Workbook& workbook, const ReportRecord& record) {
  std::string text = record.resulting_line;
  for (const std::string* line : {&record.improvement_line, &record.messages, &record.rating_note}) {
    if (!line->empty()) text += (text.empty() ? "" : "\n") + *line;
  }
  if (text.empty()) return;
  Worksheet& sheet = workbook.Sheet();
  sheet.SetText(kRemarksTitle, record.remarks_title);
  workbook.ChangeStyle(kRemarksTitle, {.bold = true});
  sheet.SetText(kRemarks, ForPaper(text, record.language));
  workbook.ChangeStyle(kRemarks, {.horizontal = "left", .wrap = true, .at_top = true});
  sheet.MergeRange(kRemarks, {kLastRemarksRow, kLastDescriptionColumn});
}

void WriteBands(Workbook& workbook, const ReportRecord& record) {
  workbook.Sheet().SetText(kBandHeading, record.has_bands ? record.band_heading : std::string());
  for (std::size_t band = 0; band < record.bands.size(); ++band) {
    SetNumber(workbook, {kFirstBandRow + static_cast<int>(band), kBandColumn}, record.bands[band].level_db,
              kOneDecimal);
  }
}

void WriteRatings(Workbook& workbook, const ReportRecord& record) {
  Worksheet& sheet = workbook.Sheet();
  const elements::ResultSet& result = record.result;
  if (record.family == elements::Family::kImpact) {
    sheet.SetText({kRatingRow, 2}, "Ln,w");
    SetNumber(workbook, {kRatingRow, 4}, result.lnw, kOneDecimal);
    sheet.SetText({kTermsRow, 1}, "Ci=");
    SetNumber(workbook, {kTermsRow, 2}, result.ci, kWhole);
    return;
  }
  sheet.SetText({kRatingRow, 2}, "Rw");
  SetNumber(workbook, {kRatingRow, 4}, result.rw, kOneDecimal);
  if (!result.c || !result.ctr) return;
  sheet.SetText({kTermsRow, 1}, "C=");
  SetNumber(workbook, {kTermsRow, 2}, result.c, kWhole);
  sheet.SetText({kTermsRow, 3}, "Ctr=");
  SetNumber(workbook, {kTermsRow, 4}, result.ctr, kWhole);
}

/// The section under the title of the layers, or, where its numbers would be too many for the place, on a
/// sheet of its own.
void WriteSection(Workbook& workbook, const ReportRecord& record) {
  if (record.section.small) {
    workbook.AddPicture(workbook.Sheet(), kSection, *record.section.small);
  } else if (record.section.wide) {
    workbook.Sheet().SetText(kSection, record.section_elsewhere);
    workbook.AddPicture(workbook.AddSheet(record.section_sheet, true, {}), {1, 1}, *record.section.wide);
  }
}

/// The studio over and under the report, and who signs below it.
void WriteStudio(Workbook& workbook, const ReportRecord& record) {
  Worksheet& sheet = workbook.Sheet();
  const Letterhead& letterhead = record.letterhead;
  sheet.PutFoot(record.footer + (letterhead.footer.empty() ? "" : "\n" + letterhead.footer));
  if (record.logo) workbook.AddPicture(sheet, kLogo, *record.logo);
  if (!letterhead.name.empty()) {
    sheet.SetText(kStudioName, letterhead.name);
    workbook.ChangeStyle(kStudioName, {.bold = true});
  }
  if (!letterhead.address.empty()) {
    std::string line = letterhead.address;
    for (std::size_t at = line.find('\n'); at != std::string::npos; at = line.find('\n', at))
      line.replace(at, 1, ", ");
    sheet.SetText(kStudioAddress, line);
    sheet.SetStyle(kStudioAddress, sheet.StyleOf(kFirstCaption));
  }
  const bool signs = !letterhead.signer.empty() || !letterhead.register_number.empty() || record.signature;
  if (!record.signs || !signs) return;
  CellPlace place = kSigner;
  for (const std::string* text : {&record.signer_caption, &record.engineer, &letterhead.register_number}) {
    if (text->empty()) continue;
    sheet.SetText(place, *text);
    if (text == &record.signer_caption) sheet.SetStyle(place, sheet.StyleOf(kFirstCaption));
    ++place.row;
  }
  if (record.signature) workbook.AddPicture(sheet, place, *record.signature);
  workbook.PrintDownTo(kLastSignedRow);
}

}  // namespace

void FillExcelReport(Workbook& workbook, const ReportRecord& record) {
  Worksheet& sheet = workbook.Sheet();
  sheet.SetText(kTitle, record.title);
  sheet.SetText(kKind, record.kind_of_element);
  sheet.SetText(kTheory, record.theory);
  sheet.SetText(kElementType, record.element_type);
  const std::string description = ForPaper(record.description, record.language);
  sheet.SetText(kDescription, description);
  FitHeight(sheet, kDescription.row, description, kDescription.column, kLastDescriptionColumn);
  // A facade has no section.
  if (record.family != elements::Family::kFacade) sheet.SetText(kSectionTitle, record.section_title);
  WriteLayerTable(workbook, record);
  SetNumber(workbook, kSurfaceMass, record.surface_mass_kg_m2, kOneDecimal);
  if (record.totals) {
    SetNumber(workbook, kThickness, record.totals->thickness_mm, kOneDecimal);
  } else {
    sheet.SetText(kThickness, kNoValue);
  }
  WriteBands(workbook, record);
  if (!record.generic_note.empty()) sheet.SetText(kGenericNote, record.generic_note);
  WriteRatings(workbook, record);
  SetDimension(workbook, kWidthRow, record.width_caption, record.width);
  SetDimension(workbook, kHeightRow, record.height_caption, record.height);
  SetEntered(workbook, kArea, record.area.empty() ? kNoValue : record.area);
  WriteCurves(workbook, record);
  WriteInformation(workbook, record);
  WriteRemarks(workbook, record);
  WriteSection(workbook, record);
  WriteStudio(workbook, record);
  workbook.SetProperties(record.properties);
  WriteDataSheet(workbook, record.data, record.language);
}

std::string WriteExcelReport(std::string_view xlsx, const ReportRecord& record) {
  Workbook workbook(xlsx);
  FillExcelReport(workbook, record);
  return workbook.Bytes();
}

}  // namespace velmar::presentation
