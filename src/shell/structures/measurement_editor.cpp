#include "shell/structures/measurement_editor.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <variant>

#include "calculation/edits/facade_parts.h"
#include "foundation/message_rows.h"
#include "measurements/band_text.h"
#include "presentation/texts/words.h"
#include "shell/fields/number_field.h"
#include "shell/structures/measurement_fields.h"
#include "shell/structures/store_sources.h"
#include "shell/windows/mnemonics.h"
#include "shell/windows/phrases.h"
#include "shell/windows/picture_view.h"
#include "storage/files/whole_file.h"

namespace velmar::structures {
namespace {

using measurements::MeasurementEntry;
using measurements::MeasurementField;
using shell::NumberField;

constexpr const char* kMemoryName = "nuova-misura";
constexpr double kRatingScale = 1.4;
constexpr std::size_t kTextSizeLimit = std::size_t{16} * 1024 * 1024;

struct KindRow {
  Branch branch{};
  MessageRow caption{};
};
/// The kinds as the tree of the library names them.
constexpr std::array kKinds = {
    KindRow{Branch::kWalls, kStandardWallsRow},      KindRow{Branch::kLinings, kStandardLiningsRow},
    KindRow{Branch::kFloors, kStandardFloorsRow},    KindRow{Branch::kCoverings, kStandardCoveringsRow},
    KindRow{Branch::kOpenings, kWindowsAndDoorsRow}, KindRow{Branch::kSmallElements, kSmallElementsRow},
    KindRow{Branch::kFieldWalls, kFieldWallsRow},    KindRow{Branch::kFieldFloors, kFieldFloorsRow},
};

struct TextField {
  const char* name = "";
  MessageRow caption{};
  std::string MeasurementEntry::*text = nullptr;
};
constexpr std::array kTexts = {
    TextField{"TextParolaChiave", kKeywordCaptionRow, &MeasurementEntry::keyword},
    TextField{"TextCertificato", kCertificateRow, &MeasurementEntry::certificate},
    TextField{"TextDataProva", kTestDateRow, &MeasurementEntry::date},
    TextField{"TextEnteProva", kLaboratoryRow, &MeasurementEntry::laboratory},
    TextField{"TextRichiedente", kTestClientRow, &MeasurementEntry::client},
    TextField{"TextFonte", kSourceCaptionRow, &MeasurementEntry::source},
    TextField{"TextInformazione", kTestRemarksRow, &MeasurementEntry::notes},
};
struct NumberRow {
  MeasurementField field{};
  const char* name = "";
  MessageRow caption{};
  std::string MeasurementEntry::*text = nullptr;
};
constexpr std::array kNumbers = {
    NumberRow{MeasurementField::kArea, "TextArea", kMeasurementAreaRow, &MeasurementEntry::area},
    NumberRow{MeasurementField::kMass, "TextMassa", kMeasurementMassRow, &MeasurementEntry::mass},
    NumberRow{MeasurementField::kUncertainty, "TextIncertezza", kUncertaintyRow,
              &MeasurementEntry::uncertainty},
    NumberRow{MeasurementField::kThickness, "TextSpessore", kMeasurementThicknessRow,
              &MeasurementEntry::thickness},
    NumberRow{MeasurementField::kSourceVolume, "TextVe", kSourceVolumeRow, &MeasurementEntry::source_volume},
    NumberRow{MeasurementField::kReceivingVolume, "TextVr", kReceivingVolumeRow,
              &MeasurementEntry::receiving_volume},
};
/// The first of kNumbers that only a test in a building has.
constexpr std::size_t kFirstInSitu = 3;

struct PrintedRow {
  MeasurementField field{};
  const char* name = "";
  std::string MeasurementEntry::*text = nullptr;
};
/// The rating and its two terms, captioned by the symbols of the kind.
constexpr std::array kPrinted = {
    PrintedRow{MeasurementField::kRating, "TextIndice", &MeasurementEntry::rating},
    PrintedRow{MeasurementField::kAdaptation, "TextC", &MeasurementEntry::adaptation},
    PrintedRow{MeasurementField::kOtherAdaptation, "TextCtr", &MeasurementEntry::other_adaptation},
};

QString Symbol(std::string_view symbol) {
  return QString::fromUtf8(symbol.data(), static_cast<qsizetype>(symbol.size()));
}

}  // namespace

MeasurementEditor::MeasurementEditor(shell::WindowTools tools, OwnMeasurementSource own,
                                     MeasurementToEdit edited, QWidget* parent)
    : QDialog(parent), tools_(std::move(tools)), own_(std::move(own)), edited_(std::move(edited)) {
  setObjectName(QStringLiteral("FormMisura"));
  setWindowTitle(tools_.Text(edited_.test ? kEditMeasurementRow : kNewMeasurementRow) +
                 QStringLiteral(" - VELMARpro"));
  // In the order in which Tab goes through them.
  auto* left = new QVBoxLayout;
  left->addWidget(MakeTexts(), 1);
  left->addWidget(MakeValues());
  left->addWidget(in_situ_);
  left->addWidget(MakePicture());
  auto* right = new QVBoxLayout;
  bands_ = new MeasurementBands(tools_, this);
  right->addWidget(bands_);
  right->addWidget(MakeRating());
  right->addStretch(1);
  auto* faces = new QHBoxLayout;
  faces->addLayout(left, 3);
  faces->addLayout(right, 2);
  auto* column = new QVBoxLayout(this);
  column->addLayout(faces, 1);
  column->addWidget(MakeButtons());
  connect(bands_, &MeasurementBands::Changed, this, [this] { ShowRating(); });
  connect(bands_, &MeasurementBands::FileAsked, this, [this] { ReadFile(); });
  connect(kind_, &QComboBox::currentIndexChanged, this, [this] { ChooseKind(); });
  Show(edited_.test ? measurements::EntryOf(*edited_.test) : MeasurementEntry());
  ChooseKind();
  shown_first_ = Entry();
  if (!shell::RestoreSizes(tools_.memory, {QLatin1String(kMemoryName), this, nullptr, nullptr}))
    resize(sizeHint());
  shell::SetMnemonics(*this);
  name_->setFocus();
}

MeasurementEditor::~MeasurementEditor() {
  shell::SaveSizes(tools_.memory, {QLatin1String(kMemoryName), this, nullptr, nullptr});
}

QLineEdit* MeasurementEditor::AddText(QFormLayout& form, const char* name, MessageRow caption) {
  auto* box = new QLineEdit(this);
  box->setObjectName(QLatin1String(name));
  auto* label = new QLabel(tools_.Text(caption), this);
  box->setAccessibleName(label->text());
  label->setBuddy(box);
  form.addRow(label, box);
  return box;
}

NumberField* MeasurementEditor::AddNumber(QFormLayout& form, const char* name, MessageRow caption) {
  auto* box = new NumberField(QLatin1String(name), shell::NumberKind::kReal, this);
  auto* label = new QLabel(tools_.Text(caption), this);
  box->setAccessibleName(label->text());
  label->setBuddy(box);
  form.addRow(label, box);
  return box;
}

QWidget* MeasurementEditor::MakeTexts() {
  auto* side = new QWidget(this);
  auto* form = new QFormLayout(side);
  form->setContentsMargins(0, 0, 0, 0);
  kind_ = new QComboBox(side);
  kind_->setObjectName(QStringLiteral("ComboTipo"));
  kind_->setAccessibleName(tools_.Text(kMeasurementKindRow));
  for (const KindRow& kind : kKinds) kind_->addItem(tools_.Text(kind.caption), static_cast<int>(kind.branch));
  kind_->setCurrentIndex(kind_->findData(static_cast<int>(edited_.branch)));
  kind_->setEnabled(!edited_.test);  // each kind has a table of its own
  auto* label = new QLabel(tools_.Text(kMeasurementKindRow), side);
  label->setBuddy(kind_);
  form->addRow(label, kind_);
  name_ = AddText(*form, "TextNome", kMeasurementNameRow);
  boxes_.emplace(MeasurementField::kName, name_);
  description_ = new QPlainTextEdit(side);
  description_->setObjectName(QStringLiteral("TextDescrizione"));
  description_->setAccessibleName(tools_.Text(kDescriptionRow));
  description_->setTabChangesFocus(true);
  description_->setFixedHeight(fontMetrics().height() * 4);
  auto* described = new QLabel(tools_.Text(kDescriptionRow), side);
  described->setBuddy(description_);
  form->addRow(described, description_);
  for (const TextField& text : kTexts) texts_.push_back(AddText(*form, text.name, text.caption));
  return side;
}

QWidget* MeasurementEditor::MakeValues() {
  auto* values = new QWidget(this);
  auto* form = new QFormLayout(values);
  form->setContentsMargins(0, 0, 0, 0);
  in_situ_ = new QGroupBox(tools_.Text(kInSituRow), this);
  auto* field_form = new QFormLayout(in_situ_);
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    QFormLayout& place = i < kFirstInSitu ? *form : *field_form;
    numbers_.push_back(AddNumber(place, kNumbers.at(i).name, kNumbers.at(i).caption));
    boxes_.emplace(kNumbers.at(i).field, numbers_.back());
  }
  site_ = AddText(*field_form, "TextCantiere", kFieldSiteRow);
  return values;
}

QWidget* MeasurementEditor::MakeRating() {
  auto* frame = new QGroupBox(tools_.Text(kPrintedRatingRow), this);
  auto* column = new QVBoxLayout(frame);
  auto* row = new QHBoxLayout;
  for (std::size_t i = 0; i < printed_.size(); ++i) {
    printed_.at(i) = new NumberField(QLatin1String(kPrinted.at(i).name), shell::NumberKind::kTerm, frame);
    boxes_.emplace(kPrinted.at(i).field, printed_.at(i));
    printed_captions_.at(i) = new QLabel(frame);
    printed_captions_.at(i)->setBuddy(printed_.at(i));
    row->addWidget(printed_captions_.at(i));
    row->addWidget(printed_.at(i), 1);
    connect(printed_.at(i), &QLineEdit::textChanged, this, [this] { ShowRating(); });
  }
  column->addLayout(row);
  computed_ = new QLabel(frame);
  computed_->setObjectName(QStringLiteral("LabelCalcolato"));
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * kRatingScale);
  computed_->setFont(large);
  computed_->setWordWrap(true);
  verdict_ = new QLabel(frame);
  verdict_->setObjectName(QStringLiteral("LabelConfronto"));
  verdict_->setWordWrap(true);
  column->addWidget(computed_);
  column->addWidget(verdict_);
  return frame;
}

QWidget* MeasurementEditor::MakePicture() {
  auto* place = new QWidget(this);
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  picture_ = new shell::PictureView(tools_, place);
  picture_->setFixedHeight(fontMetrics().height() * 6);
  auto* buttons = new QVBoxLayout;
  auto* choose = new QPushButton(tools_.Text(kChoosePictureRow) + QStringLiteral("…"), place);
  choose->setObjectName(QStringLiteral("CommandImmagine"));
  choose->setAutoDefault(false);
  choose->setVisible(static_cast<bool>(tools_.boxes.choose_file_to_open));
  auto* none = new QPushButton(tools_.Text(kNoPictureButtonRow), place);
  none->setObjectName(QStringLiteral("CommandSenza"));
  none->setAutoDefault(false);
  buttons->addWidget(choose);
  buttons->addWidget(none);
  buttons->addStretch(1);
  row->addWidget(picture_, 1);
  row->addLayout(buttons);
  connect(choose, &QPushButton::clicked, this, [this] { ChoosePicture(); });
  connect(none, &QPushButton::clicked, this, [this] { ShowPicture({}); });
  return place;
}

QWidget* MeasurementEditor::MakeButtons() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  auto* save = new QPushButton(tools_.Text(kSaveMaterialRow), bar);
  save->setObjectName(QStringLiteral("Command1"));
  save->setDefault(true);
  auto* cancel = new QPushButton(tools_.Text(kCancelRow), bar);
  cancel->setObjectName(QStringLiteral("Command2"));
  cancel->setAutoDefault(false);
  row->addStretch(1);
  row->addWidget(save);
  row->addWidget(cancel);
  connect(save, &QPushButton::clicked, this, [this] { Save(); });
  connect(cancel, &QPushButton::clicked, this, &MeasurementEditor::reject);
  return bar;
}

Branch MeasurementEditor::Kind() const { return static_cast<Branch>(kind_->currentData().toInt()); }

void MeasurementEditor::ChooseKind() {
  const BranchSymbols& symbols = SymbolsOf(Kind());
  const std::array<std::string_view, 3> names = {symbols.rating, symbols.term, symbols.other_term};
  for (std::size_t i = 0; i < printed_.size(); ++i) {
    const bool there = !names.at(i).empty();
    printed_captions_.at(i)->setText(Symbol(names.at(i)));
    printed_.at(i)->setAccessibleName(Symbol(names.at(i)) + QStringLiteral(" [dB]"));
    printed_captions_.at(i)->setVisible(there);
    printed_.at(i)->setVisible(there);
  }
  in_situ_->setVisible(FolderOf(Kind()).field);
  bands_->SetSymbol(FolderOf(Kind()).band_prefix);
  ShowRating();
}

void MeasurementEditor::Show(const MeasurementEntry& entry) {
  name_->setText(shell::FromUtf8(entry.name));
  description_->setPlainText(shell::FromUtf8(entry.description));
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    texts_[i]->setText(shell::FromUtf8(entry.*kTexts.at(i).text));
    texts_[i]->setCursorPosition(0);
  }
  for (std::size_t i = 0; i < numbers_.size(); ++i) numbers_[i]->Show(entry.*kNumbers.at(i).text);
  site_->setText(shell::FromUtf8(entry.site));
  for (std::size_t i = 0; i < printed_.size(); ++i) printed_.at(i)->Show(entry.*kPrinted.at(i).text);
  bands_->Show(entry);
  ShowPicture(entry.picture);
}

MeasurementEntry MeasurementEditor::Entry() const {
  MeasurementEntry entry;
  entry.name = shell::ToUtf8(name_->text());
  entry.description = shell::ToUtf8(description_->toPlainText());
  for (std::size_t i = 0; i < texts_.size(); ++i) entry.*kTexts.at(i).text = shell::ToUtf8(texts_[i]->text());
  const bool field = FolderOf(Kind()).field;
  for (std::size_t i = 0; i < numbers_.size(); ++i) {
    if (i < kFirstInSitu || field) entry.*kNumbers.at(i).text = shell::ToUtf8(numbers_[i]->text());
  }
  if (field) entry.site = shell::ToUtf8(site_->text());
  entry.rating = shell::ToUtf8(printed_[0]->text());
  entry.adaptation = shell::ToUtf8(printed_[1]->text());
  if (!SymbolsOf(Kind()).other_term.empty()) entry.other_adaptation = shell::ToUtf8(printed_[2]->text());
  bands_->Take(entry);
  entry.picture = picture_name_;
  return entry;
}

void MeasurementEditor::ShowRating() {
  const storage::RatingCheck check = measurements::CheckEntry(FolderOf(Kind()), Entry());
  if (!check.rating) {
    computed_->setText(QString());
    verdict_->setText(tools_.Text(kNoRatingFromBandsRow));
    return;
  }
  calculation::FacadePart part;
  part.rating_db = check.rating;
  part.c_db = check.adaptation;
  part.ctr_db = check.other_adaptation;
  QString terms = shell::FromUtf8(calculation::BoxText(check.adaptation));
  if (check.other_adaptation) terms += "; " + shell::FromUtf8(calculation::BoxText(check.other_adaptation));
  const bool thirds = check.basis == storage::RatingBasis::kThirds;
  computed_->setText(tools_.Text(thirds ? kFromBandsRow : kFromOctavesRow) + ' ' +
                     Symbol(SymbolsOf(Kind()).rating) + ' ' +
                     shell::FromUtf8(calculation::BoxText(check.rating)) +
                     (terms.isEmpty() ? QString() : " (" + terms + ')') + QStringLiteral(" dB"));
  const bool printed = !printed_[0]->text().isEmpty();
  verdict_->setText(!printed ? QString()
                             : tools_.Text(check.differs ? kDiffersFromPrintedRow : kAgreesWithPrintedRow));
}

void MeasurementEditor::ShowPicture(const std::string& picture) {
  picture_name_ = picture;
  picture_->Show(own_.picture ? own_.picture(Kind(), picture) : std::filesystem::path());
}

void MeasurementEditor::ChoosePicture() {
  const QString file = tools_.boxes.choose_file_to_open(
      {tools_.Text(kChoosePictureRow),
       tools_.Text(kPictureFilterRow) + QStringLiteral(" (*.png *.jpg *.jpeg *.bmp *.svg)"),
       {}});
  if (file.isEmpty()) return;
  tools_.Try([&] { ShowPicture(own_.keep_picture(Kind(), shell::ToUtf8(file))); });
}

void MeasurementEditor::ReadFile() {
  if (!tools_.boxes.choose_file_to_open) return;
  const QString file = tools_.boxes.choose_file_to_open(
      {tools_.Text(kReadBandsFileRow),
       tools_.Text(kNotReadTextFileRow) + QStringLiteral(" (*.txt *.csv *.tsv *.asc);;* (*)"),
       {}});
  if (file.isEmpty()) return;
  tools_.Try([&] {
    const std::string bytes = storage::ReadWhole(shell::ToUtf8(file), kTextSizeLimit);
    bands_->Read(shell::FromUtf8(measurements::TextOfFile(bytes)), FolderOf(Kind()).band_prefix);
  });
}

QLineEdit* MeasurementEditor::BoxOf(const measurements::MeasurementRefusal& refusal) const {
  if (refusal.field == MeasurementField::kThird) return bands_->Third(refusal.band);
  if (refusal.field == MeasurementField::kOctave) return bands_->Octave(refusal.band);
  return boxes_.at(refusal.field);
}

void MeasurementEditor::Refuse(const measurements::MeasurementRefusal& refusal) {
  tools_.Tell(tools_.Text(refusal.message));
  QLineEdit* box = BoxOf(refusal);
  box->setFocus();
  box->selectAll();
}

void MeasurementEditor::Save() {
  const auto checked = measurements::TestOf(FolderOf(Kind()), Entry());
  if (const auto* refusal = std::get_if<measurements::MeasurementRefusal>(&checked)) {
    Refuse(*refusal);
    return;
  }
  auto test = std::get<storage::MeasuredTest>(checked);
  if (edited_.test) {  // what the window does not show stays
    test.index_value = edited_.test->index_value;
    if (!edited_.test->index_kind.empty()) test.index_kind = edited_.test->index_kind;
  }
  std::optional<Message> refusal;
  const bool done = tools_.Try([&] {
    refusal = edited_.test ? own_.change(Kind(), edited_.test->name, test) : own_.add(Kind(), {test});
  });
  if (!done) return;
  if (refusal) {
    Refuse({*refusal, MeasurementField::kName});
    return;
  }
  stored_name_ = test.name;
  accept();
}

void MeasurementEditor::reject() {
  if (Entry() != shown_first_ && !tools_.Ask(tools_.Text(kUnsavedMeasurementRow))) return;
  QDialog::reject();
}

}  // namespace velmar::structures
