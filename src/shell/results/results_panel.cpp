#include "shell/results/results_panel.h"

#include <QCheckBox>
#include <QFont>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>
#include <tuple>

#include "acoustics/unfavourable_deviations.h"
#include "elements/requirement.h"
#include "elements/single_numbers.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/page_parts/page_layout.h"
#include "shell/results/chart_view.h"
#include "shell/results/continuous_calculation.h"
#include "shell/results/difference_line.h"
#include "shell/results/requirement_line.h"
#include "shell/results/result_notes_view.h"
#include "shell/results/section_view.h"
#include "shell/results/single_numbers_panel.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr double kRatingScale = 2.4;
constexpr double kTermScale = 1.25;
constexpr int kTermGap = 2 * kPageSpacing;
// Symbols of the ratings, the same in every language.
constexpr const char* kRwName = "Rw = ";
constexpr const char* kLnwName = "Ln,w =";
constexpr const char* kImprovementName = "ΔRw =";
constexpr const char* kImpactName = "DLw =";

QString Whole(double value) { return FromUtf8(FormatShortest(RoundToEven(value))); }
QString Decibels(const std::optional<double>& value) {
  return value ? Whole(*value) + QStringLiteral(" dB") : QString();
}
QString Term(const char* name, const std::optional<double>& value) {
  return value ? QString(name) + "= " + Whole(*value) + " dB" : QString(name) + '=';
}

bool IsLining(const elements::Setup& setup) {
  if (!setup.calculation) return false;
  const elements::Family family = RowOf(*setup.calculation).family;
  return family == elements::Family::kLining || family == elements::Family::kCeiling;
}

QLabel* Named(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QFont Enlarged(QFont font, double scale) {
  font.setPointSizeF(font.pointSizeF() * scale);
  font.setBold(true);
  return font;
}

/// A name and the number behind it, which come and go together.
std::pair<QWidget*, QLabel*> MakePair(const char* frame_name, const std::pair<const char*, const char*>& name,
                                      const char* value_name, QWidget* parent) {
  auto* frame = new QWidget(parent);
  frame->setObjectName(frame_name);
  auto* line = new QHBoxLayout(frame);
  line->setContentsMargins(0, 0, 0, 0);
  QLabel* label = Named(name.first, frame);
  label->setText(name.second);
  QLabel* value = Named(value_name, frame);
  line->addWidget(label);
  line->addWidget(value);
  return {frame, value};
}

}  // namespace

ResultsPanel::ResultsPanel(calculation::OpenCalculation& open, const Speech& speech,
                           const validation::KnownAccuracy& accuracy, ChartOverlay* overlay, QWidget* parent)
    : QWidget(parent), open_(open), speech_(speech), accuracy_(accuracy) {
  setObjectName("prnFrame1");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPageSpacing, kPageSpacing, kPageSpacing, kPageSpacing);
  column->addWidget(MakeRatings());
  notes_ = new ResultNotesView(speech_, this);
  column->addWidget(notes_);
  column->addWidget(MakeNumbers());
  splitter_ = new QSplitter(Qt::Vertical, this);
  splitter_->addWidget(MakeChart());
  splitter_->addWidget(MakeSection());
  splitter_->setStretchFactor(0, 3);
  splitter_->setStretchFactor(1, 2);
  splitter_->setChildrenCollapsible(false);
  column->addWidget(splitter_, 1);
  if (overlay != nullptr) AddOverlay(*overlay);
}

void ResultsPanel::AddOverlay(ChartOverlay& overlay) {
  overlays_.push_back(&overlay);
  connect(&overlay, &ChartOverlay::Changed, this, &ResultsPanel::Show);
}

void ResultsPanel::AddFoot(QWidget* widget) { layout()->addWidget(widget); }

QWidget* ResultsPanel::MakeRatings() {
  auto* frame = new QWidget(this);
  auto* line = new QHBoxLayout(frame);
  line->setContentsMargins(kPageSpacing, 0, kPageSpacing, 0);
  line->setSpacing(0);
  const QFont large = Enlarged(font(), kRatingScale);
  rating_name_ = Named("LabelRw", frame);
  rating_ = Named("Label4", frame);
  rating_->setFont(large);
  rating_name_->setFont(large);
  // The place keeps its height when the rating goes, so that nothing moves.
  frame->setMinimumHeight(QFontMetrics(large).height() + kPageSpacing);
  due_ = Named("LabelEseguire", frame);
  due_->setText(Text(speech_.words, kNoResultRow));
  due_->setForegroundRole(QPalette::PlaceholderText);
  for (QLabel* label : {rating_name_, rating_, due_}) line->addWidget(label);
  c_ = Named("Label48_0", frame);
  ctr_ = Named("Label48_1", frame);
  std::tie(improvement_frame_, improvement_) =
      MakePair("FrameDrw", {"LabelDrw_0", kImprovementName}, "LabelDrw_1", frame);
  std::tie(impact_frame_, impact_improvement_) =
      MakePair("Frame6", {"LabelDlw", kImpactName}, "Label20", frame);
  for (QWidget* widget :
       {static_cast<QWidget*>(c_), static_cast<QWidget*>(ctr_), improvement_frame_, impact_frame_}) {
    widget->setFont(Enlarged(font(), kTermScale));
    // Within the widget, so that one that is hidden leaves no gap.
    widget->setContentsMargins(kTermGap, 0, 0, 0);
    line->addWidget(widget);
  }
  difference_ = new DifferenceLine(speech_.words, frame);
  difference_->setContentsMargins(kTermGap, 0, 0, 0);
  line->addWidget(difference_, 1);
  line->addStretch(0);
  return frame;
}

QWidget* ResultsPanel::MakeNumbers() {
  auto* frame = new QWidget(this);
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  open_numbers_ = new QToolButton(frame);
  open_numbers_->setObjectName("PulsanteIndici");
  open_numbers_->setText(Text(speech_.words, kAllNumbersRow));
  open_numbers_->setToolTip(Text(speech_.words, kAllNumbersTipRow));
  open_numbers_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  open_numbers_->setAutoRaise(true);
  open_numbers_->setCheckable(true);
  connect(open_numbers_, &QToolButton::toggled, this, [this] { ShowNumbers(); });
  column->addWidget(open_numbers_, 0, Qt::AlignLeft);
  numbers_ = new SingleNumbersPanel(speech_.words, frame);
  numbers_->hide();
  column->addWidget(numbers_);
  return frame;
}

QWidget* ResultsPanel::MakeChart() {
  auto* frame = new QWidget(this);
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  chart_ = new ChartView(speech_, frame);
  autoscale_ = new QCheckBox(Text(speech_.words, kAutoscaleRow), frame);
  autoscale_->setObjectName("Check3");
  connect(autoscale_, &QCheckBox::clicked, this, &ResultsPanel::ShowChart);
  values_ = new QLabel(frame);
  values_->setObjectName("LabelValori");
  values_->setForegroundRole(QPalette::PlaceholderText);
  // Names of structures may be long; they never widen the panel.
  values_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  connect(chart_, &ChartView::BandRead, values_, [this](const QString& values) {
    values_->setText(values_->fontMetrics().elidedText(values, Qt::ElideRight, values_->width()));
    values_->setToolTip(values);
  });
  requirement_ = new RequirementLine(open_, speech_.words, frame);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(2 * kPageSpacing);
  foot->addWidget(requirement_);
  foot->addWidget(values_, 1);
  foot->addWidget(autoscale_);
  column->addWidget(chart_, 1);
  column->addLayout(foot);
  return frame;
}

QWidget* ResultsPanel::MakeSection() {
  section_frame_ = new QWidget(this);
  auto* column = new QVBoxLayout(section_frame_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  auto* heading = new QLabel(Text(speech_.words, kSectionRow), section_frame_);
  heading->setObjectName("Label10_0");
  heading->setForegroundRole(QPalette::PlaceholderText);
  section_ = new SectionView(section_frame_);
  section_->setAccessibleName(heading->text());
  section_->setAccessibleDescription(Text(speech_.words, kSectionKeysRow));
  section_->setToolTip(Text(speech_.words, kSectionKeysRow));
  connect(section_, &SectionView::LayerHovered, this, &ResultsPanel::LayerHovered);
  connect(section_, &SectionView::LayerChosen, this, &ResultsPanel::LayerChosen);
  column->addWidget(heading);
  column->addWidget(section_, 1);
  return section_frame_;
}

void ResultsPanel::Show() {
  const elements::Setup& setup = open_.Setup();
  if (!setup.calculation) return;
  const auto& result = open_.Result();
  ShowRatings(setup, result ? &*result : nullptr);
  ShowChart();
  section_frame_->setVisible(RowOf(*setup.calculation).family != elements::Family::kFacade);
  section_->Show(presentation::SectionOf(setup, speech_.words));
}

void ResultsPanel::ShowRatings(const elements::Setup& setup, const elements::ResultSet* result) {
  const elements::Calculation calculation = *setup.calculation;
  const bool impact = RowOf(calculation).family == elements::Family::kImpact;
  const bool rated = result != nullptr;
  const elements::ResultSet none;
  const elements::ResultSet& shown = rated ? *result : none;
  rating_name_->setText(impact ? kLnwName : kRwName);
  // "Rw = " ends in the blank that "Ln,w =" has not.
  const int blank = impact ? rating_->fontMetrics().horizontalAdvance(' ') : 0;
  rating_->setContentsMargins(blank, 0, 0, 0);
  rating_->setText(Decibels(impact ? shown.lnw : shown.rw));
  rating_name_->setVisible(rated);
  rating_->setVisible(rated);
  c_->setText(impact ? Term("Ci", shown.ci) : Term("C", shown.c));
  ctr_->setText(Term("Ctr", shown.ctr));
  c_->setVisible(impact ? shown.ci.has_value() : shown.c.has_value());
  ctr_->setVisible(shown.ctr.has_value() && !impact);
  const elements::Family family = RowOf(calculation).family;
  const bool lining = IsLining(family);
  for (QLabel* term : {c_, ctr_})
    term->setToolTip(lining ? Text(speech_.words, kLiningTermsTipRow) : QString());
  const bool improves = lining || RowOf(calculation).model == elements::Model::kFloatingScreedFloor;
  improvement_->setText(Decibels(shown.delta_rw));
  improvement_frame_->setVisible(improves && rated);
  impact_improvement_->setText(Decibels(shown.delta_lnw));
  impact_frame_->setVisible(impact && rated && shown.delta_lnw.has_value());
  notes_->Show(setup, result, accuracy_.Get());
  if (continuous_ != nullptr) difference_->Show(*continuous_, impact ? shown.lnw : shown.rw, impact);
  due_->setVisible(!rated && !difference_->SaysWhy());
  requirement_->Show();
  ShowNumbers();
}

void ResultsPanel::Follow(const ContinuousCalculation& continuous) {
  continuous_ = &continuous;
  connect(&continuous, &ContinuousCalculation::Changed, this, &ResultsPanel::Show);
}

void ResultsPanel::ShowNumbers() {
  const elements::Setup& setup = open_.Setup();
  const auto& result = open_.Result();
  std::vector<elements::SingleNumber> numbers;
  if (result && setup.calculation) numbers = elements::SingleNumbersOf(*result, *setup.calculation);
  const bool open = open_numbers_->isChecked() && !numbers.empty();
  open_numbers_->setEnabled(!numbers.empty());
  open_numbers_->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
  numbers_->Show(numbers, IsLining(setup));
  numbers_->setVisible(open);
}

void ResultsPanel::ShowChart() {
  const auto& result = open_.Result();
  shown_ = result ? presentation::CurveChartOf(open_.Setup(), *result, speech_.words) : std::nullopt;
  autoscale_->setEnabled(result.has_value());
  if (shown_) {
    shown_->autoscale = autoscale_->isChecked();
    for (ChartOverlay* overlay : overlays_) overlay->LayOver(*shown_);
  }
  // A result without a curve says so in its place.
  const std::string note = result && !shown_ ? speech_.words(kRatingsOnlyRow) : std::string();
  presentation::CurveChart seen =
      shown_ ? *shown_ : presentation::EmptyChartOf(open_.Setup(), note, speech_.words);
  AddMarks(seen);
  chart_->Show(seen);
}

void ResultsPanel::AddMarks(presentation::CurveChart& chart) const {
  const presentation::Words& words = speech_.words;
  const elements::Setup& setup = open_.Setup();
  chart.marks.pale_outside = true;
  chart.marks.deviations = chart.shift.has_value();
  chart.words.deviation = words(kDeviationRow);
  if (chart.shift) {
    const double sum = acoustics::SumOf(presentation::DeviationsOf(chart));
    chart.words.deviations = words(kDeviationsRow) + ' ' + FormatFixed(sum, 1) + ' ' + words(kOutOfRow) +
                             ' ' + FormatFixed(acoustics::kAllowedDeviationDb, 1) + " dB";
    // A relation moves the curve by what it comes to, and the reference curve by whole decibels.
    if (RoundToEven(sum, 1) > acoustics::kAllowedDeviationDb && open_.Result()->relation_rating)
      chart.words.deviations_note = words(kDeviationsByRelationRow);
  }
  if (const auto required = elements::RequirementOf(setup)) {
    chart.marks.required = required;
    chart.words.required = words(kLimitRow) + ' ' + FormatShortest(*required);
  }
  chart.words.former = words(kFormerCurveRow);
  const auto& former = continuous_ != nullptr ? continuous_->Former() : std::nullopt;
  const bool impact = RowOf(*setup.calculation).family == elements::Family::kImpact;
  if (former && former->result.spectrum && former->result.lnw.has_value() == impact)
    chart.marks.former = former->result.spectrum;
}

void ResultsPanel::Highlight(const std::optional<presentation::LayerPlace>& place) {
  section_->Highlight(place);
}

}  // namespace velmar::shell
