#include "shell/structures/measurement_fields.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>
#include <variant>

#include "acoustics/bands.h"
#include "foundation/message_rows.h"
#include "measurements/band_text.h"
#include "presentation/texts/words.h"
#include "shell/fields/number_field.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

using shell::NumberField;

constexpr int kBandsAColumn = 7;
constexpr int kLongestRefusal = 12;  ///< lines of a box that still fits the screen

}  // namespace

MeasurementBands::MeasurementBands(const shell::WindowTools& tools, QWidget* parent)
    : QWidget(parent), tools_(tools) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  auto* buttons = new QHBoxLayout;
  auto* paste = new QPushButton(tools_.Text(kPasteBandsRow), this);
  paste->setObjectName(QStringLiteral("CommandIncolla"));
  paste->setToolTip(tools_.Text(kPasteBandsTipRow));
  paste->setAutoDefault(false);
  auto* file = new QPushButton(tools_.Text(kReadBandsFileRow), this);
  file->setObjectName(QStringLiteral("CommandFile"));
  file->setToolTip(tools_.Text(kPasteBandsTipRow));
  file->setAutoDefault(false);
  buttons->addWidget(paste);
  buttons->addWidget(file);
  buttons->addStretch(1);
  column->addLayout(buttons);
  column->addWidget(MakeThirds());
  column->addWidget(MakeOctaves());
  connect(paste, &QPushButton::clicked, this, [this] { Read(QApplication::clipboard()->text(), symbol_); });
  connect(file, &QPushButton::clicked, this, &MeasurementBands::FileAsked);
}

NumberField* MeasurementBands::MakeBox(const QString& name, const QString& caption, QWidget* parent) {
  auto* box = new NumberField(name, shell::NumberKind::kTerm, parent);
  box->setAccessibleName(caption);
  box->installEventFilter(this);
  connect(box, &NumberField::textChanged, this, &MeasurementBands::Changed);
  return box;
}

QWidget* MeasurementBands::MakeThirds() {
  auto* frame = new QGroupBox(tools_.Text(kThirdsFrameRow), this);
  auto* grid = new QGridLayout(frame);
  grid->setVerticalSpacing(4);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const int index = static_cast<int>(band);
    const QString caption = QString::number(static_cast<int>(acoustics::BandCentre(band))) + " Hz";
    auto* box = MakeBox(QStringLiteral("TextBanda_%1").arg(index), caption, frame);
    auto* label = new QLabel(caption, frame);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int place = 2 * (index / kBandsAColumn);
    grid->addWidget(label, index % kBandsAColumn, place);
    grid->addWidget(box, index % kBandsAColumn, place + 1);
    grid->setColumnStretch(place + 1, 1);
    thirds_.push_back(box);
  }
  return frame;
}

QWidget* MeasurementBands::MakeOctaves() {
  auto* frame = new QGroupBox(tools_.Text(kOctavesFrameRow), this);
  auto* grid = new QGridLayout(frame);
  grid->setVerticalSpacing(4);
  constexpr int kAColumn = 3;
  for (std::size_t i = 0; i < measurements::kOctaveCentres.size(); ++i) {
    const int index = static_cast<int>(i);
    const QString caption = QStringLiteral("%1 Hz").arg(measurements::kOctaveCentres.at(i));
    auto* box = MakeBox(QStringLiteral("TextOttava_%1").arg(index), caption, frame);
    auto* label = new QLabel(caption, frame);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int place = 2 * (index / kAColumn);
    grid->addWidget(label, index % kAColumn, place);
    grid->addWidget(box, index % kAColumn, place + 1);
    grid->setColumnStretch(place + 1, 1);
    octaves_.push_back(box);
  }
  return frame;
}

void MeasurementBands::Show(const measurements::MeasurementEntry& entry) {
  for (std::size_t i = 0; i < thirds_.size(); ++i) thirds_[i]->Show(entry.thirds.at(i));
  for (std::size_t i = 0; i < octaves_.size(); ++i) octaves_[i]->Show(entry.octaves.at(i));
}

void MeasurementBands::Take(measurements::MeasurementEntry& entry) const {
  for (std::size_t i = 0; i < thirds_.size(); ++i) entry.thirds.at(i) = shell::ToUtf8(thirds_[i]->text());
  for (std::size_t i = 0; i < octaves_.size(); ++i) entry.octaves.at(i) = shell::ToUtf8(octaves_[i]->text());
}

QLineEdit* MeasurementBands::Third(std::size_t band) const { return thirds_.at(band); }

QLineEdit* MeasurementBands::Octave(std::size_t band) const { return octaves_.at(band); }

void MeasurementBands::Read(const QString& text, const std::string& symbol) {
  const auto read = measurements::ReadBandText(shell::ToUtf8(text), symbol);
  if (const auto* refused = std::get_if<measurements::RefusedText>(&read)) {
    QStringList lines = {tools_.Text(kNothingTakenRow)};
    for (const MessageLine& line : refused->lines) {
      if (lines.size() > kLongestRefusal) {
        lines << QStringLiteral("…");
        break;
      }
      lines << shell::FromUtf8(presentation::InWords(line, tools_.words));
    }
    tools_.Tell(lines.join('\n'));
    return;
  }
  measurements::MeasurementEntry entry;
  Take(entry);
  const auto& bands = std::get<measurements::BandText>(read);
  measurements::MeasurementEntry filled = measurements::WithBands(entry, bands);
  // Thirds and octaves of one test stand beside each other: only those that were read are replaced.
  if (bands.in_octaves) {
    filled.thirds = entry.thirds;
  } else {
    filled.octaves = entry.octaves;
  }
  Show(filled);
}

bool MeasurementBands::eventFilter(QObject* watched, QEvent* event) {
  const bool paste =
      event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste);
  if (!paste) return QWidget::eventFilter(watched, event);
  const QString text = QApplication::clipboard()->text();
  const bool cells = text.trimmed().contains('\n') || text.contains('\t') || text.contains(';');
  if (!cells) return QWidget::eventFilter(watched, event);
  Read(text, symbol_);
  return true;
}

}  // namespace velmar::structures
