#include "shell/printing/print_preview.h"

#include <QAction>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

#include "foundation/message_rows.h"
#include "shell/printing/page_picture.h"

namespace velmar::printing {
namespace {

// What the buttons of the zoom show; their names say it in words.
constexpr const char* kMinus = "\u2212";
constexpr const char* kPlus = "+";

constexpr double kZoomStep = 1.25;
constexpr double kSmallestZoom = 0.1;
constexpr double kLargestZoom = 4.0;
/// Between the page and the edge of the window, in pixels.
constexpr int kMargin = 16;
/// Between two sheets.
constexpr int kSheetGap = 6;
/// Of the screen's height; a portrait page wants a tall window.
constexpr double kHeightShare = 0.9;
constexpr double kPageShape = 0.8;

}  // namespace

PrintPreview::PrintPreview(PreviewOrder order, presentation::Words words, QWidget* parent)
    : QDialog(parent, Qt::Window),
      order_(std::move(order)),
      words_(std::move(words)),
      paper_(order_.paper()),
      room_(new QScrollArea(this)),
      picture_(new QLabel) {
  setObjectName(QStringLiteral("Form12"));
  setWindowTitle(QString::fromStdString(words_(kPreviewRow)));
  setModal(true);
  picture_->setObjectName(QStringLiteral("Picture1"));
  picture_->setAccessibleName(QString::fromStdString(words_(kPrintedPageRow)));
  picture_->setAlignment(Qt::AlignCenter);
  picture_->setMargin(kMargin);
  room_->setWidget(picture_);
  room_->setWidgetResizable(true);
  room_->setBackgroundRole(QPalette::Mid);
  room_->setFrameShape(QFrame::NoFrame);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  QToolBar* bar = MakeToolBar();
  column->addWidget(bar);
  column->addWidget(room_);
  room_->setFocus();
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  const int height = static_cast<int>(kHeightShare * screen.height());
  // No command hides behind the end of the tool bar unless the screen is narrower.
  const int width = std::max(static_cast<int>(kPageShape * height), bar->sizeHint().width());
  resize(std::min(width, screen.width()), height);
}

double PrintPreview::Zoom() const {
  if (zoom_) return *zoom_;
  const QSizeF room = room_->size() - QSize(2 * kMargin, 2 * kMargin);
  return std::clamp(FittingZoom(paper_, room, logicalDpiX()), kSmallestZoom, kLargestZoom);
}

void PrintPreview::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (!zoom_) ShowPage();
}

void PrintPreview::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  ShowPage();
}

void PrintPreview::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QDialog::wheelEvent(event);
  ZoomTo(event->angleDelta().y() > 0 ? Zoom() * kZoomStep : Zoom() / kZoomStep);
  event->accept();
}

QToolBar* PrintPreview::MakeToolBar() {
  auto* bar = new QToolBar(this);
  bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  AddCommand(*bar, "print", kPrintRow, {QKeySequence::Print}, [this] {
    order_.print(this);
    FollowPaper();
  });
  AddCommand(*bar, "save_pdf", kSavePdfRow, {QKeySequence::Save}, [this] { order_.save_pdf(this); });
  AddCommand(*bar, "choose_printer", kChoosePrinterRow, {Qt::CTRL | Qt::SHIFT | Qt::Key_P}, [this] {
    order_.choose_printer(this);
    FollowPaper();
  });
  bar->addSeparator();
  AddCommand(*bar, "zoom_out", kZoomOutRow, {QKeySequence::ZoomOut, Qt::Key_Minus}, [this] {
    ZoomTo(Zoom() / kZoomStep);
  })->setIconText(kMinus);
  AddCommand(*bar, "zoom_in", kZoomInRow, {QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal, Qt::Key_Plus},
             [this] { ZoomTo(Zoom() * kZoomStep); })
      ->setIconText(kPlus);
  AddCommand(*bar, "fit", kFitToWindowRow, {Qt::CTRL | Qt::Key_0}, [this] { ZoomTo(std::nullopt); });
  AddCommand(*bar, "actual_size", kActualSizeRow, {Qt::CTRL | Qt::Key_1}, [this] { ZoomTo(1.0); });
  bar->addSeparator();
  AddCommand(*bar, "close", kCloseRow, {QKeySequence::Close}, [this] { reject(); });
  // A tool bar leaves its buttons out of the tab order.
  for (QAction* action : bar->actions()) {
    auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
    if (button == nullptr) continue;
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->text());
  }
  return bar;
}

QAction* PrintPreview::AddCommand(QToolBar& bar, const char* name, MessageRow row,
                                  const QList<QKeySequence>& keys, std::function<void()> act) {
  QAction* action = bar.addAction(QString::fromStdString(words_(row)));
  action->setObjectName(QLatin1String(name));
  action->setShortcuts(keys);
  action->setToolTip(action->text() + " (" + keys.front().toString(QKeySequence::NativeText) + ")");
  connect(action, &QAction::triggered, this, std::move(act));
  return action;
}

void PrintPreview::ZoomTo(std::optional<double> zoom) {
  zoom_ = zoom;
  if (zoom_) zoom_ = std::clamp(*zoom_, kSmallestZoom, kLargestZoom);
  ShowPage();
}

/// A dialog may have chosen another paper.
void PrintPreview::FollowPaper() {
  paper_ = order_.paper();
  ShowPage();
}

void PrintPreview::ShowPage() {
  // One sheet below the other, as in a viewer of documents.
  const double ratio = devicePixelRatioF();
  const QSizeF sheet = PixelsOf(paper_, Zoom(), logicalDpiX());
  const int count = PageCountOn(paper_, order_.page);
  const QSizeF all(sheet.width(), count * sheet.height() + (count - 1) * kSheetGap);
  QPixmap sheets((all * ratio).toSize());
  if (sheets.isNull()) return picture_->clear();
  sheets.setDevicePixelRatio(ratio);
  sheets.fill(palette().color(QPalette::Mid));
  QPainter painter(&sheets);
  for (int index = 0; index < count; ++index) {
    painter.drawImage(QPointF(0.0, index * (sheet.height() + kSheetGap)),
                      PictureOf(order_.page, paper_, Zoom(), logicalDpiX(), ratio, index));
  }
  painter.end();
  picture_->setPixmap(sheets);
}

}  // namespace velmar::printing
