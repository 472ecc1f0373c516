#include "shell/start/loader_window.h"

#include <QCoreApplication>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "shell/windows/boxes.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kPicture = 48;
constexpr int kWidth = 440;

}  // namespace

LoaderWindow::LoaderWindow(const presentation::Words& words, const QString& version, QWidget* parent)
    : QDialog(parent, Qt::SplashScreen), words_(words) {
  setObjectName("FormLoaderIniziale");
  setFixedWidth(kWidth);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 24);
  const auto add = [&](const char* name, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setWordWrap(true);
    column->addWidget(label);
    return label;
  };
  auto* picture = new QLabel(this);
  picture->setPixmap(ProductIcon().pixmap(QSize(kPicture, kPicture), devicePixelRatioF()));
  column->addWidget(picture);
  QLabel* name =
      add("LabelVersione", QString(kProductName) + ' ' + Text(words_, kVersionRow) + ' ' + version);
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  name->setFont(large);
  add("Label1", Text(words_, kPurposeRow));
  add("LabelAvanzamento", Text(words_, kLoadingProgressRow));
  bar_ = new QProgressBar(this);
  bar_->setObjectName("ProgressBarCaricamento");
  bar_->setTextVisible(false);
  column->addWidget(bar_);
  label_ = add("LabelLoader", QString());
  add("lblCopyright", Text(words_, kLiabilityNoticeRow));
}

void LoaderWindow::ShowProgress(MessageRow title_row, std::size_t count, int done, int all) {
  bar_->setMaximum(all);
  bar_->setValue(done);
  label_->setText(Text(words_, kLoadingRow) + ' ' + QString::number(count) + ' ' +
                  Text(words_, title_row).toLower());
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void LoaderWindow::ShowWork(const QString& what) {
  show();
  bar_->setRange(0, 0);
  label_->setText(what);
  adjustSize();
}

}  // namespace velmar::shell
