#include "shell/fields/band_boxes.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

#include "acoustics/bands.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/number_field.h"
#include "shell/fields/pasted_bands.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kBandsAColumn = 7;
constexpr int kColumns = 3;
constexpr int kShownDecimals = 1;

}  // namespace

BandBoxes::BandBoxes(const QString& frame_name, const QString& name, const presentation::Words& words,
                     QWidget* page)
    : QGroupBox(page) {
  setObjectName(frame_name);
  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const int index = static_cast<int>(band);
    const QString frequency = FromUtf8(FormatShortest(acoustics::BandCentre(band))) + " Hz";
    auto* box = new NumberField(name + '_' + QString::number(index), NumberKind::kReal, this);
    box->setAccessibleName(frequency);
    box->ShowDecimals(kShownDecimals);
    // A level has a digit less than other numbers.
    box->setFixedWidth(box->minimumWidth() - fontMetrics().horizontalAdvance(QLatin1Char('0')));
    box->installEventFilter(this);
    connect(box, &NumberField::Edited, this,
            [this, band](const std::string& text) { emit Edited(band, text); });
    auto* label = new QLabel(frequency, this);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(box);
    const int column = 2 * (index / kBandsAColumn);
    grid->addWidget(label, index % kBandsAColumn, column);
    grid->addWidget(box, index % kBandsAColumn, column + 1);
    boxes_.push_back(box);
  }
  const auto add_button = [&](const char* object_name, MessageRow row, int line, auto action) {
    auto* button = new QToolButton(this);
    button->setObjectName(name + object_name);
    button->setText(Text(words, row));
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, action);
    grid->addWidget(button, line, 2 * kColumns, Qt::AlignLeft);
  };
  add_button("_Incolla", kPasteValuesRow, 0, [this] { Paste(0); });
  add_button("_Copia", kCopyValuesRow, 1, [this] { Copy(); });
  grid->setColumnStretch(2 * kColumns, 1);
}

void BandBoxes::Show(const elements::BandTexts& texts, const QString& caption) {
  texts_ = texts;
  setTitle(caption);
  for (std::size_t band = 0; band < boxes_.size(); ++band) boxes_.at(band)->Show(texts.at(band));
}

void BandBoxes::Paste(std::size_t band) {
  const auto bands = ReadPastedBands(QGuiApplication::clipboard()->text(), band);
  if (!bands || bands->empty()) {
    emit boxes_.at(band)->Corrected(Correction::kNoNumber, 0);
    return;
  }
  elements::BandTexts texts = texts_;
  for (const auto& [index, number] : *bands) {
    texts.at(index) = number;
    std::ranges::replace(texts.at(index), '.', ',');
  }
  emit Pasted(texts);
}

void BandBoxes::Copy() const {
  QStringList lines;
  for (const std::string& text : texts_) lines += FromUtf8(text);
  QGuiApplication::clipboard()->setText(lines.join('\n') + '\n');
}

bool BandBoxes::eventFilter(QObject* watched, QEvent* event) {
  const bool paste = event->type() == QEvent::KeyPress &&
                     static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste) &&
                     IsTableOfCells(QGuiApplication::clipboard()->text());
  if (!paste) return QGroupBox::eventFilter(watched, event);
  Paste(static_cast<std::size_t>(std::ranges::find(boxes_, watched) - boxes_.begin()));
  return true;
}

}  // namespace velmar::shell
