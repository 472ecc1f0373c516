#include "shell/fields/band_boxes.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "acoustics/bands.h"
#include "foundation/decimal.h"
#include "shell/fields/number_field.h"
#include "shell/fields/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kBandsAColumn = 7;

}  // namespace

BandBoxes::BandBoxes(const QString& frame_name, const QString& name, QWidget* page)
    : frame_(new QGroupBox(page)) {
  frame_->setObjectName(frame_name);
  auto* grid = new QGridLayout(frame_);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const int index = static_cast<int>(band);
    const QString frequency = FromUtf8(FormatShortest(acoustics::BandCentre(band))) + " Hz";
    auto* box = new NumberField(name + '_' + QString::number(index), NumberKind::kReal, frame_);
    box->setAccessibleName(frequency);
    auto* label = new QLabel(frequency, frame_);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(box);
    const int column = 2 * (index / kBandsAColumn);
    grid->addWidget(label, index % kBandsAColumn, column);
    grid->addWidget(box, index % kBandsAColumn, column + 1);
    boxes_.push_back(box);
  }
  grid->setColumnStretch(2 * static_cast<int>(acoustics::kBandCount) / kBandsAColumn, 1);
}

void BandBoxes::OnEdit(const std::function<void(std::size_t band, const std::string& text)>& on_edit) {
  for (std::size_t band = 0; band < boxes_.size(); ++band)
    boxes_.at(band)->OnEdit([on_edit, band](const std::string& text) { on_edit(band, text); });
}

void BandBoxes::Show(const elements::BandTexts& texts, const QString& caption) {
  frame_->setTitle(caption);
  for (std::size_t band = 0; band < boxes_.size(); ++band) boxes_.at(band)->Show(texts.at(band));
}

}  // namespace velmar::shell
