#include "shell/material_editors/absorption_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <variant>

#include "elements/plausibility.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "materials/pasted_absorption.h"
#include "presentation/texts/words.h"
#include "shell/material_editors/absorption_box.h"
#include "shell/windows/phrases.h"

namespace velmar::material_editors {
namespace {

constexpr std::size_t kBandsAColumn = 5;

/// The last box says 6000, though its band is the one of 6300 Hz: so it has always been labelled.
QString BandLabel(std::size_t band) {
  constexpr int kLastLabel = 6000;
  const bool last = band + 1 == elements::kAbsorptionBandCount;
  return QString::number(last ? kLastLabel : static_cast<int>(elements::kAbsorptionBandCentres.at(band)));
}

}  // namespace

AbsorptionView::AbsorptionView(const shell::WindowTools& tools, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Picture2"));
  setAccessibleName(tools.Text(kAbsorptionCurveRow));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void AbsorptionView::Show(const presentation::AbsorptionChart& chart) {
  chart_ = chart;
  update();
}

QSize AbsorptionView::sizeHint() const { return {380, 190}; }
QSize AbsorptionView::minimumSizeHint() const { return {280, 140}; }

void AbsorptionView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  presentation::DrawAbsorptionChart(painter, rect(), chart_);
}

AbsorptionPanel::AbsorptionPanel(const shell::WindowTools& tools, QWidget* parent)
    : QGroupBox(tools.Text(kAbsorptionCoefficientsRow), parent), tools_(tools) {
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeBoxes());
  auto* row = new QHBoxLayout;
  auto* remark = new QLabel(tools_.Text(kPasteHintRow), this);
  remark->setWordWrap(true);
  remark->setForegroundRole(QPalette::PlaceholderText);
  auto* clear = new QPushButton(tools_.Text(kClearAbsorptionRow), this);
  clear->setObjectName(QStringLiteral("CommandAlfa"));
  clear->setAutoDefault(false);
  compute_ = new QPushButton(tools_.Text(kComputeAbsorptionRow), this);
  compute_->setObjectName(QStringLiteral("CommandCalcola"));
  compute_->setToolTip(tools_.Text(kComputeAbsorptionTipRow));
  compute_->setAutoDefault(false);
  row->addWidget(remark, 1);
  row->addWidget(compute_);
  row->addWidget(clear);
  column->addLayout(row);
  curve_ = new AbsorptionView(tools_, this);
  column->addWidget(curve_, 1);
  connect(clear, &QPushButton::clicked, this, [this] { AskAndClear(); });
  DrawCurve();
}

QWidget* AbsorptionPanel::MakeBoxes() {
  auto* place = new QWidget(this);
  auto* grid = new QGridLayout(place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(4);
  const QString tip = tools_.Text(kAbsorptionBoxTipRow);
  for (std::size_t band = 0; band < boxes_.size(); ++band) {
    auto* box = new AbsorptionBox(band, place);
    box->setAccessibleName(title() + ' ' + BandLabel(band) + " Hz");
    box->setToolTip(tip);
    auto* label = new QLabel(BandLabel(band) + " Hz", place);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int column = 2 * static_cast<int>(band / kBandsAColumn);
    const int row = static_cast<int>(band % kBandsAColumn);
    grid->addWidget(label, row, column);
    grid->addWidget(box, row, column + 1);
    if (band > 0) boxes_.at(band - 1)->SetNext(box);
    boxes_.at(band) = box;
    connect(box, &QLineEdit::textChanged, this, [this] { DrawCurve(); });
    connect(box, &QLineEdit::textEdited, this, [this, band] { Mark(band, false); });
    connect(box, &AbsorptionBox::ColumnPasted, this,
            [this, band](const QString& cells) { TakeColumn(cells, band); });
  }
  return place;
}

void AbsorptionPanel::Show(const Texts& coefficients) {
  for (std::size_t band = 0; band < boxes_.size(); ++band) {
    boxes_.at(band)->ShowStored(coefficients.at(band));
    Mark(band, false);
  }
}

void AbsorptionPanel::ShowComputed(const Texts& coefficients, const std::vector<std::size_t>& bands) {
  for (const std::size_t band : bands) {
    boxes_.at(band)->Show(coefficients.at(band));
    Mark(band, true);
  }
}

std::vector<std::size_t> AbsorptionPanel::ComputedBands() const {
  std::vector<std::size_t> bands;
  for (std::size_t band = 0; band < computed_.size(); ++band) {
    if (computed_.at(band) && !boxes_.at(band)->Number().empty()) bands.push_back(band);
  }
  return bands;
}

void AbsorptionPanel::Mark(std::size_t band, bool computed) {
  if (computed_.at(band) == computed) return;
  computed_.at(band) = computed;
  AbsorptionBox* box = boxes_.at(band);
  QFont font = box->font();
  font.setItalic(computed);
  box->setFont(font);
  box->setToolTip(tools_.Text(computed ? kComputedAbsorptionTipRow : kAbsorptionBoxTipRow));
}

AbsorptionPanel::Texts AbsorptionPanel::Entered() const {
  Texts texts;
  for (std::size_t band = 0; band < boxes_.size(); ++band) texts.at(band) = boxes_.at(band)->Number();
  return texts;
}

QLineEdit* AbsorptionPanel::Box(std::size_t band) const { return boxes_.at(band); }

void AbsorptionPanel::changeEvent(QEvent* event) {
  QGroupBox::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && curve_ != nullptr) DrawCurve();
}

void AbsorptionPanel::DrawCurve() {
  if (curve_ == nullptr) return;
  presentation::AbsorptionChart chart;
  chart.frequency_axis = tools_.words(kFrequencyRow);
  for (std::size_t band = 0; isEnabled() && band < boxes_.size(); ++band) {
    const std::optional<double> value = ParseDecimal(boxes_.at(band)->Number());
    const bool drawn =
        value && elements::Judge(elements::MaterialKind::kFibrous, elements::MaterialProperty::kAbsorption,
                                 *value) != elements::Plausibility::kImpossible;
    if (drawn) chart.values.at(band) = value;
  }
  curve_->Show(chart);
}

void AbsorptionPanel::AskAndClear() {
  if (!tools_.Ask(tools_.Text(kClearQuestionRow))) return;
  Show({});
  boxes_.front()->setFocus();
}

void AbsorptionPanel::TakeColumn(const QString& cells, std::size_t band) {
  const auto read = materials::ReadPastedAbsorption(shell::ToUtf8(cells), band);
  if (const auto* refusal = std::get_if<Message>(&read)) {
    tools_.Tell(shell::FromUtf8(presentation::InWords(refusal->front(), tools_.words)));
    return;
  }
  const auto& pasted = std::get<materials::PastedAbsorption>(read);
  for (std::size_t i = 0; i < pasted.texts.size(); ++i)
    boxes_.at(pasted.first_band + i)->Show(pasted.texts.at(i));
  for (std::size_t i = 0; i < pasted.texts.size(); ++i) Mark(pasted.first_band + i, false);
}

}  // namespace velmar::material_editors
