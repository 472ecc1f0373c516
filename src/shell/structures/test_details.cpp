#include "shell/structures/test_details.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "acoustics/bands.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

constexpr std::array<MessageRow, 6> kCertificateRows = {kCertificateRow, kTestDateRow,    kLaboratoryRow,
                                                        kTestClientRow,  kTestRemarksRow, kSourceCaptionRow};
constexpr std::array<const char*, 6> kCertificateNames = {
    "TextCertificato", "TextDataProva", "TextEnteProva", "TextRichiedente", "TextInformazione", "TextFonte"};
/// Those of the certificate's fields whose texts are short stand in a grid, the others have a line each.
constexpr std::size_t kShortFields = 4;
constexpr std::size_t kBandsInARow = 7;
constexpr double kRatingScale = 1.4;

QString Decibels(const std::optional<double>& value) { return shell::FromUtf8(calculation::BoxText(value)); }

QString Symbol(std::string_view symbol) {
  return QString::fromUtf8(symbol.data(), static_cast<qsizetype>(symbol.size()));
}

QString InDecibels(std::string_view symbol) { return Symbol(symbol) + QStringLiteral(" (dB)"); }

void ShowFromStart(QLineEdit& box, const QString& text) {
  box.setText(text);
  box.setCursorPosition(0);
  box.setToolTip(text);
}

/// "Ottave [dB]: 63 Hz 18 · 125 Hz 20 · ...", empty without octaves.
QString OctaveLine(const MeasuredTest& test, const shell::WindowTools& tools) {
  constexpr std::size_t kThirdsInAnOctave = 3;
  constexpr std::size_t kMiddle = 1;
  QStringList values;
  for (std::size_t band = kMiddle; band < test.octave_steps_db.size(); band += kThirdsInAnOctave) {
    const std::optional<double>& value = test.octave_steps_db.at(band);
    if (!value) continue;
    values << QString::number(static_cast<int>(acoustics::BandCentre(band))) + QStringLiteral(" Hz ") +
                  shell::FromUtf8(calculation::BoxText(value));
  }
  if (values.isEmpty()) return {};
  return tools.Text(kOctavesFrameRow) + QStringLiteral(": ") + values.join(QStringLiteral(" · "));
}

}  // namespace

QString RatingRemarks(const BranchSymbols& symbols, const MeasuredTest& test,
                      const shell::WindowTools& tools) {
  QStringList remarks;
  if (test.check.differs)
    remarks << tools.Text(kRatingDiffersRow) + ' ' + Symbol(symbols.rating) + ' ' +
                   Decibels(test.check.rating) + QStringLiteral(" dB");
  const bool other_index = !test.index_kind.empty() && test.index_value;
  if (other_index)
    remarks << tools.Text(kStatedIndexRow) + ' ' + shell::FromUtf8(test.index_kind) + ' ' +
                   Decibels(test.index_value);
  const bool octaves_alone = test.derived_thirds_db || test.check.basis == storage::RatingBasis::kOctaves;
  if (octaves_alone) remarks << tools.Text(kOctavesOnlyRow);
  if (test.uncertainty_db)
    remarks << tools.Text(kUncertaintyRow) + QStringLiteral(" ± ") + Decibels(test.uncertainty_db);
  return remarks.join(QStringLiteral(" · "));
}

QString RatingLabel(const BranchSymbols& symbols, const calculation::FacadePart& part) {
  QString names = Symbol(symbols.term);
  QString values = Decibels(part.c_db);
  if (symbols.rated_with_both) {
    names += QLatin1Char(',') + Symbol(symbols.other_term);
    values += QStringLiteral(", ") + Decibels(part.ctr_db);
  }
  return QStringLiteral("%1(%2)= %3(%4) dB")
      .arg(Symbol(symbols.rating), names, Decibels(part.rating_db), values);
}

TestDetails::TestDetails(const shell::WindowTools& tools, QWidget* parent) : QWidget(parent), tools_(tools) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  rating_ = new QLabel(this);
  rating_->setObjectName(QStringLiteral("Label3"));
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * kRatingScale);
  rating_->setFont(large);
  rating_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  rating_->setMinimumHeight(QFontMetrics(large).height());
  remarks_ = new QLabel(this);
  remarks_->setObjectName(QStringLiteral("LabelNote"));
  remarks_->setWordWrap(true);
  octaves_ = new QLabel(this);
  octaves_->setObjectName(QStringLiteral("LabelOttave"));
  octaves_->setWordWrap(true);
  octaves_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  description_ = new QPlainTextEdit(this);
  description_->setObjectName(QStringLiteral("Text2"));
  description_->setAccessibleName(tools_.Text(kDescriptionRow));
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  description_->setFixedHeight(fontMetrics().height() * 4);
  curve_ = new MeasuredCurveView(tools_, this);
  picture_ = new shell::PictureView(tools_, this);
  auto* pictures = new QHBoxLayout;
  pictures->addWidget(curve_, 3);
  pictures->addWidget(picture_, 1);
  column->addWidget(rating_);
  column->addWidget(remarks_);
  column->addWidget(description_);
  column->addWidget(MakeValues());
  column->addLayout(pictures, 1);
  column->addWidget(MakeBands());
  column->addWidget(octaves_);
  column->addWidget(MakeCertificate());
  ShowSymbols(SymbolsOf(Branch::kWalls));
  Show(std::nullopt);
}

QLineEdit* TestDetails::Box(const QString& name, const QString& accessible_name) {
  auto* box = new QLineEdit(this);
  box->setObjectName(name);
  box->setAccessibleName(accessible_name);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::ClickFocus);  // nothing to type: the keyboard goes on to the next list or button
  return box;
}

QWidget* TestDetails::MakeValues() {
  auto* values = new QWidget(this);
  auto* row = new QHBoxLayout(values);
  row->setContentsMargins(0, 0, 0, 0);
  const std::array<QString, 5> names = {QStringLiteral("Text4"), QStringLiteral("Text5"),
                                        QStringLiteral("Text6"), QStringLiteral("Text3"),
                                        QStringLiteral("TextMassa")};
  const std::array<QString, 5> captions = {QString(), QString(), QString(), tools_.Text(kPartAreaRow),
                                           tools_.Text(kTestSurfaceMassRow)};
  for (std::size_t i = 0; i < values_.size(); ++i) {
    captions_[i] = new QLabel(captions[i], values);
    values_[i] = Box(names[i], captions[i]);
    values_[i]->setAlignment(Qt::AlignRight);
    values_[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 7);
    row->addWidget(captions_[i]);
    row->addWidget(values_[i], 1);
  }
  return values;
}

QWidget* TestDetails::MakeBands() {
  auto* bands = new QWidget(this);
  auto* grid = new QGridLayout(bands);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  band_caption_ = new QLabel(bands);
  band_caption_->setObjectName(QStringLiteral("LabelBande"));
  grid->addWidget(band_caption_, 0, 0);
  for (std::size_t i = 0; i < bands_.size(); ++i) {
    const int row = static_cast<int>(i / kBandsInARow);
    const int column = 1 + 2 * static_cast<int>(i % kBandsInARow);
    const QString hertz = QString::number(static_cast<int>(acoustics::BandCentre(i)));
    auto* centre = new QLabel(hertz, bands);
    centre->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    bands_[i] = Box(QStringLiteral("Text1_%1").arg(i), hertz + QStringLiteral(" Hz"));
    bands_[i]->setAlignment(Qt::AlignRight);
    bands_[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 6);
    grid->addWidget(centre, row, column);
    grid->addWidget(bands_[i], row, column + 1);
    grid->setColumnStretch(column + 1, 1);
  }
  return bands;
}

QWidget* TestDetails::MakeCertificate() {
  auto* certificate = new QWidget(this);
  auto* column = new QVBoxLayout(certificate);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(4);
  auto* lines = new QGridLayout;
  lines->setVerticalSpacing(4);
  for (std::size_t i = 0; i < certificate_.size(); ++i) {
    const QString caption = tools_.Text(kCertificateRows[i]);
    certificate_[i] = Box(QLatin1String(kCertificateNames[i]), caption);
    auto* label = new QLabel(caption, certificate);
    if (i >= kShortFields) {
      const int row = static_cast<int>(i - kShortFields);
      lines->addWidget(label, row, 0);
      lines->addWidget(certificate_[i], row, 1);
      continue;
    }
    const int line = static_cast<int>(i / 2);
    const int place = 2 * static_cast<int>(i % 2);
    grid->addWidget(label, line, place);
    grid->addWidget(certificate_[i], line, place + 1);
  }
  grid->setColumnStretch(1, 3);
  grid->setColumnStretch(3, 2);
  column->addLayout(grid);
  column->addLayout(lines);
  return certificate;
}

void TestDetails::ShowDescription(const QString& description) { description_->setPlainText(description); }

void TestDetails::ShowSymbols(const BranchSymbols& symbols) {
  symbols_ = symbols;
  const std::array<std::string_view, 3> names = {symbols.rating, symbols.term, symbols.other_term};
  for (std::size_t i = 0; i < names.size(); ++i) {
    captions_[i]->setText(InDecibels(names[i]));
    values_[i]->setAccessibleName(captions_[i]->text());
    captions_[i]->setVisible(!names[i].empty());
    values_[i]->setVisible(!names[i].empty());
  }
  band_caption_->setText(Symbol(symbols.bands));
}

void TestDetails::Show(const std::optional<MeasuredTest>& test) {
  const MeasuredTest shown = test.value_or(MeasuredTest{});
  const calculation::FacadePart& part = shown.part;
  const bool small = part.quantity == calculation::PartQuantity::kElementDifference;
  rating_->setText(test ? RatingLabel(symbols_, part) : QString());
  remarks_->setText(test ? RatingRemarks(symbols_, *test, tools_) : QString());
  remarks_->setVisible(!remarks_->text().isEmpty());
  octaves_->setText(OctaveLine(shown, tools_));
  octaves_->setVisible(!octaves_->text().isEmpty());
  description_->setPlainText(shell::FromUtf8(part.description));
  const QString area = small ? QStringLiteral("0") : Decibels(part.area_m2);
  const QString mass = part.mass_kg_m2 ? Decibels(part.mass_kg_m2) : QStringLiteral("-");
  const std::array<QString, 5> values = {Decibels(part.rating_db), Decibels(part.c_db), Decibels(part.ctr_db),
                                         area, test ? mass : QString()};
  for (std::size_t i = 0; i < values_.size(); ++i) ShowFromStart(*values_[i], values[i]);
  for (std::size_t i = 0; i < bands_.size(); ++i) {
    const std::optional<double>& value = part.bands_db[i];
    const bool measured = value && *value != calculation::kNotMeasuredDb;
    bands_[i]->setText(measured ? shell::FromUtf8(FormatFixed(*value, 1)) : QString());
  }
  const std::array<std::string, 6> certificate = {shown.certificate, shown.date,  shown.laboratory,
                                                  shown.client,      shown.notes, shown.source};
  for (std::size_t i = 0; i < certificate_.size(); ++i)
    ShowFromStart(*certificate_[i], shell::FromUtf8(certificate[i]));
  curve_->Show(test, symbols_);
  picture_->Show(shown.picture);
}

}  // namespace velmar::structures
