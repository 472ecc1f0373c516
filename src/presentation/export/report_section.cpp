#include "presentation/export/report_section.h"

#include <QPainter>
#include <algorithm>
#include <set>

#include "presentation/drawing/section_drawing.h"
#include "presentation/export/drawn_picture.h"

namespace velmar::presentation {
namespace {

constexpr double kWideMillimetres = 169.0;
/// A wall with few layers leaves the page room for what signs it; floors need theirs for thin layers.
constexpr double kLowMillimetres = 28.0;
constexpr double kHighMillimetres = 33.0;
constexpr std::size_t kMostNumbersInLow = 6;
/// Within the cells from row 13 to row 23 beside the table of layers.
constexpr QSizeF kSmallMillimetres{57.0, 56.0};
constexpr QSizeF kThumbnailMillimetres{26.0, 11.0};
constexpr std::size_t kMostNumbersInSmall = 9;

std::size_t CountOfNumbers(const Section& section) {
  std::set<int> numbers;
  for (const Strip& strip : section.strips) {
    if (strip.number != 0) numbers.insert(strip.number);
  }
  return numbers.size();
}

}  // namespace

ReportSection ReportSectionOf(const elements::Setup& setup, const Words& words, DocumentLanguage language) {
  const Section section = SectionOf(setup, words);
  if (section.strips.empty()) return {};
  const std::string alternative_text = SectionDescription(section.thickness_mm, words);
  const auto picture = [&](const QSizeF& millimetres, const SectionOptions& options) {
    return PictureOf(
        millimetres, alternative_text,
        [&](QPainter& painter, const QRectF& area) { DrawSection(painter, area, section, options); }, true);
  };
  SectionOptions options = PaperOptions(setup, words, language);
  const bool low = !section.horizontal && CountOfNumbers(section) <= kMostNumbersInLow;
  ReportSection drawn{.wide = picture({kWideMillimetres, low ? kLowMillimetres : kHighMillimetres}, options)};
  options.list_names = false;
  if (CountOfNumbers(section) <= kMostNumbersInSmall) drawn.small = picture(kSmallMillimetres, options);
  return drawn;
}

std::optional<Picture> SectionThumbnailOf(const elements::Setup& setup, const Words& words) {
  const Section section = SectionOf(setup);
  if (section.strips.empty()) return std::nullopt;
  return PictureOf(
      kThumbnailMillimetres, SectionDescription(section.thickness_mm, words),
      [&](QPainter& painter, const QRectF& area) {
        DrawSectionStrips(painter, area.adjusted(0.5, 0.5, -0.5, -0.5), section);
      },
      true);
}

std::int64_t ReportSectionWidth() { return Emu(kWideMillimetres); }

}  // namespace velmar::presentation
