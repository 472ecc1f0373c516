#include "presentation/schedule/excel_schedule.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "foundation/utf8.h"
#include "presentation/documents/cell_text.h"
#include "presentation/documents/workbook.h"
#include "presentation/reports/excel_report.h"

namespace velmar::presentation {
namespace {

/// With a drawing in it, in points.
constexpr double kDrawnRowHeight = 36.0;
/// Sheets beside a chapter's are named after it; the name must leave them room.
constexpr std::size_t kLongestChapterName = 14;
const std::vector<double> kWidths = {9, 44, 17, 10, 11, 9, 6, 6, 10, 6, 11, 15, 22};
constexpr const char* kOneDecimal = "0.0";
constexpr const char* kOutside = "0.0\" *\"";
constexpr const char* kWhole = "0";

/// The records name further sheets; those of a chapter are called after it.
void NameFurtherSheets(Workbook& workbook, ReportRecord& record) {
  const auto rename = [&](std::string& sheet, std::string& told) {
    const std::string name = workbook.FreeSheetName(workbook.SheetName() + " " + sheet);
    if (const std::size_t at = told.find('"' + sheet + '"'); at != std::string::npos)
      told.replace(at + 1, sheet.size(), name);
  };
  rename(record.layer_sheet, record.more_layers);
  rename(record.section_sheet, record.section_elsewhere);
}

class FrontSheet {
 public:
  FrontSheet(Workbook& workbook, Worksheet& sheet) : workbook_(workbook), sheet_(sheet) {}

  void Title(const std::string& text) {
    sheet_.SetText({row_, 1}, text);
    workbook_.ChangeStyle(sheet_, {row_, 1}, {.bold = true});
    ++row_;
  }

  void Line(const std::string& caption, const std::string& value) {
    if (value.empty()) return;
    sheet_.SetText({row_, 1}, caption);
    sheet_.SetText({row_, 2}, value);
    ++row_;
  }

  void Note(const std::string& text) {
    sheet_.SetText({row_, 1}, text);
    workbook_.ChangeStyle(sheet_, {row_, 1}, {.horizontal = "left", .wrap = true});
    const int last = static_cast<int>(kScheduleColumns);
    sheet_.Merge(row_, 1, last);
    FitHeight(sheet_, row_, text, 1, last);
    ++row_;
  }

  void Space() { ++row_; }

  /// The row of the heads.
  int HeadRow() const { return heads_; }

  void Signature(const std::string& caption, const ScheduleSigner& signer) {
    if (!signer.Signs()) return;
    Space();
    Line(caption, signer.name.empty() ? signer.register_number : signer.name);
    if (!signer.name.empty() && !signer.register_number.empty())
      sheet_.SetText({row_++, 2}, signer.register_number);
    if (signer.signature) workbook_.AddPicture(sheet_, {row_, 2}, *signer.signature);
  }

  void Heads(const std::vector<std::string>& heads) {
    for (std::size_t i = 0; i < heads.size(); ++i) {
      const CellPlace place{row_, static_cast<int>(i) + 1};
      sheet_.SetText(place, heads[i]);
      Frame(place, {.horizontal = "center", .wrap = true, .bold = true});
    }
    sheet_.SetHeight(row_, 30.0);
    sheet_.Freeze(row_);
    heads_ = row_++;
  }

  /// @param sheet the sheet of its chapter
  void Element(const ScheduleElement& element, const std::string& sheet) {
    const std::vector<std::string> cells = ScheduleCells(element);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const CellPlace place{row_, static_cast<int>(i) + 1};
      sheet_.SetText(place, i == kScheduleDrawingColumn && element.drawing ? std::string() : cells[i]);
      Frame(place, {.horizontal = i < 2 ? "left" : "center", .wrap = true});
    }
    // Numbers as numbers, unrounded.
    const char* rating = element.outside_range ? kOutside : kOneDecimal;
    Number(4, element.thickness_mm, kOneDecimal);
    Number(5, element.mass_kg_m2, kOneDecimal);
    Number(6, element.rw_db, rating);
    Number(7, element.c_db, kWhole);
    Number(8, element.ctr_db, kWhole);
    Number(9, element.lnw_db, rating);
    Number(10, element.ci_db, kWhole);
    Number(11, element.improvement_db, kOneDecimal);
    if (element.drawing) {
      sheet_.SetHeight(row_, kDrawnRowHeight);
      workbook_.AddPicture(sheet_, {row_, static_cast<int>(kScheduleDrawingColumn) + 1}, *element.drawing);
    }
    FitHeight(sheet_, row_, cells[1], 2, 2);
    sheet_.AddLink({row_, 1}, sheet);
    ++row_;
  }

 private:
  void Number(int column, std::optional<double> value, const char* format) {
    if (!value) return;
    sheet_.SetNumber({row_, column}, *value);
    workbook_.ChangeStyle(sheet_, {row_, column}, {.number_format = format});
  }

  void Frame(CellPlace place, StyleChange change) {
    change.left = change.right = change.top = change.bottom = true;
    workbook_.ChangeStyle(sheet_, place, change);
  }

  Workbook& workbook_;
  Worksheet& sheet_;
  int row_ = 1;
  int heads_ = 1;
};

void FillFront(FrontSheet& front, const Schedule& schedule, const std::vector<std::string>& sheets,
               const Words& words) {
  const ScheduleWords set = ScheduleWordsOf(words);
  front.Title(schedule.cover.title);
  front.Line(set.project, schedule.cover.project);
  front.Line(set.client, schedule.cover.client);
  front.Line(set.studio, schedule.cover.studio);
  front.Line(set.date, schedule.cover.date);
  front.Space();
  front.Heads(ScheduleHeads(words));
  auto sheet = sheets.begin();
  bool outside = false;
  for (const ScheduleElement& element : schedule.elements) {
    if (!element.failure.empty()) continue;
    front.Element(element, *sheet++);
    outside |= element.outside_range;
  }
  if (outside) front.Note(set.outside);
  const auto failed = [](const ScheduleElement& element) { return !element.failure.empty(); };
  if (std::ranges::any_of(schedule.elements, failed)) {
    front.Space();
    front.Title(set.failed);
  }
  for (const ScheduleElement& element : schedule.elements) {
    if (failed(element)) front.Note(element.file + ": " + element.failure);
  }
  front.Signature(set.signer, schedule.signer);
}

}  // namespace

std::string WriteExcelSchedule(std::string_view xlsx, const Schedule& schedule,
                               std::vector<ExcelChapter> chapters, const Words& words) {
  Workbook workbook(xlsx);
  std::vector<std::string> sheets;
  for (ExcelChapter& chapter : chapters) {
    workbook.BeginCopy(FirstCharacters(chapter.name, kLongestChapterName));
    sheets.push_back(workbook.SheetName());
    NameFurtherSheets(workbook, chapter.record);
    FillExcelReport(workbook, chapter.record);
    // What was written is not needed any more.
    chapter.record = {};
  }
  Worksheet& sheet = workbook.AddSheet(ScheduleWordsOf(words).table, true, kWidths, false);
  FrontSheet front(workbook, sheet);
  FillFront(front, schedule, sheets, words);
  sheet.SetSelected(true);
  workbook.ReplacePattern(sheet);
  workbook.RepeatOnPages(front.HeadRow());
  // Those that a chapter has set are its own.
  workbook.SetProperties(schedule.properties);
  return workbook.Bytes();
}

}  // namespace velmar::presentation
