#include "shell/documents/studio_profile_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/drawing/page_annex.h"
#include "presentation/drawing/page_text.h"
#include "presentation/export/studio_paper.h"
#include "shell/documents/studio_picture_box.h"
#include "shell/windows/mnemonics.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::DocumentLanguage;
using elements::StudioProfile;

constexpr int kWidth = 620;
constexpr QSize kPreviewPixels{560, 84};
constexpr double kPreviewMillimetres = 180.0;

constexpr StudioPictureBox::Kind kLogo{kStudioLogoRow, "logo", presentation::kLogoWidthMm,
                                       presentation::kLogoHeightMm};
constexpr StudioPictureBox::Kind kSignature{kStudioSignatureRow, "firma", presentation::kSignatureWidthMm,
                                            presentation::kSignatureHeightMm};

constexpr std::array kLanguages = {DocumentLanguage::kItalian, DocumentLanguage::kEnglish,
                                   DocumentLanguage::kBoth};

QLabel* NoteUnder(QFormLayout& form, const char* key, QWidget* parent) {
  auto* note = new QLabel(parent);
  note->setObjectName(QString(key) + "_nota");
  note->hide();
  form.addRow(QString(), note);
  return note;
}

}  // namespace

StudioProfileDialog::StudioProfileDialog(const DocumentServices& documents, const Speech& speech,
                                         QWidget* parent)
    : QDialog(parent), store_(documents.places.data_folder), speech_(speech) {
  setObjectName("profilo_studio");
  const presentation::Words& words = speech.words;
  setWindowTitle(Text(words, kStudioTitleRow));
  auto* column = new QVBoxLayout(this);
  auto* hint = new QLabel(Text(words, kStudioHintRow));
  hint->setWordWrap(true);
  column->addWidget(hint);
  auto* form = new QFormLayout;
  // First, so that Tab goes through the fields in the order in which they are added.
  column->addLayout(form);
  AddFields(*form);
  column->addWidget(new QLabel(Text(words, kStudioPreviewRow)));
  preview_ = new QLabel;
  preview_->setObjectName("anteprima");
  preview_->setAccessibleName(Text(words, kStudioPreviewRow));
  preview_->setFixedHeight(kPreviewPixels.height());
  preview_->setAlignment(Qt::AlignCenter);
  column->addWidget(preview_);
  note_ = new QLabel;
  note_->setObjectName("nota");
  note_->setWordWrap(true);
  note_->setTextFormat(Qt::PlainText);
  note_->hide();
  column->addWidget(note_);
  auto* buttons = new QHBoxLayout;
  save_ = new QPushButton(Text(words, kStudioSaveRow));
  save_->setObjectName("salva");
  save_->setDefault(true);
  auto* cancel = new QPushButton(Text(words, kCancelRow));
  cancel->setObjectName("annulla");
  buttons->addStretch(1);
  buttons->addWidget(save_);
  buttons->addWidget(cancel);
  column->addLayout(buttons);
  connect(save_, &QPushButton::clicked, this, &StudioProfileDialog::Save);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  try {
    Fill(store_.Read());
  } catch (const Failure& failure) {
    note_->setText(Text(words, failure.UserMessage()));
    note_->show();
    Fill({});
  }
  SetMnemonics(*this);
  fields_.front().box->setFocus(Qt::OtherFocusReason);
  resize(kWidth, sizeHint().height());
}

void StudioProfileDialog::AddFields(QFormLayout& form) {
  const presentation::Words& words = speech_.words;
  for (const elements::StudioField& field : elements::TypedStudioFields()) {
    const QString caption = Text(words, field.caption);
    TypedField typed{.field = &field};
    if (field.most_lines > 1) {
      auto* lines = new QPlainTextEdit;
      lines->setTabChangesFocus(true);
      lines->setFixedHeight(lines->fontMetrics().lineSpacing() * (static_cast<int>(field.most_lines) + 1));
      typed.text = [lines] { return lines->toPlainText(); };
      typed.set = [lines](const QString& text) { lines->setPlainText(text); };
      connect(lines, &QPlainTextEdit::textChanged, this, &StudioProfileDialog::Follow);
      typed.box = lines;
    } else {
      auto* line = new QLineEdit;
      typed.text = [line] { return line->text(); };
      typed.set = [line](const QString& text) { line->setText(text); };
      connect(line, &QLineEdit::textChanged, this, &StudioProfileDialog::Follow);
      typed.box = line;
    }
    typed.box->setObjectName(field.key);
    typed.box->setAccessibleName(caption);
    form.addRow(caption, typed.box);
    typed.note = NoteUnder(form, field.key, this);
    fields_.push_back(std::move(typed));
  }
  language_ = new QComboBox;
  language_->setObjectName(elements::kStudioLanguageKey);
  language_->addItem(Text(words, kLanguageOfProgramRow));
  for (const MessageRow row : {kLanguageItalianRow, kLanguageEnglishRow, kLanguageBothRow})
    language_->addItem(Text(words, row));
  form.addRow(Text(words, kStudioLanguageRow), language_);
  logo_ = new StudioPictureBox(kLogo, store_, speech_, this);
  signature_ = new StudioPictureBox(kSignature, store_, speech_, this);
  form.addRow(Text(words, kStudioLogoRow), logo_);
  form.addRow(Text(words, kStudioSignatureRow), signature_);
  for (const StudioPictureBox* box : {logo_, signature_})
    connect(box, &StudioPictureBox::Changed, this, &StudioProfileDialog::Follow);
}

StudioProfile StudioProfileDialog::Entered() const {
  StudioProfile profile;
  for (const TypedField& typed : fields_) profile.*typed.field->text = ToUtf8(typed.text().trimmed());
  if (language_->currentIndex() > 0)
    profile.language = kLanguages.at(static_cast<std::size_t>(language_->currentIndex() - 1));
  profile.logo = logo_->Name();
  profile.signature = signature_->Name();
  return profile;
}

void StudioProfileDialog::Fill(const StudioProfile& profile) {
  for (const TypedField& typed : fields_) typed.set(FromUtf8(profile.*typed.field->text));
  language_->setCurrentIndex(profile.language ? static_cast<int>(*profile.language) + 1 : 0);
  logo_->Show(profile.logo);
  signature_->Show(profile.signature);
  Follow();
}

bool StudioProfileDialog::Follow() {
  // While the window is being made its parts are not all there.
  if (save_ == nullptr) return false;
  const StudioProfile profile = Entered();
  bool fits = true;
  for (const TypedField& typed : fields_) {
    const auto objection = Objection(*typed.field, profile.*typed.field->text);
    typed.note->setText(objection ? Text(speech_.words, *objection) : QString());
    typed.note->setVisible(objection.has_value());
    fits = fits && !objection;
  }
  save_->setEnabled(fits);
  ShowPreview(profile);
  return fits;
}

void StudioProfileDialog::ShowPreview(const StudioProfile& profile) {
  const presentation::StudioPaper paper = presentation::StudioPaperOf(
      profile, [this](const std::string& name) { return store_.Picture(name); }, {});
  presentation::PageStudio studio{.words = paper.words};
  if (paper.logo) {
    constexpr double kEmuPerMillimetre = 36000.0;
    studio.logo.image.loadFromData(QByteArray::fromStdString(paper.logo->png));
    studio.logo.millimetres = QSizeF(static_cast<double>(paper.logo->width_emu) / kEmuPerMillimetre,
                                     static_cast<double>(paper.logo->height_emu) / kEmuPerMillimetre);
  }
  const double ratio = devicePixelRatioF();
  QImage image(kPreviewPixels * ratio, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const double width = kPreviewMillimetres / 25.4 * presentation::kPageInch;
  const double scale = image.width() / width;
  painter.scale(scale, scale);
  const double margin = 0.08 * presentation::kPageInch;
  DrawStudioHead(painter, {margin, margin, width - 2.0 * margin, image.height() / scale}, studio);
  painter.end();
  image.setDevicePixelRatio(ratio);
  preview_->setPixmap(QPixmap::fromImage(image));
}

void StudioProfileDialog::Save() {
  if (!Follow()) return;
  try {
    if (const auto kept = store_.Write(Entered()))
      speech_.boxes.tell(Tone::kInformation,
                         Text(speech_.words, kStudioKeptAsideRow) + ' ' + FromUtf8(kept->string()));
    accept();
  } catch (const Failure& failure) {
    note_->setText(Text(speech_.words, failure.UserMessage()));
    note_->show();
  }
}

}  // namespace velmar::shell
