#include "shell/manual/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QImage>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFrame>
#include <QTextTable>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "foundation/catalogue_rows.h"
#include "foundation/texts_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr QSize kFirstSize{1080, 720};
constexpr int kContentsWidth = 300;
constexpr int kPictureWidth = 680;
constexpr int kChapterLevel = 2;
constexpr int kLowestLevel = 3;
constexpr double kCellPadding = 4.0;
constexpr double kMargin = 18.0;
constexpr int kManyColumns = 6;
constexpr double kWidestTable = 99.0;  ///< per cent of the page

/// The size on the screen of a picture of `natural` size: none is drawn larger than it is.
QSize ShownSize(const QSize& natural) {
  return natural.width() <= kPictureWidth
             ? natural
             : natural.scaled(kPictureWidth, natural.height(), Qt::KeepAspectRatio);
}

/// The manual's text. A text window would make its pictures smaller without smoothing them.
class ManualText : public QTextBrowser {
 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource || resource.typeId() != QMetaType::QByteArray) return resource;
    const QImage picture = QImage::fromData(resource.toByteArray());
    if (picture.isNull()) return resource;
    const double ratio = devicePixelRatioF();
    QImage shown = picture.scaled((QSizeF(ShownSize(picture.size())) * ratio).toSize(), Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    return shown;
  }
};

}  // namespace

ManualWindow::ManualWindow(const presentation::Words& words, const QString& markdown, const QString& folder,
                           QWidget* parent)
    : QDialog(parent), words_(words) {
  setObjectName("FormManuale");
  setWindowTitle(Text(words_, kHelpMenuRow));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* column = new QVBoxLayout(this);
  auto* bar = new QHBoxLayout;
  back_ = new QPushButton(QStringLiteral("←"));
  back_->setObjectName("CommandIndietro");
  back_->setEnabled(false);
  search_ = new QLineEdit;
  search_->setObjectName("TextCerca");
  search_->setPlaceholderText(Text(words_, kStructureSearchRow));
  search_->setAccessibleName(search_->placeholderText());
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  found_ = new QLabel;
  found_->setObjectName("LabelTrovato");
  bar->addWidget(back_);
  bar->addWidget(search_, 1);
  bar->addWidget(found_);
  column->addLayout(bar);

  auto* sides = new QSplitter(Qt::Horizontal);
  contents_ = new QTreeWidget;
  contents_->setObjectName("Indice");
  contents_->setHeaderHidden(true);
  contents_->setAccessibleName(windowTitle());
  MakeText(markdown, folder);
  FindHeadings(markdown.toStdString());
  FillContents();
  sides->addWidget(contents_);
  sides->addWidget(text_);
  sides->setStretchFactor(1, 1);
  sides->setSizes({kContentsWidth, kFirstSize.width() - kContentsWidth});
  column->addWidget(sides, 1);

  auto* buttons = new QDialogButtonBox;
  auto* pdf = buttons->addButton(Text(words_, kPdfFilesRow), QDialogButtonBox::ActionRole);
  pdf->setObjectName("CommandPdf");
  buttons->addButton(Text(words_, kCloseRow), QDialogButtonBox::RejectRole);
  // Enter belongs to the search.
  for (QAbstractButton* button : buttons->buttons()) static_cast<QPushButton*>(button)->setAutoDefault(false);
  back_->setAutoDefault(false);
  column->addWidget(buttons);

  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(pdf, &QPushButton::clicked, this, &ManualWindow::PdfWanted);
  connect(back_, &QPushButton::clicked, this, &ManualWindow::GoBack);
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (item != nullptr) GoTo(item->data(0, Qt::UserRole).toInt());
  });
  connect(text_, &QTextBrowser::anchorClicked, this,
          [this](const QUrl& link) { ShowChapter(link.fragment(QUrl::FullyDecoded).toStdString()); });
  connect(search_, &QLineEdit::textChanged, found_, &QLabel::clear);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, search_, qOverload<>(&QWidget::setFocus));
  resize(kFirstSize);
}

void ManualWindow::MakeText(const QString& markdown, const QString& folder) {
  text_ = new ManualText;
  text_->setObjectName("TestoManuale");
  text_->setAccessibleName(windowTitle());
  text_->setOpenLinks(false);
  text_->setSearchPaths({folder});
  text_->document()->setBaseUrl(QUrl::fromLocalFile(folder + '/'));
  text_->document()->setDocumentMargin(kMargin);
  text_->document()->setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
  DressText(folder);
}

void ManualWindow::DressText(const QString& folder) {
  QTextDocument& document = *text_->document();
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat look = table->format();
    look.setBorder(1.0);
    look.setBorderCollapse(true);
    look.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    look.setBorderBrush(palette().mid());
    look.setCellPadding(kCellPadding);
    look.setCellSpacing(0.0);
    // A table of many columns fills the page, and would stand over by what its columns are rounded up.
    if (table->columns() >= kManyColumns)
      look.setWidth(QTextLength(QTextLength::PercentageLength, kWidestTable));
    table->setFormat(look);
  }
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    // A long command goes on in the next line: nobody scrolls the whole manual sideways for it.
    if (block.blockFormat().nonBreakableLines()) {
      QTextBlockFormat broken;
      broken.setNonBreakableLines(false);
      QTextCursor(block).mergeBlockFormat(broken);
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      if (!fragment.charFormat().isImageFormat()) continue;
      QTextImageFormat picture = fragment.charFormat().toImageFormat();
      const QSize size = ShownSize(QImageReader(folder + '/' + picture.name()).size());
      picture.setWidth(size.width());
      picture.setHeight(size.height());
      QTextCursor cursor(&document);
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
      break;
    }
  }
}

// The document has the headings in the order of the text.
void ManualWindow::FindHeadings(const std::string& markdown) {
  QTextBlock block = text_->document()->begin();
  for (presentation::ManualHeading& heading : presentation::HeadingsIn(markdown)) {
    while (block.isValid() && block.blockFormat().headingLevel() == 0) block = block.next();
    if (!block.isValid()) return;
    headings_.push_back({std::move(heading), block.position()});
    block = block.next();
  }
}

void ManualWindow::FillContents() {
  QTreeWidgetItem* chapter = nullptr;
  for (const Heading& heading : headings_) {
    const int level = heading.heading.level;
    if (level < kChapterLevel || level > kLowestLevel) continue;
    const QStringList title(QString::fromStdString(heading.heading.title));
    auto* item = level == kChapterLevel || chapter == nullptr ? new QTreeWidgetItem(contents_, title)
                                                              : new QTreeWidgetItem(chapter, title);
    item->setData(0, Qt::UserRole, heading.position);
    item->setToolTip(0, title.constFirst());
    if (level == kChapterLevel) chapter = item;
  }
}

void ManualWindow::GoTo(int position) {
  visited_.push_back(text_->verticalScrollBar()->value());
  back_->setEnabled(true);
  QTextCursor cursor(text_->document());
  cursor.setPosition(position);
  text_->setTextCursor(cursor);
  const double top = text_->document()->documentLayout()->blockBoundingRect(cursor.block()).top();
  text_->verticalScrollBar()->setValue(static_cast<int>(top));
}

void ManualWindow::GoBack() {
  if (visited_.empty()) return;
  text_->verticalScrollBar()->setValue(visited_.back());
  visited_.pop_back();
  back_->setEnabled(!visited_.empty());
}

void ManualWindow::ShowChapter(const std::string& anchor) {
  for (const Heading& heading : headings_) {
    if (heading.heading.anchor == anchor) return GoTo(heading.position);
  }
}

std::string ManualWindow::ChapterShown() const {
  std::string shown;
  for (const Heading& heading : headings_) {
    const QTextBlock block = text_->document()->findBlock(heading.position);
    if (text_->document()->documentLayout()->blockBoundingRect(block).top() >
        text_->verticalScrollBar()->value() + 1.0)
      break;
    shown = heading.heading.anchor;
  }
  return shown;
}

int ManualWindow::CountOf(const QString& wanted) const {
  int count = 0;
  for (QTextCursor hit = text_->document()->find(wanted); !hit.isNull();
       hit = text_->document()->find(wanted, hit))
    ++count;
  return count;
}

void ManualWindow::Search(bool backward) {
  const QString wanted = search_->text();
  if (wanted.isEmpty()) return;
  const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  bool found = text_->find(wanted, flags);
  if (!found) {
    // Once round.
    QTextCursor cursor = text_->textCursor();
    cursor.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    text_->setTextCursor(cursor);
    found = text_->find(wanted, flags);
  }
  found_->setText(QString::number(found ? CountOf(wanted) : 0));
}

bool ManualWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == search_ && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      Search(key->modifiers().testFlag(Qt::ShiftModifier));
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace velmar::shell
