#include "shell/second_opinion/second_opinion_panel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/drawing/colours.h"
#include "presentation/texts/result_lines.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using validation::ModelOpinion;
using validation::SecondOpinion;

constexpr const char* kChosenModel = "calculation";
constexpr const char* kBestMark = "★";
constexpr int kSwatchWidth = 20;
constexpr int kSwatchHeight = 12;

enum Column { kTick, kName, kRating, kTerm, kOtherTerm, kInterval, kBias, kWhy };

std::optional<double> RatingOf(const ModelOpinion& model) {
  return model.result.lnw ? model.result.lnw : model.result.rw;
}

/// The first models besides the chosen calculation have a colour of their own each.
QColor ColourOf(const SecondOpinion& opinion, const std::string& model) {
  std::size_t place = 0;
  for (const ModelOpinion& candidate : opinion.models) {
    if (candidate.id == kChosenModel) continue;
    if (candidate.id == model) break;
    ++place;
  }
  return presentation::kOpinionColours.at(std::min(place, presentation::kOpinionColours.size() - 1));
}

QPixmap Swatch(const QColor& colour, double scale) {
  QPixmap picture(QSize(kSwatchWidth, kSwatchHeight) * scale);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setPen(QPen(colour, 2.0, Qt::DashLine));
  painter.drawLine(0, kSwatchHeight / 2, kSwatchWidth, kSwatchHeight / 2);
  return picture;
}

QLabel* Cell(const QString& text, QWidget* parent, Qt::Alignment alignment = Qt::AlignLeft) {
  auto* label = new QLabel(text, parent);
  label->setAlignment(alignment | Qt::AlignVCenter);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

/// A number with the sign that typography has for it.
QString WithMinus(const std::string& number) { return FromUtf8(number).replace('-', QChar(0x2212)); }

QString Signed(double value_db) {
  return (value_db > 0.0 ? "+" : "") + WithMinus(FormatFixed(value_db, 1)) + " dB";
}

}  // namespace

void SecondOpinionPanel::TickedCurves::LayOver(presentation::CurveChart& chart) {
  const auto& opinion = panel_.work_.Opinion();
  if (!opinion) return;
  for (const ModelOpinion& model : opinion->models) {
    if (!panel_.ticked_.contains(model.id) || !model.result.spectrum) continue;
    chart.further.push_back({.name = presentation::InWords(model.name, panel_.speech_.words),
                             .values = *model.result.spectrum,
                             .colour = ColourOf(*opinion, model.id)});
  }
}

SecondOpinionPanel::SecondOpinionPanel(const calculation::OpenCalculation& open, const Speech& speech,
                                       const validation::KnownAccuracy& accuracy, QWidget* parent)
    : QWidget(parent), open_(open), speech_(speech), work_(open, accuracy) {
  setObjectName("FrameSecondoParere");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPageSpacing, 0, kPageSpacing, 0);
  column->setSpacing(2);
  note_ = new QLabel(this);
  note_->setObjectName("LabelNotaModello");
  note_->setWordWrap(true);
  note_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  column->addWidget(note_);
  MakeLine();
  connect(&work_, &OpinionWork::Changed, this, &SecondOpinionPanel::Show);
  hide();
}

void SecondOpinionPanel::MakeLine() {
  auto* line = new QHBoxLayout;
  line->setSpacing(kPageSpacing);
  open_button_ = new QToolButton(this);
  open_button_->setObjectName("PulsanteSecondoParere");
  open_button_->setText(Text(speech_.words, kSecondOpinionRow));
  open_button_->setToolTip(Text(speech_.words, kOpinionTipRow));
  open_button_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  open_button_->setArrowType(Qt::RightArrow);
  open_button_->setAutoRaise(true);
  open_button_->setCheckable(true);
  connect(open_button_, &QToolButton::toggled, this, [this] { Open(); });
  summary_ = new QLabel(this);
  summary_->setObjectName("LabelSecondoParere");
  summary_->setWordWrap(true);
  summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  line->addWidget(open_button_, 0, Qt::AlignTop);
  line->addWidget(summary_, 1);
  static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

void SecondOpinionPanel::Show() {
  const auto& opinion = work_.Opinion();
  FollowRoute();
  if (work_.IsBusy()) {
    // What was shown keeps its place, so that nothing moves while the next opinion is formed.
    summary_->setText(Text(speech_.words, kOpinionBusyRow));
    if (table_ != nullptr) table_->setEnabled(false);
    note_->clear();
    note_->hide();
    return;
  }
  delete table_;
  table_ = nullptr;
  const bool any = opinion && !opinion->models.empty();
  setVisible(any);
  if (any) {
    ShowSummary(*opinion);
    Open();
  }
  emit curves_.Changed();
}

void SecondOpinionPanel::ShowSummary(const SecondOpinion& opinion) {
  const QString note = opinion.note ? Text(speech_.words, NoteLines(*opinion.note)) : QString();
  note_->setText(note);
  note_->setVisible(!note.isEmpty());
  if (opinion.models.size() == 1) {
    summary_->setText(Text(speech_.words, kOpinionAloneRow));
    return;
  }
  std::vector<double> ratings;
  for (const ModelOpinion& model : opinion.models) {
    if (const auto rating = RatingOf(model)) ratings.push_back(RoundToEven(*rating));
  }
  QString text = QString::number(opinion.models.size()) + ' ' + Text(speech_.words, kOpinionModelsRow);
  if (!ratings.empty()) {
    const auto [lowest, highest] = std::ranges::minmax_element(ratings);
    text += ", " + FromUtf8(FormatShortest(*lowest));
    if (*highest != *lowest) text += QStringLiteral(" … ") + FromUtf8(FormatShortest(*highest));
    text += QStringLiteral(" dB");
  }
  const auto best = std::ranges::find(opinion.models, true, &ModelOpinion::best);
  if (best != opinion.models.end())
    text += ", " + Text(speech_.words, kOpinionBestRow) + ' ' + Text(speech_.words, best->name);
  summary_->setText(text);
}

void SecondOpinionPanel::Open() {
  const bool open = open_button_->isChecked();
  open_button_->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
  if (open && table_ == nullptr && work_.Opinion()) ShowTable(*work_.Opinion());
  if (table_ != nullptr) table_->setVisible(open);
}

void SecondOpinionPanel::ShowTable(const SecondOpinion& opinion) {
  table_ = new QWidget(this);
  table_->setObjectName("TabellaSecondoParere");
  auto* grid = new QGridLayout(table_);
  grid->setContentsMargins(0, 2, 0, 2);
  grid->setHorizontalSpacing(kPageSpacing);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(kName, 3);
  grid->setColumnStretch(kInterval, 2);
  const auto impact = std::ranges::any_of(
      opinion.models, [](const ModelOpinion& model) { return model.result.lnw.has_value(); });
  AddHeads(impact);
  int row = 1;
  for (const ModelOpinion& model : opinion.models) AddModel(model, row++, impact);
  auto* kind = Cell(
      Text(speech_.words, kOpinionKindRow) + ' ' + Text(speech_.words, validation::RowOf(opinion.kind).name),
      table_);
  kind->setObjectName("LabelTipoElemento");
  kind->setForegroundRole(QPalette::PlaceholderText);
  kind->setWordWrap(true);
  grid->addWidget(kind, row, kName, 1, kWhy - kName + 1);
  layout()->addWidget(table_);
}

void SecondOpinionPanel::AddHeads(bool impact) {
  auto* grid = static_cast<QGridLayout*>(table_->layout());
  const auto add = [&](const QString& text, int column, Qt::Alignment alignment) {
    QLabel* head = Cell(text, table_, alignment);
    head->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(head, 0, column);
  };
  add(Text(speech_.words, kOpinionModelHeadRow), kName, Qt::AlignLeft);
  add(impact ? "Ln,w" : "Rw", kRating, Qt::AlignRight);
  add(impact ? "Ci" : "C", kTerm, Qt::AlignRight);
  if (!impact) add("Ctr", kOtherTerm, Qt::AlignRight);
  add(Text(speech_.words, kOpinionIntervalHeadRow), kInterval, Qt::AlignLeft);
  add(Text(speech_.words, kOpinionBiasHeadRow), kBias, Qt::AlignRight);
}

QWidget* SecondOpinionPanel::TickOf(const ModelOpinion& model, const QColor& colour) {
  auto* tick = new QCheckBox(table_);
  tick->setObjectName(FromUtf8("Curva " + model.id));
  tick->setIcon(Swatch(colour, devicePixelRatioF()));
  tick->setIconSize(QSize(kSwatchWidth, kSwatchHeight));
  tick->setToolTip(Text(speech_.words, kOpinionCurveTipRow));
  tick->setAccessibleName(tick->toolTip() + ": " + Text(speech_.words, model.name));
  tick->setChecked(ticked_.contains(model.id));
  tick->setEnabled(model.result.spectrum.has_value());
  connect(tick, &QCheckBox::toggled, this, [this, id = model.id](bool on) {
    if (on) {
      ticked_.insert(id);
    } else {
      ticked_.erase(id);
    }
    emit curves_.Changed();
  });
  return tick;
}

void SecondOpinionPanel::AddModel(const ModelOpinion& model, int row, bool impact) {
  auto* grid = static_cast<QGridLayout*>(table_->layout());
  const QString id = FromUtf8(model.id);
  const auto add = [&](const char* what, const QString& text, int column, Qt::Alignment alignment) {
    QLabel* cell = Cell(text, table_, alignment);
    cell->setObjectName(QString(what) + ' ' + id);
    grid->addWidget(cell, row, column);
    return cell;
  };
  const bool chosen = model.id == kChosenModel;
  if (!chosen) grid->addWidget(TickOf(model, ColourOf(*work_.Opinion(), model.id)), row, kTick);
  QString name = Text(speech_.words, model.name);
  if (chosen) name += QStringLiteral(" (") + Text(speech_.words, kOpinionChosenRow) + ')';
  if (model.best) name += QChar(QChar::Nbsp) + QString::fromUtf8(kBestMark);
  QLabel* shown = add("Modello", name, kName, Qt::AlignLeft);
  shown->setWordWrap(true);
  if (model.best) {
    shown->setToolTip(Text(speech_.words, kOpinionBestMarkRow));
    QFont strong = shown->font();
    strong.setBold(true);
    shown->setFont(strong);
  }
  const auto& result = model.result;
  const auto whole = [](const std::optional<double>& value) {
    return WithMinus(presentation::FormatTerm(value));
  };
  add("Indice", whole(RatingOf(model)), kRating, Qt::AlignRight);
  add("C", whole(impact ? result.ci : result.c), kTerm, Qt::AlignRight);
  if (!impact) add("Ctr", whole(result.ctr), kOtherTerm, Qt::AlignRight);
  add("Intervallo", IntervalText(model), kInterval, Qt::AlignLeft)->setWordWrap(true);
  add("Errore", model.errors ? Signed(model.errors->bias) : QString(), kBias, Qt::AlignRight);
  auto* why = new QToolButton(table_);
  why->setObjectName("Perche " + id);
  why->setText(Text(speech_.words, kOpinionWhyRow));
  why->setToolTip(Text(speech_.words, kOpinionWhyTipRow));
  why->setAccessibleName(why->text() + ' ' + name);
  why->setAutoRaise(true);
  connect(why, &QToolButton::clicked, this, [this, model_id = model.id] { ShowRoute(model_id); });
  grid->addWidget(why, row, kWhy);
}

/// "48 … 56 dB (43 measurements)", or why there is none.
QString SecondOpinionPanel::IntervalText(const ModelOpinion& model) const {
  const auto& interval = model.interval.interval;
  if (!interval) return Text(speech_.words, IntervalLine(model.interval));
  return FromUtf8(FormatFixed(interval->low, 0)) + QStringLiteral(" … ") +
         FromUtf8(FormatFixed(interval->high, 0)) + " dB (" + QString::number(interval->count) + ' ' +
         Text(speech_.words, kMeasurementsRow) + ')';
}

const ModelOpinion* SecondOpinionPanel::Find(const std::string& model) const {
  const auto& opinion = work_.Opinion();
  if (!opinion) return nullptr;
  const auto at = std::ranges::find(opinion->models, model, &ModelOpinion::id);
  return at == opinion->models.end() ? nullptr : &*at;
}

void SecondOpinionPanel::ShowRoute(const std::string& model) {
  const ModelOpinion* opinion = Find(model);
  if (opinion == nullptr) return;
  if (!route_) {
    route_ = new RouteWindow(speech_.words, this);
    route_->setAttribute(Qt::WA_DeleteOnClose);
  }
  route_->Show(*opinion, open_.Setup());
  route_->show();
  route_->raise();
}

// A window that stands open tells of the result that stands, or goes with it.
void SecondOpinionPanel::FollowRoute() {
  if (!route_ || work_.IsBusy()) return;
  const ModelOpinion* opinion = Find(route_->Model());
  if (opinion == nullptr) {
    route_->close();
  } else {
    route_->Show(*opinion, open_.Setup());
  }
}

}  // namespace velmar::shell
