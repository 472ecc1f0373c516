#include "shell/results/difference_line.h"

#include <QHBoxLayout>
#include <QLabel>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "shell/page_parts/page_layout.h"
#include "shell/results/continuous_calculation.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using Wait = ContinuousCalculation::Wait;

/// A whole number with the sign that typography has for it.
QString Signed(double value, bool plus = false) {
  const double whole = RoundToEven(value);
  const QString digits = FromUtf8(FormatShortest(std::abs(whole)));
  if (whole < 0.0) return QStringLiteral("−") + digits;
  return plus && whole > 0.0 ? '+' + digits : digits;
}

/// "▲ +2", "▼ −1", "= 0".
QString DifferenceText(double difference) {
  const double whole = RoundToEven(difference);
  if (whole == 0.0) return QStringLiteral("= 0");
  return (whole > 0.0 ? QStringLiteral("▲ ") : QStringLiteral("▼ ")) + Signed(whole, /*plus=*/true);
}

/// "44 (−1; −4)": the rating and its terms.
QString RatingText(const elements::ResultSet& result) {
  QStringList terms;
  for (const auto& term :
       result.lnw ? std::array{result.ci, std::optional<double>()} : std::array{result.c, result.ctr}) {
    if (term) terms += Signed(*term);
  }
  const QString rating = Signed(*(result.lnw ? result.lnw : result.rw));
  return terms.isEmpty() ? rating : rating + " (" + terms.join("; ") + ')';
}

QString ReasonText(const ContinuousCalculation& continuous, const presentation::Words& words) {
  const QString reason = Text(words, continuous.Reason()).simplified();
  switch (continuous.WaitsFor()) {
    case Wait::kNothing:
      return {};
    case Wait::kRun:
      return Text(words, kRunningRow);
    case Wait::kEntry:
      return Text(words, kEntryGoesOnRow);
    case Wait::kCompletion:
      return Text(words, kCompleteWithRunRow);
    case Wait::kAnswer:
      return reason + ' ' + Text(words, kAnswerWithRunRow);
    case Wait::kCorrection:
      return reason;
  }
  return {};
}

}  // namespace

DifferenceLine::DifferenceLine(const presentation::Words& words, QWidget* parent)
    : QWidget(parent), words_(words) {
  setObjectName("Differenza");
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(kPageSpacing);
  difference_ = new QLabel(this);
  difference_->setObjectName("LabelDifferenza");
  QFont bold = font();
  bold.setBold(true);
  difference_->setFont(bold);
  former_ = new QLabel(this);
  former_->setObjectName("LabelPrima");
  former_->setForegroundRole(QPalette::PlaceholderText);
  reason_ = new QLabel(this);
  reason_->setObjectName("LabelContinuo");
  reason_->setWordWrap(true);
  for (QLabel* label : {difference_, former_, reason_}) {
    label->setToolTip(Text(words_, kFormerTipRow));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(label, label == reason_ ? 1 : 0);
  }
  reason_->setToolTip({});
  for (QLabel* label : {difference_, former_})
    label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  // What was before never widens the window: where it finds no room its end is cut, and the tool tip has it.
  former_->setMinimumWidth(1);
  line->addStretch(0);
  hide();
}

void DifferenceLine::Show(const ContinuousCalculation& continuous, const std::optional<double>& rating,
                          bool impact) {
  const std::optional<FormerResult>& former = continuous.Former();
  const bool comparable =
      former && former->result.lnw.has_value() == impact && (former->result.lnw || former->result.rw);
  const std::optional<double> before =
      comparable ? (impact ? former->result.lnw : former->result.rw) : std::nullopt;
  difference_->setText(before && rating ? DifferenceText(RoundToEven(*rating) - RoundToEven(*before))
                                        : QString());
  const QString was = before ? Text(words_, kFormerRow) + ' ' + RatingText(former->result) : QString();
  former_->setText(was);
  former_->setToolTip(was + '\n' + Text(words_, kFormerTipRow));
  reason_->setText(ReasonText(continuous, words_));
  bool any = false;
  for (QLabel* label : {difference_, former_, reason_}) {
    label->setVisible(!label->text().isEmpty());
    any = any || !label->text().isEmpty();
  }
  setVisible(any);
}

bool DifferenceLine::SaysWhy() const { return !reason_->text().isEmpty(); }

}  // namespace velmar::shell
