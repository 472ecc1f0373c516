#include "shell/structures/comparison_panel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "shell/structures/test_chooser.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

constexpr double kRatingScale = 1.4;

QLabel* MakeLabel(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

/// A piece of the curve, as the legend of the chart shows it.
QIcon SampleOf(const QColor& colour, const QSize& size) {
  constexpr qreal kSharpness = 3.0;
  constexpr qreal kDotDiameter = 6.0;
  QPixmap sample(size * kSharpness);
  sample.setDevicePixelRatio(kSharpness);
  sample.fill(Qt::transparent);
  QPainter painter(&sample);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre(size.width() / 2.0, size.height() / 2.0);
  painter.setPen(QPen(colour, 2.0));
  painter.drawLine(QPointF(0.0, centre.y()), QPointF(size.width(), centre.y()));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(centre, kDotDiameter / 2.0, kDotDiameter / 2.0);
  return QIcon(sample);
}

}  // namespace

ComparisonPanel::ComparisonPanel(const shell::WindowTools& tools, LibrarySource source, const Look& look,
                                 QWidget* parent)
    : QGroupBox(tools.Text(look.caption), parent), tools_(tools) {
  setObjectName(QLatin1String(look.frame));
  check_ = new QCheckBox(tools.Text(look.check_caption), this);
  check_->setObjectName(QLatin1String(look.check));
  const QSize sample(fontMetrics().height() * 3 / 2, fontMetrics().height());
  check_->setIconSize(sample);
  check_->setIcon(SampleOf(look.colour, sample));
  database_ = MakeLabel(look.database, this);
  rating_ = MakeLabel(look.rating, this);
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * kRatingScale);
  rating_->setFont(large);
  TestChooser::Controls controls;
  controls.tree = look.tree;
  controls.keywords = look.keywords;
  controls.list = look.list;
  controls.nodes = look.nodes;
  chooser_ = new TestChooser(tools, std::move(source), controls, this);
  connect(chooser_, &TestChooser::FileOpened, this,
          [this](const LibraryFile& file) { database_->setText(shell::FromUtf8(file.name)); });
  connect(chooser_, &TestChooser::TestChosen, this, &ComparisonPanel::Show);
  description_ = new QPlainTextEdit(this);
  description_->setObjectName(QLatin1String(look.description));
  description_->setAccessibleName(tools.Text(kDescriptionRow));
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  description_->setFixedHeight(fontMetrics().height() * 4);
  auto* column = new QVBoxLayout(this);
  column->addWidget(check_);
  column->addWidget(database_);
  column->addWidget(chooser_, 1);
  column->addWidget(rating_);
  column->addWidget(description_);
  connect(check_, &QCheckBox::toggled, this, &ComparisonPanel::Changed);
  Reset();
}

bool ComparisonPanel::IsTicked() const { return check_->isChecked(); }

std::string ComparisonPanel::Name() const {
  return IsTicked() && chooser_->Chosen() ? chooser_->Chosen()->part.name : std::string();
}

void ComparisonPanel::Show(const std::optional<MeasuredTest>& test) {
  const MeasuredTest shown = test.value_or(MeasuredTest{});
  for (std::size_t i = 0; i < bands_.size(); ++i) {
    const std::optional<double>& value = shown.part.bands_db[i];
    bands_[i] = value == calculation::kNotMeasuredDb ? 0.0 : value.value_or(0.0);
  }
  are_octaves_ = false;
  if (bands_ == acoustics::Spectrum{}) {
    for (std::size_t i = 0; i < bands_.size(); ++i) bands_[i] = shown.octave_steps_db.at(i).value_or(0.0);
    are_octaves_ = bands_ != acoustics::Spectrum{};
  }
  const QString rating = shell::FromUtf8(calculation::BoxText(shown.part.rating_db));
  const QString none = test ? QStringLiteral("-") : tools_.Text(kNoStructureRow);
  rating_->setText(rating.isEmpty() ? none : rating + QStringLiteral(" dB"));
  rating_->setEnabled(test.has_value());
  QString description = shell::FromUtf8(shown.part.description);
  if (!shown.notes.empty()) description += (description.isEmpty() ? "" : "\n") + shell::FromUtf8(shown.notes);
  description_->setPlainText(description);
  if (IsTicked()) emit Changed();
}

void ComparisonPanel::Refresh() { chooser_->Refresh(); }

void ComparisonPanel::Reset() {
  {
    const QSignalBlocker quiet(check_);
    check_->setChecked(false);
  }
  chooser_->Clear();
  Show(std::nullopt);
  if (database_->text().isEmpty()) database_->setText(tools_.Text(kNoDatabaseRow));
}

}  // namespace velmar::structures
