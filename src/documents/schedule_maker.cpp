#include "documents/schedule_maker.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "application/project_run.h"
#include "documents/office_reports.h"
#include "documents/template_file.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "presentation/export/document_provenance.h"
#include "presentation/export/report_section.h"
#include "presentation/export/schedule_pdf.h"
#include "presentation/reports/excel_report.h"
#include "presentation/schedule/excel_schedule.h"
#include "presentation/schedule/schedule.h"
#include "presentation/schedule/word_schedule.h"
#include "validation/second_opinion.h"

namespace velmar::documents {
namespace {

namespace fs = std::filesystem;
using presentation::InWords;
using presentation::ScheduleElement;

/// Of the project information.
constexpr std::size_t kProjectRow = 0;
constexpr std::size_t kClientRow = 1;
constexpr std::size_t kEngineerRow = 3;

std::string InLines(const Message& message, const presentation::Words& words) {
  std::string text;
  for (const MessageLine& line : message) text += (text.empty() ? "" : " ") + InWords(line, words);
  return text;
}

/// What a run that gave no result says of it.
Message ReasonOf(const calculation::RunOutcome& outcome) {
  Message reason;
  for (const Message& message : outcome.messages) {
    reason.insert(reason.end(), message.begin(), message.end());
    // The last line of a question is the one that asks.
    if (outcome.status == calculation::RunStatus::kDeclined && !reason.empty()) reason.pop_back();
  }
  if (outcome.status == calculation::RunStatus::kDeclined) reason.push_back({kScheduleDeclinedRow});
  return reason;
}

Message ReasonOf(const std::exception& exception) {
  const auto* failure = dynamic_cast<const Failure*>(&exception);
  if (failure != nullptr) return failure->UserMessage();
  return {{kUnexpectedFailureRow, " " + std::string(exception.what())}};
}

class Maker {
 public:
  Maker(const ScheduleOrder& order, const ScheduleTools& tools, const WatchSchedule& watch)
      : order_(order),
        tools_(tools),
        watch_(watch),
        style_(application::StyleOf(tools.places, order.language, tools.words,
                                    [this](const Message& message) { Remark(message); })) {}

  std::optional<MadeSchedule> Make() {
    if (order_.projects.empty()) throw Failure({{kScheduleNothingRow}}, "no project");
    for (const fs::path& project : order_.projects) {
      if (!GoesOn(project)) return std::nullopt;
      Run(project);
    }
    NameElements(schedule_.elements, InformationOf(kProjectRow));
    FillCover();
    if (std::ranges::all_of(contents_, [](const auto& content) { return !content; })) NothingToWrite();
    const bool bound = order_.format == ScheduleFormat::kExcel ? BindExcel()
                       : order_.format == ScheduleFormat::kPdf ? BindPdf()
                                                               : BindWord();
    if (!bound) return std::nullopt;
    return std::move(made_);
  }

 private:
  bool GoesOn(const fs::path& project) {
    const std::size_t steps = 2 * order_.projects.size() + 1;
    return !watch_ || watch_(done_++, steps, WithReplacements(project.filename().string()));
  }

  void Fail(std::size_t place, Message reason) {
    schedule_.elements[place].failure = InLines(reason, style_.words);
    contents_[place].reset();
    made_.failed.push_back({order_.projects[place], std::move(reason)});
  }

  [[noreturn]] void NothingToWrite() const {
    Message message = {{kScheduleNothingRow}};
    for (const FailedProject& failed : made_.failed) {
      message.push_back({WithReplacements(failed.project.filename().string()) + ":"});
      message.insert(message.end(), failed.reason.begin(), failed.reason.end());
    }
    throw Failure(std::move(message), "no project gives a result");
  }

  void Run(const fs::path& project) {
    const std::size_t place = schedule_.elements.size();
    const std::string file = WithReplacements(project.filename().string());
    schedule_.elements.push_back({.code = std::to_string(place + 1), .file = file});
    contents_.emplace_back();
    try {
      application::ProjectRun run =
          application::RunProject(project, tools_.materials, order_.go_on_outside_ranges);
      if (!run.outcome.result) {
        Fail(place, ReasonOf(run.outcome));
        return;
      }
      contents_.back() = ContentOf(file, std::move(run));
      const ReportContent& content = *contents_.back();
      ScheduleElement element = presentation::ScheduleElementOf(
          content.setup, content.result, {content.totals.thickness_mm, content.totals.surface_mass_kg_m2},
          style_.words, place + 1);
      element.file = file;
      element.drawing = presentation::SectionThumbnailOf(content.setup, style_.words);
      schedule_.elements.back() = std::move(element);
    } catch (const std::exception& exception) {
      Fail(place, ReasonOf(exception));
    }
  }

  ReportContent ContentOf(const std::string& file, application::ProjectRun run) {
    Message confidence = validation::ConfidenceOf(run.setup, run.outcome.result, tools_.accuracy);
    return {.name = fs::path(file).stem().string(),
            .setup = std::move(run.setup),
            .result = *run.outcome.result,
            .totals = run.totals,
            .confidence = std::move(confidence),
            .words = tools_.words,
            .file = file,
            .sources = tools_.sources,
            .tell = [this](const Message& message) { Remark(message); }};
  }

  void Remark(const Message& message) {
    if (std::ranges::count(made_.remarks, message) == 0) made_.remarks.push_back(message);
  }

  /// The row `row` of the information of every project that gave a result; of the others an empty text.
  std::vector<std::string> InformationOf(std::size_t row) const {
    std::vector<std::string> texts;
    for (const auto& content : contents_)
      texts.push_back(content ? content->setup.information.at(row).value : std::string());
    return texts;
  }

  std::string Shared(std::size_t row) const {
    std::vector<std::string> texts;
    for (const auto& content : contents_) {
      if (content) texts.push_back(content->setup.information.at(row).value);
    }
    return presentation::SharedText(texts);
  }

  void FillCover() {
    const presentation::Provenance provenance = presentation::ProvenanceOf({}, {}, {}, style_.language);
    schedule_.language = style_.language;
    schedule_.cover = {.title = order_.title.empty() ? style_.Captions()(kScheduleTitleRow) : order_.title,
                       .project = Shared(kProjectRow),
                       .client = Shared(kClientRow),
                       .studio = style_.studio.words.name,
                       .date = provenance.date};
    const std::string engineer = Shared(kEngineerRow);
    schedule_.signer = {.name = engineer.empty() ? style_.studio.words.signer : engineer,
                        .register_number = style_.studio.words.register_number,
                        .signature = style_.studio.signature};
    schedule_.properties = {
        .title = schedule_.cover.title,
        .author = schedule_.cover.studio.empty() ? schedule_.signer.name : schedule_.cover.studio,
        .subject = style_.Captions()(kDocumentSubjectRow),
        .created = provenance.iso_date,
        .program = provenance.program};
  }

  /// Calls `make` for every project with a result; one that fails there has no chapter after all.
  template <typename Make>
  bool ForEachChapter(const Make& make) {
    for (std::size_t place = 0; place < contents_.size(); ++place) {
      if (!contents_[place]) {
        ++done_;
        continue;
      }
      if (!GoesOn(order_.projects[place])) return false;
      try {
        make(schedule_.elements[place], *contents_[place]);
      } catch (const std::exception& exception) {
        Fail(place, ReasonOf(exception));
      }
    }
    if (std::ranges::all_of(contents_, [](const auto& content) { return !content; })) NothingToWrite();
    return GoesOn({});
  }

  bool BindWord() {
    std::vector<presentation::WordChapter> chapters;
    const bool all = ForEachChapter([&](const ScheduleElement& element, const ReportContent& content) {
      chapters.push_back({ChapterHeading(element), WordReportBytes(tools_.places, style_, content, false)});
    });
    if (!all) return false;
    made_.bytes =
        WithTemplate(application::TemplateFile(tools_.places, presentation::kScheduleTemplateName, style_),
                     [&](const std::string& bytes) {
                       return presentation::WriteWordSchedule(bytes, schedule_, chapters, style_.Captions());
                     });
    return true;
  }

  bool BindExcel() {
    std::vector<presentation::ExcelChapter> chapters;
    const bool all = ForEachChapter([&](const ScheduleElement& element, const ReportContent& content) {
      presentation::ReportRecord record = RecordOf(content, style_, false);
      record.signs = false;
      chapters.push_back({element.code, std::move(record)});
    });
    if (!all) return false;
    made_.bytes = WithTemplate(
        application::TemplateFile(tools_.places, presentation::kExcelTemplateName, style_),
        [&](const std::string& bytes) {
          return presentation::WriteExcelSchedule(bytes, schedule_, std::move(chapters), style_.Captions());
        });
    return true;
  }

  bool BindPdf() {
    std::vector<presentation::PageChapter> chapters;
    const bool all = ForEachChapter([&](const ScheduleElement& element, const ReportContent& content) {
      chapters.push_back(
          {ChapterHeading(element), PageOf(content, style_), presentation::SectionOf(content.setup)});
    });
    if (!all) return false;
    // One signature closes the document, behind the last chapter.
    for (presentation::PageChapter& chapter : chapters) chapter.page.studio.signs = false;
    chapters.back().page.studio.signs = true;
    chapters.back().page.studio.signer = schedule_.signer.name;
    made_.bytes = presentation::SchedulePdf(schedule_, chapters, style_.Captions());
    return true;
  }

  const ScheduleOrder& order_;
  const ScheduleTools& tools_;
  const WatchSchedule& watch_;
  presentation::Schedule schedule_{};
  std::vector<std::optional<ReportContent>> contents_{};  ///< beside the elements of the schedule
  MadeSchedule made_{};
  std::size_t done_ = 0;
  application::DocumentStyle style_;  ///< behind what it tells its remarks to
};

}  // namespace

std::optional<ScheduleFormat> ScheduleFormatOf(std::string_view extension) {
  if (extension == "docx") return ScheduleFormat::kWord;
  if (extension == "xlsx") return ScheduleFormat::kExcel;
  if (extension == "pdf") return ScheduleFormat::kPdf;
  return std::nullopt;
}

std::optional<MadeSchedule> MakeSchedule(const ScheduleOrder& order, const ScheduleTools& tools,
                                         const WatchSchedule& watch) {
  return Maker(order, tools, watch).Make();
}

}  // namespace velmar::documents
