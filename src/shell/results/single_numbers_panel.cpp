#include "shell/results/single_numbers_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr std::size_t kColumns = 3;

QString ValueText(const elements::SingleNumber& number) {
  QString text = FromUtf8(FormatFixed(number.value, number.decimals));
  if (*number.unit != '\0') text += ' ' + QString::fromUtf8(number.unit);
  return text;
}

}  // namespace

SingleNumbersPanel::SingleNumbersPanel(presentation::Words words, QWidget* parent)
    : QWidget(parent), words_(std::move(words)) {
  setObjectName("FrameIndici");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPageSpacing, 0, kPageSpacing, 0);
  heading_ = new QLabel(Text(words_, kLinedElementNumbersRow), this);
  heading_->setObjectName("LabelIndici");
  heading_->setForegroundRole(QPalette::PlaceholderText);
  heading_->hide();
  column->addWidget(heading_);
  grid_ = new QGridLayout;
  grid_->setHorizontalSpacing(kPageSpacing);
  grid_->setVerticalSpacing(2);
  column->addLayout(grid_);
}

QLabel* SingleNumbersPanel::Add(const QString& name, const QString& text, const QString& tip) {
  auto* label = new QLabel(text, this);
  label->setObjectName(name);
  label->setToolTip(tip);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  labels_.push_back(label);
  return label;
}

void SingleNumbersPanel::Show(const std::vector<elements::SingleNumber>& numbers, bool lined) {
  for (QLabel* label : std::exchange(labels_, {})) delete label;
  heading_->setVisible(lined && !numbers.empty());
  // Down the columns, so that what belongs together stays together.
  const std::size_t rows = std::max<std::size_t>(1, (numbers.size() + kColumns - 1) / kColumns);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const elements::SingleNumber& number = numbers[i];
    const QString key = QString::fromUtf8(number.key);
    const QString tip = Text(words_, number.meaning);
    QLabel* name = Add("NomeIndice " + key, QString::fromUtf8(number.symbol), tip);
    name->setForegroundRole(QPalette::PlaceholderText);
    QLabel* value = Add("Indice " + key, ValueText(number), tip);
    value->setAccessibleName(QString::fromUtf8(number.symbol));
    QFont strong = value->font();
    strong.setBold(true);
    value->setFont(strong);
    // Numbers stand under numbers, with a unit or without.
    if (*number.unit == '\0') {
      value->setContentsMargins(0, 0, QFontMetrics(strong).horizontalAdvance(QStringLiteral(" dB")), 0);
    }
    const auto row = static_cast<int>(i % rows);
    const auto column = static_cast<int>(i / rows) * 3;
    grid_->addWidget(name, row, column);
    grid_->addWidget(value, row, column + 1, Qt::AlignRight);
    grid_->setColumnMinimumWidth(column + 2, 3 * kPageSpacing);
  }
  grid_->setColumnStretch(static_cast<int>(kColumns) * 3, 1);
}

}  // namespace velmar::shell
