#include "shell/documents/studio_picture_box.h"

#include <QGridLayout>
#include <QPushButton>
#include <cmath>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/export/studio_paper.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr double kPixelsPerMillimetre = 3.4;

}  // namespace

StudioPictureBox::StudioPictureBox(const Kind& kind, const storage::StudioProfileStore& store,
                                   const Speech& speech, QWidget* parent)
    : QWidget(parent), kind_(kind), store_(store), speech_(speech), picture_(new QLabel), note_(new QLabel) {
  const QString caption = Text(speech.words, kind.caption);
  picture_->setObjectName(QString(kind.name) + "_immagine");
  picture_->setAccessibleName(caption);
  picture_->setFixedSize(static_cast<int>(std::lround(kind.width_mm * kPixelsPerMillimetre)) + 8,
                         static_cast<int>(std::lround(kind.height_mm * kPixelsPerMillimetre)) + 8);
  picture_->setAlignment(Qt::AlignCenter);
  // Pictures are made for paper, whatever the theme of the window.
  picture_->setStyleSheet("QLabel { background: white; color: #5A6272; border: 1px solid #B8C0CE; }");
  auto* choose = new QPushButton(Text(speech.words, kStudioChooseRow));
  choose->setObjectName(QString(kind.name) + "_scegli");
  choose->setAccessibleName(caption + ": " + choose->text());
  choose->setAutoDefault(false);
  remove_ = new QPushButton(Text(speech.words, kStudioRemoveRow));
  remove_->setObjectName(QString(kind.name) + "_togli");
  remove_->setAccessibleName(caption + ": " + remove_->text());
  remove_->setAutoDefault(false);
  note_->setObjectName(QString(kind.name) + "_nota");
  note_->setWordWrap(true);
  note_->setTextFormat(Qt::PlainText);
  note_->hide();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(picture_, 0, 0, 2, 1);
  grid->addWidget(choose, 0, 1);
  grid->addWidget(remove_, 1, 1);
  grid->addWidget(note_, 2, 0, 1, 3);
  grid->setColumnStretch(2, 1);
  connect(choose, &QPushButton::clicked, this, &StudioPictureBox::Choose);
  connect(remove_, &QPushButton::clicked, this, &StudioPictureBox::Remove);
  Show({});
}

void StudioPictureBox::Tell(const QString& text) {
  note_->setText(text);
  note_->setVisible(!text.isEmpty());
}

void StudioPictureBox::Show(const std::string& name) {
  name_ = name;
  remove_->setEnabled(!name.empty());
  picture_->setPixmap({});
  picture_->setText(Text(speech_.words, kStudioNoPictureRow));
  Tell({});
  if (name.empty()) return;
  try {
    const auto found = presentation::PictureOfFile(store_.Picture(name), kind_.width_mm, kind_.height_mm, {});
    if (!found) return Tell(Text(speech_.words, kStudioBadPictureRow));
    QPixmap pixmap;
    pixmap.loadFromData(QByteArray::fromStdString(found->png));
    const QSizeF shown = picture_->size() - QSize(8, 8);
    const double ratio = picture_->devicePixelRatioF();
    pixmap = pixmap.scaled((shown * ratio).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(ratio);
    picture_->setPixmap(pixmap);
  } catch (const Failure& failure) {
    Tell(Text(speech_.words, failure.UserMessage()));
  }
}

void StudioPictureBox::Choose() {
  const QString file = speech_.boxes.choose_file_to_open(
      {.title = Text(speech_.words, kind_.caption),
       .filter = Text(speech_.words, kStudioPicturesRow) + " (*.png *.jpg *.jpeg *.svg)",
       .start = {}});
  if (file.isEmpty()) return;
  const std::string before = name_;
  try {
    const std::string name = store_.KeepPicture(ToUtf8(file));
    if (!presentation::PictureOfFile(store_.Picture(name), kind_.width_mm, kind_.height_mm, {}))
      throw Failure({{kStudioBadPictureRow}, {ToUtf8(file)}}, "unreadable picture");
    Show(name);
    emit Changed();
  } catch (const Failure& failure) {
    // What was there stays.
    Show(before);
    Tell(Text(speech_.words, failure.UserMessage()));
  }
}

void StudioPictureBox::Remove() {
  Show({});
  emit Changed();
}

}  // namespace velmar::shell
