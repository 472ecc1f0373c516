#include "shell/commands/about_box.h"

#include <QFont>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "shell/windows/boxes.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kPicture = 64;
constexpr int kWidth = 400;

}  // namespace

AboutBox::AboutBox(const presentation::Words& words, const QString& version, const QString& website,
                   QWidget* parent)
    : QDialog(parent) {
  setObjectName("About_VELMAR");
  setWindowTitle(Text(words, kAboutRow).remove("..."));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 16);
  auto* head = new QHBoxLayout;
  auto* picture = new QLabel(this);
  picture->setObjectName("Image1");
  picture->setPixmap(ProductIcon().pixmap(QSize(kPicture, kPicture), devicePixelRatioF()));
  auto* name = new QLabel(QString(kProductName) + ' ' + version, this);
  name->setObjectName("LabelVersione");
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  name->setFont(large);
  head->addWidget(picture);
  head->addSpacing(16);
  head->addWidget(name, 1);
  column->addLayout(head);
  for (const MessageRow row : {kPurposeRow, kLiabilityNoticeRow}) {
    auto* text = new QLabel(Text(words, row), this);
    text->setWordWrap(true);
    column->addWidget(text);
  }
  if (!website.isEmpty()) {
    auto* label = new QLabel(Text(words, kWebsiteRow), this);
    label->setObjectName("LabelSito");
    auto* link =
        new QLabel("<a href=\"" + website.toHtmlEscaped() + "\">" + website.toHtmlEscaped() + "</a>", this);
    link->setObjectName("LbWebSite");
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(link, &QLabel::linkActivated, this, &AboutBox::WebsiteWanted);
    column->addWidget(label);
    column->addWidget(link);
  }
  auto* close_button = new QPushButton(Text(words, kCloseRow), this);
  close_button->setDefault(true);
  connect(close_button, &QPushButton::clicked, this, &QDialog::accept);
  column->addWidget(close_button, 0, Qt::AlignRight);
  setMinimumWidth(kWidth);
}

}  // namespace velmar::shell
