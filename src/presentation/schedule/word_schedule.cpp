#include "presentation/schedule/word_schedule.h"

#include <algorithm>
#include <map>

#include "presentation/documents/word_content.h"
#include "presentation/documents/word_document.h"
#include "presentation/schedule/word_binder.h"

namespace velmar::presentation {
namespace {

/// Of the text between the margins of an A4 page on its side, in twentieths of a point.
constexpr int kWideText = 14570;

constexpr const char* kSignaturePlace = "A_FIRMA";

std::string DrawingName(std::size_t element) { return "A_DISEGNO_" + std::to_string(element); }

std::string CoverLine(const std::string& caption, const std::string& value) {
  return value.empty() ? value : caption + "\t" + value;
}

Placeholders CoverPlaceholders(const Schedule& schedule, const ScheduleWords& set) {
  const ScheduleCover& cover = schedule.cover;
  return {{"A_TITOLO", cover.title},
          {"A_PROGETTO", CoverLine(set.project, cover.project)},
          {"A_CLIENTE", CoverLine(set.client, cover.client)},
          {"A_STUDIO", CoverLine(set.studio, cover.studio)},
          {"A_DATA", CoverLine(set.date, cover.date)},
          {"A_TITOLO_INDICE", set.contents},
          {"A_TITOLO_QUADRO", set.table},
          {"A_INTESTAZIONE", cover.studio.empty() ? cover.project : cover.studio},
          {"A_PIEDE", cover.title + (cover.date.empty() ? "" : " · " + cover.date)},
          {"A_FIRMA_DATA", cover.date},
          {"A_TECNICO", schedule.signer.name},
          {"A_ALBO", schedule.signer.register_number},
          {kSignaturePlace, ""},
          {"A_PAGINA", set.page},
          {"A_DI", set.of}};
}

std::vector<WordContent> TableContent(const Schedule& schedule, const Words& words,
                                      std::map<std::string, Picture>& drawings) {
  using Kind = WordContent::Kind;
  WordContent table{.kind = Kind::kTable,
                    .table = {.heads = ScheduleHeads(words), .weights = ScheduleWeights()},
                    .table_width = kWideText,
                    .placeholder_column = kScheduleDrawingColumn};
  bool outside = false;
  for (std::size_t i = 0; i < schedule.elements.size(); ++i) {
    const ScheduleElement& element = schedule.elements[i];
    if (!element.failure.empty()) continue;
    outside |= element.outside_range;
    table.table.rows.push_back(ScheduleCells(element, schedule.language));
    table.placeholders.push_back(element.drawing ? DrawingName(i) : std::string());
    if (element.drawing) drawings.emplace(DrawingName(i), *element.drawing);
  }
  if (table.table.rows.empty()) return {};
  std::vector<WordContent> content = {std::move(table)};
  if (outside) content.push_back({.kind = Kind::kText, .text = ScheduleWordsOf(words).outside});
  return content;
}

std::vector<WordContent> FailedContent(const Schedule& schedule, const Words& words) {
  using Kind = WordContent::Kind;
  WordContent table{.kind = Kind::kTable, .table = {.weights = {1.0, 2.4}}, .table_width = kWideText};
  for (const ScheduleElement& element : schedule.elements) {
    if (!element.failure.empty()) table.table.rows.push_back({element.file, element.failure});
  }
  if (table.table.rows.empty()) return {};
  return {{.kind = Kind::kChapter, .text = ScheduleWordsOf(words).failed}, std::move(table)};
}

}  // namespace

std::string WriteWordSchedule(std::string_view docx, const Schedule& schedule,
                              const std::vector<WordChapter>& chapters, const Words& words) {
  WordDocument document(docx);
  std::map<std::string, Picture> drawings;
  document.ReplaceByContent("A_QUADRO", TableContent(schedule, words, drawings));
  document.ReplaceByContent("A_NON_RIUSCITI", FailedContent(schedule, words));
  if (schedule.signer.signature) drawings.emplace(kSignaturePlace, *schedule.signer.signature);
  document.ReplaceByPictures(drawings);
  document.Replace(CoverPlaceholders(schedule, ScheduleWordsOf(words)));
  document.SetProperties(schedule.properties);
  WordBinder binder(document.Bytes());
  for (const WordChapter& chapter : chapters) binder.Add(chapter.heading, chapter.docx);
  return binder.Bytes();
}

std::set<std::string> SchedulePlaceholders() {
  std::set<std::string> known = {"A_INDICE", "A_QUADRO", "A_NON_RIUSCITI", "A_CAPITOLI"};
  for (const auto& [name, value] : CoverPlaceholders({}, {})) known.insert(name);
  return known;
}

}  // namespace velmar::presentation
