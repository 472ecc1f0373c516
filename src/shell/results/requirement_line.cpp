#include "shell/results/requirement_line.h"

#include <QHBoxLayout>
#include <QLabel>

#include "elements/requirement.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/requirement_text.h"
#include "shell/fields/number_field.h"
#include "shell/fields/number_steps.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

RequirementLine::RequirementLine(calculation::OpenCalculation& open, const presentation::Words& words,
                                 QWidget* parent)
    : QWidget(parent), open_(open), words_(words) {
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(6);
  auto* name = new QLabel('&' + Text(words_, kRequirementRow) + ':', this);
  name->setObjectName("LabelRequisito");
  required_ = new NumberField("TextRequisito", NumberKind::kReal, this);
  required_->setAccessibleName(Text(words_, kRequirementRow) + " [dB]");
  required_->setToolTip(Text(words_, kRequirementTipRow));
  name->setBuddy(required_);
  StepByArrows(required_);
  verdict_ = new QLabel(this);
  verdict_->setObjectName("LabelEsitoRequisito");
  verdict_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  line->addWidget(name);
  line->addWidget(required_);
  line->addWidget(new QLabel(QStringLiteral("dB"), this));
  line->addWidget(verdict_);
  connect(required_, &NumberField::Edited, this, &RequirementLine::Enter);
}

// No result depends on what is required.
void RequirementLine::Enter(const std::string& text) {
  const std::optional<double> required = ParseDecimal(text);
  if (!required && !text.empty()) return;
  open_.EditKeepingResult([&](elements::Setup& setup) { elements::SetRequirement(setup, required); });
}

void RequirementLine::Settle() { required_->Settle(); }

void RequirementLine::Show() {
  const std::optional<double> required = elements::RequirementOf(open_.Setup());
  required_->Show(required ? FormatShortest(*required) : std::string());
  const auto& result = open_.Result();
  const std::string verdict =
      required && result ? presentation::RequirementText(*required, *result, words_) : std::string();
  verdict_->setText(FromUtf8(verdict));
  const bool missed = required && result && elements::MarginTo(*required, *result).value_or(0.0) < 0.0;
  QFont weight = font();
  weight.setBold(missed);
  verdict_->setFont(weight);
  verdict_->setVisible(!verdict.empty());
}

}  // namespace velmar::shell
