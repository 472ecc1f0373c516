#include "shell/results/variant_strip.h"

#include <QColor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "calculation/open/variants.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using calculation::Step;
using calculation::StepKind;

constexpr int kMostLetters = 24;
/// Of the variants' curves, the first one again behind the last.
constexpr std::array<QColor, 4> kCurveColours = {QColor{0x2F, 0x6B, 0xC4}, QColor{0x8C, 0x61, 0x2C},
                                                 QColor{0x6F, 0x4E, 0xB5}, QColor{0x59, 0x59, 0x59}};

QString Whole(double value) {
  QString text = FromUtf8(FormatShortest(RoundToEven(value)));
  return text.replace('-', QChar(0x2212));
}

/// A name as long as there is room for it.
QString Shortened(const std::string& name) {
  const QString whole = FromUtf8(name);
  return whole.size() <= kMostLetters ? whole : whole.left(kMostLetters - 1) + QChar(0x2026);
}

/// The numbers of a result that stand for it: the rating and its terms.
QString RatingText(const elements::VariantResult& result) {
  if (result.lnw) {
    const QString term = result.ci ? " (" + Whole(*result.ci) + ')' : QString();
    return "Ln,w " + Whole(*result.lnw) + " dB" + term;
  }
  if (!result.rw) return {};
  const bool terms = result.c && result.ctr;
  return "Rw " + Whole(*result.rw) + " dB" +
         (terms ? " (" + Whole(*result.c) + "; " + Whole(*result.ctr) + ')' : QString());
}

}  // namespace

VariantStrip::VariantStrip(calculation::OpenCalculation& open, const Speech& speech, QWidget* parent)
    : QWidget(parent), open_(open), speech_(speech) {
  setObjectName("Varianti");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 0, 8, 4);
  row->setSpacing(4);
  area_ = new QScrollArea(this);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidgetResizable(true);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area_->setFocusPolicy(Qt::NoFocus);
  auto* inner = new QWidget(area_);
  line_ = new QHBoxLayout(inner);
  line_->setContentsMargins(0, 0, 0, 0);
  line_->setSpacing(4);
  line_->addStretch(1);
  area_->setWidget(inner);
  connect(area_->horizontalScrollBar(), &QScrollBar::rangeChanged, this, &VariantStrip::FitHeight);
  fix_ = new QToolButton(this);
  fix_->setObjectName("FissaVariante");
  fix_->setAutoRaise(true);
  fix_->setFocusPolicy(Qt::TabFocus);
  fix_->setToolTip(Text(speech.words, kFixVariantTipRow));
  fix_->setAccessibleName(Text(speech.words, kFixVariantRow));
  connect(fix_, &QToolButton::clicked, this, &VariantStrip::Fix);
  curves_ = new QToolButton(this);
  curves_->setObjectName("CurveVarianti");
  curves_->setText(Text(speech.words, kVariantCurvesRow));
  curves_->setToolTip(Text(speech.words, kVariantCurvesTipRow));
  curves_->setAutoRaise(true);
  curves_->setCheckable(true);
  curves_->setChecked(true);
  curves_->setFocusPolicy(Qt::TabFocus);
  connect(curves_, &QToolButton::toggled, &overlay_, &ChartOverlay::Changed);
  row->addWidget(area_, 1);
  row->addWidget(curves_, 0, Qt::AlignRight | Qt::AlignVCenter);
  row->addWidget(fix_, 0, Qt::AlignRight | Qt::AlignVCenter);
}

void VariantStrip::Read() {
  std::vector<elements::Variant> variants = VariantsOf(open_.Setup().further);
  if (variants == read_) return;
  for (const Entry& entry : std::exchange(entries_, {})) {
    entry.button->setObjectName({});
    entry.button->hide();
    entry.button->deleteLater();
  }
  for (const elements::Variant& variant : variants) {
    Entry entry{.variant = variant};
    entry.setup = calculation::SetupOfVariant(elements::Setup(), variant);
    if (entry.setup) entry.totals = calculation::ComputeTotals(*entry.setup);
    entry.result = variant.Result();
    entry.button = MakeButton(static_cast<int>(entries_.size()));
    entries_.push_back(std::move(entry));
  }
  read_ = std::move(variants);
}

QToolButton* VariantStrip::MakeButton(int index) {
  auto* button = new QToolButton(this);
  button->setObjectName(ArrayName("Variante", index));
  button->setCheckable(true);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setContextMenuPolicy(Qt::CustomContextMenu);
  button->installEventFilter(this);
  connect(button, &QToolButton::clicked, this, [this, index] { GoTo(index); });
  connect(button, &QWidget::customContextMenuRequested, this, [this, index] { OpenMenu(index); });
  line_->insertWidget(index, button);
  // At once, not with the next layout: it may be given the focus.
  button->show();
  return button;
}

void VariantStrip::Show() {
  Read();
  elements::Setup alone = open_.Setup();
  alone.information = {};
  alone.further = {};
  for (Entry& entry : entries_) {
    entry.is_open = entry.setup == alone;
    ShowButton(entry);
  }
  const bool any = !entries_.empty();
  fix_->setText(any ? QStringLiteral("+") : "+ " + Text(speech_.words, kFixVariantRow));
  area_->setVisible(any);
  curves_->setVisible(any);
  setVisible(any || open_.Result());
  if (!any) return;
  FitHeight();
}

/// A strip that is too long for the window has its bar below the variants, not over them.
void VariantStrip::FitHeight() {
  const QScrollBar& bar = *area_->horizontalScrollBar();
  const int room = bar.maximum() > bar.minimum() ? bar.sizeHint().height() : 0;
  area_->setFixedHeight(area_->widget()->sizeHint().height() + room);
}

void VariantStrip::LayOver(presentation::CurveChart& chart) const {
  const auto& now = open_.Result();
  if (!now || !curves_->isChecked()) return;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Entry& entry = entries_[i];
    if (entry.is_open || !entry.result || !entry.result->spectrum) continue;
    if (entry.result->lnw.has_value() != now->lnw.has_value()) continue;
    // One that is compared stands there already.
    if (std::ranges::any_of(chart.comparison.curves, [&](const presentation::ComparedCurve& curve) {
          return curve.name == entry.variant.name && curve.levels == *entry.result->spectrum;
        }))
      continue;
    chart.further.push_back({ToUtf8(Shortened(entry.variant.name)), *entry.result->spectrum,
                             kCurveColours.at(i % kCurveColours.size())});
  }
}

void VariantStrip::ShowButton(const Entry& entry) {
  const QString text = ButtonText(entry);
  if (entry.button->text() != text) {
    entry.button->setText(text);
    entry.button->setAccessibleName(QString(text).replace('\n', ", "));
  }
  entry.button->setChecked(entry.is_open);
  entry.button->setToolTip(FromUtf8(entry.variant.name) + '\n' +
                           Text(speech_.words, entry.is_open ? kVariantOpenTipRow : kVariantTipRow));
}

QString VariantStrip::ButtonText(const Entry& entry) const {
  const QString name = Shortened(entry.variant.name);
  if (!entry.setup) return name + '\n' + Text(speech_.words, kVariantUnreadableRow);
  QString rating = entry.result ? RatingText(*entry.result) : QString();
  if (rating.isEmpty()) rating = Text(speech_.words, kVariantWithoutResultRow);
  if (entry.result) rating += Difference(*entry.result);
  QString text = name + '\n' + rating;
  if (entry.totals.thickness_mm > 0.0)
    text += '\n' + FromUtf8(FormatFixed(entry.totals.thickness_mm, 1)) + " mm · " +
            FromUtf8(FormatFixed(entry.totals.surface_mass_kg_m2, 1)) + " kg/m²";
  return text.replace('&', "&&");
}

QString VariantStrip::Difference(const elements::VariantResult& result) const {
  const auto& now = open_.Result();
  if (!now) return {};
  const auto& of_variant = result.lnw ? result.lnw : result.rw;
  const auto& of_open = result.lnw ? now->lnw : now->rw;
  if (!of_variant || !of_open || result.lnw.has_value() != now->lnw.has_value()) return {};
  const double difference = RoundToEven(*of_variant) - RoundToEven(*of_open);
  if (difference == 0.0) return QStringLiteral("  =");
  return difference > 0.0 ? "  ▲ +" + Whole(difference) : "  ▼ " + Whole(difference);
}

void VariantStrip::Fix() {
  emit SettleAsked();
  const elements::Setup& setup = open_.Setup();
  if (!setup.calculation) return;
  if (!calculation::CanFixVariant(setup)) {
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kVariantsFullRow));
    return;
  }
  const std::string name = calculation::NextVariantName(setup);
  open_.EditKeepingResult(
      [&](elements::Setup& changed) { calculation::FixVariant(changed, name, open_.Result()); },
      Step{StepKind::kVariantFixed});
}

void VariantStrip::GoTo(int index) {
  emit SettleAsked();
  if (!calculation::GoToVariant(open_, index))
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kVariantUnreadableBoxRow));
  // A click leaves the button unticked where the set-up is that of the variant already.
  Show();
}

void VariantStrip::FixAgain(int index) {
  emit SettleAsked();
  if (!calculation::CanFixVariant(open_.Setup()) && entries_.size() < elements::kMostVariants) return;
  open_.EditKeepingResult(
      [&](elements::Setup& changed) { calculation::FixVariantAgain(changed, index, open_.Result()); },
      Step{StepKind::kVariantFixed});
}

void VariantStrip::Rename(int index) {
  if (!speech_.boxes.ask_name) return;
  const QString old = FromUtf8(entries_.at(static_cast<std::size_t>(index)).variant.name);
  const QString wanted = speech_.boxes
                             .ask_name({.title = Text(speech_.words, kRenameVariantRow),
                                        .prompt = Text(speech_.words, kVariantNameRow),
                                        .proposed = old})
                             .trimmed();
  if (wanted.isEmpty() || wanted == old) return;
  if (!calculation::IsFreeVariantName(open_.Setup(), ToUtf8(wanted), index)) {
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kVariantNameTakenRow));
    return;
  }
  open_.EditKeepingResult(
      [&](elements::Setup& changed) { calculation::RenameVariant(changed, index, ToUtf8(wanted)); },
      Step{StepKind::kVariantRenamed});
  Focus(index);
}

void VariantStrip::Move(int from, int to) {
  if (to < 0 || to >= static_cast<int>(entries_.size())) return;
  open_.EditKeepingResult([&](elements::Setup& changed) { calculation::MoveVariant(changed, from, to); },
                          Step{StepKind::kVariantMoved});
  Focus(to);
}

void VariantStrip::Remove(int index) {
  open_.EditKeepingResult([&](elements::Setup& changed) { calculation::RemoveVariant(changed, index); },
                          Step{StepKind::kVariantRemoved});
  Focus(std::min(index, static_cast<int>(entries_.size()) - 1));
}

void VariantStrip::Focus(int index) {
  if (index < 0 || index >= static_cast<int>(entries_.size())) return;
  entries_.at(static_cast<std::size_t>(index)).button->setFocus(Qt::OtherFocusReason);
}

void VariantStrip::OpenMenu(int index) {
  auto* menu = new QMenu(this);
  menu->setObjectName("MenuVariante");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const int last = static_cast<int>(entries_.size()) - 1;
  const auto add = [&](MessageRow row, const char* name, const QKeySequence& key, bool enabled, auto act) {
    QAction* action = menu->addAction(Text(speech_.words, row), this, act);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setEnabled(enabled);
  };
  constexpr auto kShift = Qt::CTRL | Qt::SHIFT;
  add(kGoToVariantRow, "torna_variante", {}, true, [this, index] { GoTo(index); });
  add(kFixVariantAgainRow, "fissa_di_nuovo", {}, true, [this, index] { FixAgain(index); });
  add(kRenameVariantRow, "rinomina_variante", Qt::Key_F2, true, [this, index] { Rename(index); });
  add(kMoveVariantLeftRow, "variante_a_sinistra", kShift | Qt::Key_Left, index > 0,
      [this, index] { Move(index, index - 1); });
  add(kMoveVariantRightRow, "variante_a_destra", kShift | Qt::Key_Right, index < last,
      [this, index] { Move(index, index + 1); });
  add(kRemoveVariantRow, "elimina_variante", Qt::Key_Delete, true, [this, index] { Remove(index); });
  const QToolButton* button = entries_.at(static_cast<std::size_t>(index)).button;
  menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

bool VariantStrip::TakeKey(int index, int key, Qt::KeyboardModifiers modifiers) {
  if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && key == Qt::Key_Left) {
    Move(index, index - 1);
  } else if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && key == Qt::Key_Right) {
    Move(index, index + 1);
  } else if (modifiers == Qt::NoModifier && key == Qt::Key_F2) {
    Rename(index);
  } else if (modifiers == Qt::NoModifier && key == Qt::Key_Delete) {
    Remove(index);
  } else if (modifiers == Qt::NoModifier && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
    GoTo(index);
  } else {
    return false;
  }
  return true;
}

bool VariantStrip::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].button == watched)
      return TakeKey(static_cast<int>(i), key->key(), key->modifiers() & ~Qt::KeypadModifier);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace velmar::shell
