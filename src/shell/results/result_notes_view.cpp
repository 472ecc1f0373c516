#include "shell/results/result_notes_view.h"

#include <QLabel>
#include <QVBoxLayout>

#include "presentation/texts/result_notes.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"
#include "validation/second_opinion.h"

namespace velmar::shell {
namespace {

/// A line that stands only where it says something.
void Put(QLabel* label, const QString& text) {
  label->setText(text);
  label->setVisible(!text.isEmpty());
}

/// The mark of what lies outside; words follow.
QString Marked(const QString& text) { return text.isEmpty() ? text : QStringLiteral("⚠ ") + text; }

}  // namespace

ResultNotesView::ResultNotesView(const Speech& speech, QWidget* parent) : QWidget(parent), speech_(speech) {
  setObjectName("FrameNote");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPageSpacing, 0, kPageSpacing, 0);
  column->setSpacing(2);
  resulting_ = Add("LabelElementoRisultante");
  interval_ = Add("LabelIntervallo");
  outside_interval_ = Add("LabelFuoriIntervallo");
  ranges_ = Add("LabelFuoriCampo");
}

QLabel* ResultNotesView::Add(const char* name) {
  auto* label = new QLabel(this);
  label->setObjectName(name);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->hide();
  layout()->addWidget(label);
  return label;
}

void ResultNotesView::Show(const elements::Setup& setup, const elements::ResultSet* result,
                           const validation::Accuracy& accuracy) {
  QString resulting;
  QString ranges;
  Message confidence;
  if (result != nullptr && setup.calculation) {
    resulting = FromUtf8(presentation::ResultingElementLine(*setup.calculation, *result, speech_.words));
    ranges =
        FromUtf8(presentation::Joined(presentation::RangeNotes(*setup.calculation, *result, speech_.words)));
    confidence =
        validation::ConfidenceLines(setup, *result, validation::IntervalOfResult(setup, *result, accuracy));
  }
  Put(resulting_, resulting);
  Put(ranges_, Marked(ranges));
  Put(interval_, confidence.empty() ? QString() : Text(speech_.words, confidence.front()));
  Put(outside_interval_, confidence.size() < 2 ? QString() : Marked(Text(speech_.words, confidence.back())));
  setVisible(!resulting.isEmpty() || !ranges.isEmpty() || !confidence.empty());
}

}  // namespace velmar::shell
