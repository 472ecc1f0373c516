#include "manual_builder/manual_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QFont>
#include <QImageReader>
#include <QPainter>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace velmar::manual {
namespace {

// The document counts in points: sizes of letters are given as its units.
constexpr QSizeF kText = PageLook::kText;
constexpr int kTextPoints = 10;
constexpr int kFootPoints = 8;
constexpr int kCodePoints = 8;
constexpr int kWideTablePoints = 8;
constexpr int kWideTableColumns = 5;  ///< from as many on a table is wide
constexpr double kLineHeightPercent = 128.0;
constexpr double kTableLine = 110.0;   ///< of the letters' height, per cent
constexpr double kPictureWidth = 0.8;  ///< of the text's width, at most
constexpr double kPointsAPixel = 0.45;
constexpr double kSmallestPicture = 0.65;  ///< of its size, where it finds no room otherwise
constexpr double kAbovePicture = 8.0;
/// A heading or table that starts lower on its page than this goes to the next one.
constexpr double kLowestHeading = 0.86;
constexpr double kLowestTable = 0.8;

const QColor kInk(0x16, 0x25, 0x4B);
const QColor kQuiet(0x6B, 0x72, 0x80);
const QColor kRule(0xC8, 0xCC, 0xD4);
const QColor kHeadGround(0xEE, 0xF1, 0xF6);
const QColor kCodeGround(0xF4, 0xF5, 0xF7);

/// Size and space above of a heading, by its level.
struct HeadingLook {
  int points = 0;
  double above = 0.0;
  double below = 0.0;
};
constexpr int kChapterLevel = 2;
constexpr std::array kHeadings = {HeadingLook{22, 0.0, 12.0}, HeadingLook{17, 0.0, 10.0},
                                  HeadingLook{12, 14.0, 4.0}};

const HeadingLook& LookOf(int level) {
  const auto place = static_cast<std::size_t>(level - 1);
  return place < kHeadings.size() ? kHeadings.at(place) : kHeadings.back();
}

template <typename Visit>
void ForEachFragment(const QTextBlock& block, Visit&& visit) {
  for (auto it = block.begin(); !it.atEnd(); ++it) visit(it.fragment());
}

bool IsCode(const QTextBlock& block) {
  return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) ||
         block.blockFormat().nonBreakableLines();
}

void DressCode(const QTextBlock& block) {
  QTextCursor cursor(block);
  QTextBlockFormat look;
  look.setNonBreakableLines(false);
  look.setBackground(kCodeGround);
  look.setLeftMargin(6.0);
  look.setLineHeight(kLineHeightPercent, QTextBlockFormat::ProportionalHeight);
  cursor.mergeBlockFormat(look);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  QTextCharFormat letters;
  letters.setFontFamilies({"Liberation Mono"});
  letters.setProperty(QTextFormat::FontPixelSize, kCodePoints);
  cursor.mergeCharFormat(letters);
}

void DressHeading(const QTextBlock& block) {
  const HeadingLook& look = LookOf(block.blockFormat().headingLevel());
  QTextCursor cursor(block);
  QTextBlockFormat space;
  space.setTopMargin(look.above);
  space.setBottomMargin(look.below);
  cursor.mergeBlockFormat(space);
  std::vector<QTextFragment> fragments;
  ForEachFragment(block, [&fragments](const QTextFragment& fragment) { fragments.push_back(fragment); });
  for (const QTextFragment& fragment : fragments) {
    QTextCharFormat letters = fragment.charFormat();
    // Relative to the text, which would win over a size.
    letters.clearProperty(QTextFormat::FontSizeAdjustment);
    letters.setProperty(QTextFormat::FontPixelSize, look.points);
    letters.setFontWeight(QFont::Bold);
    letters.setForeground(kInk);
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(letters);
  }
}

void BreakBefore(const QTextBlock& block) {
  QTextBlockFormat look;
  look.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  QTextCursor(block).mergeBlockFormat(look);
}

void DressText(const QTextBlock& block) {
  QTextCursor cursor(block);
  QTextBlockFormat look;
  look.setLineHeight(kLineHeightPercent, QTextBlockFormat::ProportionalHeight);
  look.setTopMargin(0.0);
  look.setBottomMargin(block.textList() != nullptr ? 3.0 : 7.0);
  cursor.mergeBlockFormat(look);
}

/// How the width of `table` is shared, in hundredths, by what its columns hold: words are not broken, long
/// texts are.
QList<QTextLength> WidthsOf(const QTextTable& table) {
  constexpr qsizetype kLongestLine = 36;  // letters
  constexpr qsizetype kMargin = 2;
  constexpr qsizetype kHeadMargin = 4;  // thick letters
  std::vector<qsizetype> letters(static_cast<std::size_t>(table.columns()), 0);
  for (int column = 0; column < table.columns(); ++column) {
    qsizetype& widest = letters[static_cast<std::size_t>(column)];
    for (int row = 0; row < table.rows(); ++row) {
      const QString text = table.cellAt(row, column).firstCursorPosition().block().text();
      for (const QString& word : text.split(' '))
        widest = std::max(widest, word.size() + (row > 0 ? kMargin : kHeadMargin));
      if (row > 0) widest = std::max(widest, std::min(text.size(), kLongestLine) + kMargin);
    }
  }
  const qsizetype all = std::accumulate(letters.begin(), letters.end(), qsizetype{0});
  QList<QTextLength> widths;
  for (const qsizetype of_column : letters) {
    widths += QTextLength(QTextLength::PercentageLength,
                          100.0 * static_cast<double>(of_column) / static_cast<double>(all));
  }
  return widths;
}

/// The heading that a block belongs under, or the first of several that stand together; the block itself
/// where it follows text.
QTextBlock FirstHeadingAbove(QTextBlock block) {
  while (block.previous().isValid() && block.previous().blockFormat().headingLevel() > 0)
    block = block.previous();
  return block;
}

/// What follows a heading and those below it.
QTextBlock TextBelow(const QTextBlock& heading) {
  QTextBlock text = heading.next();
  while (text.isValid() && text.blockFormat().headingLevel() > 0) text = text.next();
  return text;
}

bool Breaks(const QTextBlock& block) {
  return (block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) != 0;
}

}  // namespace

ManualPages::ManualPages(const QString& markdown, const QString& folder) {
  QFont letters("Liberation Sans");
  letters.setPixelSize(kTextPoints);
  letters.setHintingPreference(QFont::PreferNoHinting);
  document_.setDefaultFont(letters);
  document_.setBaseUrl(QUrl::fromLocalFile(folder + '/'));
  document_.setDocumentMargin(0.0);
  document_.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
  LeaveOutTitle();
  DressBlocks();
  DressPictures(folder);
  DressTables();
  document_.setPageSize(kText);
  KeepTogether();
  FindHeadings();
  FindLinks();
}

void ManualPages::LeaveOutTitle() {
  if (document_.begin().blockFormat().headingLevel() != 1) return;
  QTextCursor cursor(document_.begin());
  cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
  const QTextBlockFormat look = cursor.blockFormat();
  cursor.removeSelectedText();
  cursor.setBlockFormat(look);
}

void ManualPages::DressBlocks() {
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0) {
      DressHeading(block);
    } else if (IsCode(block)) {
      DressCode(block);
    } else {
      DressText(block);
    }
  }
}

void ManualPages::DressPictures(const QString& folder) {
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    ForEachFragment(block, [this, &block, &folder](const QTextFragment& fragment) {
      if (!fragment.charFormat().isImageFormat()) return;
      QTextImageFormat picture = fragment.charFormat().toImageFormat();
      const QString words = picture.property(QTextFormat::ImageAltText).toString();
      if (!QFileInfo::exists(folder + '/' + picture.name())) missing_pictures_ += picture.name();
      // A small window is not drawn larger than it is sharp.
      const double natural = QImageReader(folder + '/' + picture.name()).size().width() * kPointsAPixel;
      picture.setWidth(std::min(kText.width() * kPictureWidth, natural));
      QTextCursor cursor(&document_);
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
      QTextBlockFormat centred;
      centred.setAlignment(Qt::AlignHCenter);
      centred.setTopMargin(kAbovePicture);
      centred.setBottomMargin(10.0);
      // A line height in parts of the line would stretch the picture's own.
      centred.setLineHeight(0.0, QTextBlockFormat::SingleHeight);
      cursor.mergeBlockFormat(centred);
      cursor.setPosition(block.position() + block.length() - 1);
      QTextCharFormat caption;
      caption.setProperty(QTextFormat::FontPixelSize, kFootPoints + 1);
      caption.setForeground(kQuiet);
      if (!words.isEmpty()) cursor.insertText(QString(QChar::LineSeparator) + words, caption);
    });
  }
}

void ManualPages::DressTables() {
  for (QTextFrame* frame : document_.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat look = table->format();
    look.setWidth(QTextLength(QTextLength::PercentageLength, 100.0));
    look.setBorder(1.0);
    look.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    look.setBorderBrush(kRule);
    look.setBorderCollapse(true);
    look.setCellPadding(3.0);
    look.setCellSpacing(0.0);
    look.setTopMargin(4.0);
    look.setBottomMargin(10.0);
    look.setHeaderRowCount(1);
    look.setColumnWidthConstraints(WidthsOf(*table));
    table->setFormat(look);
    for (int row = 0; row < table->rows(); ++row) {
      for (int column = 0; column < table->columns(); ++column) {
        QTextTableCell cell = table->cellAt(row, column);
        QTextCursor cursor = cell.firstCursorPosition();
        QTextBlockFormat tight;
        tight.setBottomMargin(0.0);
        tight.setAlignment(Qt::AlignLeft);
        tight.setLineHeight(kTableLine, QTextBlockFormat::ProportionalHeight);
        cursor.mergeBlockFormat(tight);
        if (table->columns() >= kWideTableColumns) {
          cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
          QTextCharFormat small;
          small.setProperty(QTextFormat::FontPixelSize, kWideTablePoints);
          cursor.mergeCharFormat(small);
        }
        if (row > 0) continue;
        QTextTableCellFormat ground = cell.format().toTableCellFormat();
        ground.setBackground(kHeadGround);
        cell.setFormat(ground);
      }
    }
  }
}

double ManualPages::TopOf(const QTextBlock& block) const {
  const QTextFrame* frame = QTextCursor(block).currentFrame();
  const QAbstractTextDocumentLayout& layout = *document_.documentLayout();
  return frame != nullptr && frame != document_.rootFrame()
             ? layout.frameBoundingRect(const_cast<QTextFrame*>(frame)).top()
             : layout.blockBoundingRect(block).top();
}

void ManualPages::MoveToNextPage(const QTextBlock& block) {
  BreakBefore(block);
  // What follows has no place until it is laid out anew.
  document_.markContentsDirty(block.position(), document_.characterCount() - block.position());
}

// A picture is one line of its block, its caption the others.
void ManualPages::FitPicture(const QTextBlock& block) {
  const auto picture = block.begin().fragment();
  if (!picture.isValid() || !picture.charFormat().isImageFormat()) return;
  const QAbstractTextDocumentLayout& layout = *document_.documentLayout();
  layout.blockBoundingRect(block);
  const QTextLayout& lines = *block.layout();
  if (lines.lineCount() == 0) return;
  const double top = lines.position().y() + lines.lineAt(0).y();
  const double height = lines.lineAt(0).height();
  double caption = 0.0;
  for (int i = 1; i < lines.lineCount(); ++i) caption += lines.lineAt(i).height();
  const QRectF last = lines.lineAt(lines.lineCount() - 1).rect().translated(lines.position());
  const auto page_of = [](double y) { return static_cast<int>(y / kText.height()); };
  const QTextBlock before = block.previous();
  if (!before.isValid() || Breaks(block)) return;
  const QTextFrame* frame = QTextCursor(before).currentFrame();
  const QRectF above = frame != nullptr && frame != document_.rootFrame()
                           ? layout.frameBoundingRect(const_cast<QTextFrame*>(frame))
                           : layout.blockBoundingRect(before);
  const double foot = above.bottom() - 0.5;
  if (page_of(top) == page_of(foot) && page_of(last.bottom() - 0.5) == page_of(foot)) return;
  // The line is higher than its picture by what letters have below it.
  constexpr double kSpare = 12.0;
  const double room = kText.height() - std::fmod(foot, kText.height()) - kAbovePicture - caption - kSpare;
  const double part = room / height;
  if (part < kSmallestPicture || part >= 1.0) return MoveToNextPage(block);
  QTextImageFormat smaller = picture.charFormat().toImageFormat();
  smaller.setWidth(smaller.width() * part);
  QTextCursor cursor(&document_);
  cursor.setPosition(picture.position());
  cursor.setPosition(picture.position() + picture.length(), QTextCursor::KeepAnchor);
  cursor.setCharFormat(smaller);
  document_.markContentsDirty(block.position(), document_.characterCount() - block.position());
}

// From above downwards: what is moved moves all that follows.
void ManualPages::KeepTogether() {
  const auto page_of = [this](const QTextBlock& block) {
    return static_cast<int>(TopOf(block) / kText.height());
  };
  const auto height_on_page = [this](const QTextBlock& block) {
    return std::fmod(TopOf(block), kText.height()) / kText.height();
  };
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level == kChapterLevel && block.position() > 0) BreakBefore(block);
  }
  document_.markContentsDirty(0, document_.characterCount());
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0) {
      const QTextBlock text = TextBelow(block);
      // A picture or a table that finds no room under its heading would leave it alone at the foot.
      const bool alone = text.isValid() && page_of(text) != page_of(block);
      const QTextBlock first = FirstHeadingAbove(block);
      if ((alone || height_on_page(block) >= kLowestHeading) && !Breaks(first)) MoveToNextPage(first);
      continue;
    }
    FitPicture(block);
    QTextTable* table = QTextCursor(block).currentTable();
    if (table == nullptr || table->firstPosition() != block.position()) continue;
    if (height_on_page(block) < kLowestTable) continue;
    const QTextBlock first = FirstHeadingAbove(block);
    if (first != block) {
      if (!Breaks(first)) MoveToNextPage(first);
      continue;
    }
    QTextTableFormat look = table->format();
    look.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    table->setFormat(look);
    document_.markContentsDirty(block.position(), document_.characterCount() - block.position());
  }
}

void ManualPages::FindHeadings() {
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level == 0) continue;
    const double top = TopOf(block);
    const int page = static_cast<int>(top / kText.height());
    const std::string title = block.text().toStdString();
    headings_.push_back({{level, title, presentation::AnchorOf(title)},
                         page,
                         PageLook::kTopMargin + top - page * kText.height()});
  }
}

void ManualPages::FindLinks() {
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    ForEachFragment(block, [this, &block](const QTextFragment& fragment) {
      const QString address = fragment.charFormat().anchorHref();
      if (!address.startsWith('#')) return;
      const QPointF origin = document_.documentLayout()->blockBoundingRect(block).topLeft();
      const int from = fragment.position() - block.position();
      const int to = from + fragment.length();
      for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        const int first = std::max(from, line.textStart());
        const int last = std::min(to, line.textStart() + line.textLength());
        if (first >= last) continue;
        QRectF place(line.cursorToX(first), line.y(), line.cursorToX(last) - line.cursorToX(first),
                     line.height());
        place.translate(origin);
        const int page = static_cast<int>(place.top() / kText.height());
        place.translate(PageLook::kSideMargin, PageLook::kTopMargin - page * kText.height());
        links_.push_back({page, place, address.mid(1).toStdString()});
      }
    });
  }
}

std::map<int, int> ManualPages::PagesOf(const QString& term) const {
  std::map<int, int> pages;
  for (QTextCursor hit = document_.find(term, 0, QTextDocument::FindWholeWords); !hit.isNull();
       hit = document_.find(term, hit, QTextDocument::FindWholeWords)) {
    const QTextBlock block = hit.block();
    const QTextLine line = block.layout()->lineForTextPosition(hit.selectionStart() - block.position());
    const double top =
        document_.documentLayout()->blockBoundingRect(block).top() + (line.isValid() ? line.y() : 0.0);
    ++pages[static_cast<int>(top / kText.height())];
  }
  return pages;
}

bool ManualPages::HoldsWholeText() const {
  const QRectF last = document_.documentLayout()->blockBoundingRect(document_.lastBlock());
  return last.height() > 0.0 && last.bottom() <= Count() * kText.height();
}

QString ManualPages::CaptionAlone() const {
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    const QTextFragment picture = block.begin().fragment();
    if (!picture.isValid() || !picture.charFormat().isImageFormat()) continue;
    document_.documentLayout()->blockBoundingRect(block);
    const QTextLayout& lines = *block.layout();
    const auto page_of = [&lines](int line) {
      return static_cast<int>((lines.position().y() + lines.lineAt(line).y() + 1.0) / kText.height());
    };
    if (lines.lineCount() > 1 && page_of(0) != page_of(lines.lineCount() - 1))
      return picture.charFormat().toImageFormat().name();
  }
  return {};
}

void ManualPages::PaintPage(QPainter& painter, int page) const {
  painter.save();
  painter.translate(PageLook::kSideMargin, PageLook::kTopMargin - page * kText.height());
  const QRectF seen(0.0, page * kText.height(), kText.width(), kText.height());
  // Two units less: a picture that begins on the next page would show its edge.
  painter.setClipRect(seen.adjusted(0.0, 0.0, 0.0, -2.0));
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = seen;
  context.palette.setColor(QPalette::Text, Qt::black);
  document_.documentLayout()->draw(&painter, context);
  painter.restore();
}

void PaintFoot(QPainter& painter, const QString& product, const QString& number) {
  QFont letters("Liberation Sans");
  letters.setPixelSize(kFootPoints);
  letters.setHintingPreference(QFont::PreferNoHinting);
  painter.setFont(letters);
  painter.setPen(QPen(kRule, 0.5));
  const double line = PageLook::kPage.height() - PageLook::kFootHeight + 14.0;
  painter.drawLine(QPointF(PageLook::kSideMargin, line),
                   QPointF(PageLook::kPage.width() - PageLook::kSideMargin, line));
  painter.setPen(kQuiet);
  const QRectF foot(PageLook::kSideMargin, line + 5.0, kText.width(), 14.0);
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter, product);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, number);
}

}  // namespace velmar::manual
