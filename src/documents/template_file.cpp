#include "documents/template_file.h"

#include <cstdint>
#include <map>
#include <set>
#include <system_error>

#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "presentation/documents/outside_links.h"
#include "presentation/documents/package.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/word_document.h"
#include "presentation/documents/workbook.h"
#include "presentation/export/report_chart.h"
#include "presentation/export/report_section.h"
#include "presentation/reports/word_placeholders.h"
#include "presentation/schedule/word_schedule.h"
#include "storage/files/whole_file.h"

namespace velmar::documents {
namespace {

constexpr std::size_t kLargestTemplate = std::size_t{64} << 20U;
constexpr double kEmuPerMillimetre = 36000.0;

std::string Millimetres(std::int64_t emu) {
  return FormatFixed(static_cast<double>(emu) / kEmuPerMillimetre, 0) + " mm";
}

void TellOutside(const presentation::Package& package, Message& findings) {
  for (const presentation::OutsideLink& link : OutsideLinksOf(package))
    findings.push_back({kTemplateOutsideRow, " " + link.kind + " " + WithReplacements(link.target)});
}

Message CheckWord(const std::string& bytes) {
  Message findings;
  TellOutside(presentation::Package(bytes), findings);
  const presentation::WordDocument document(bytes);
  std::set<std::string> known = presentation::KnownPlaceholders();
  known.merge(presentation::SchedulePlaceholders());
  for (const std::string& name : document.Left()) {
    if (!known.contains(name.substr(1, name.size() - 2)))
      findings.push_back({kTemplateUnknownRow, " " + name});
  }
  for (const presentation::BlockMarkers& block : presentation::kBlockMarkers) {
    for (const std::string& marker : document.Unpaired(block.start, block.end))
      findings.push_back({kTemplateUnpairedRow, " " + marker});
  }
  const std::map<std::string, std::int64_t> widths = {
      {"P1_RISULTATOGRAFICO", presentation::ReportChartWidth()},
      {"P2_DISEGNO", presentation::ReportSectionWidth()}};
  for (const presentation::WidePicture& picture : document.WidePictures(widths))
    findings.push_back({kTemplateWidePictureRow, " " + picture.name + ", " + Millimetres(picture.width_emu) +
                                                     " > " + Millimetres(picture.room_emu)});
  return findings;
}

}  // namespace

std::string ReadTemplateFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error))
    throw Failure({{kTemplateMissingRow}, {file.string()}}, "no template " + file.string());
  return storage::ReadWhole(file, kLargestTemplate);
}

std::string WithTemplate(const std::filesystem::path& file,
                         const std::function<std::string(const std::string& bytes)>& use) {
  try {
    return use(ReadTemplateFile(file));
  } catch (const presentation::TemplateFailure& failure) {
    Message message = failure.UserMessage();
    message.push_back({WithReplacements(file.string())});
    throw Failure(std::move(message), failure.what());
  }
}

Message CheckTemplateFile(const std::filesystem::path& file) {
  Message findings;
  WithTemplate(file, [&](const std::string& bytes) {
    const presentation::Package package(bytes);
    if (package.Has("xl/workbook.xml")) {
      presentation::Workbook workbook(bytes);
    } else {
      findings = CheckWord(bytes);
    }
    return std::string();
  });
  return findings;
}

}  // namespace velmar::documents
