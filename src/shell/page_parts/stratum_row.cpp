#include "shell/page_parts/stratum_row.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <algorithm>
#include <array>

#include "calculation/edits/multilayer_edits.h"
#include "elements/parts.h"
#include "foundation/message_rows.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/number_field.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::Field;
using elements::LayerGroup;
using elements::Setup;
using elements::Stratum;
using elements::StratumKind;

constexpr const char* kSheets = "ComboLastre";
constexpr int kLinesOfRow = 2;
constexpr int kThicknessColumn = LayerRow::kThicknessColumn + StratumRow::kShift;
constexpr int kMenuColumn = LayerRow::kToolsColumn + StratumRow::kShift;

QStringList Items(const presentation::Words& words, MessageRow first, int count) {
  QStringList items;
  for (int i = 0; i < count; ++i) items += Text(words, MessageRow{first.number + i});
  return items;
}

Stratum& StratumOf(Setup& setup, int index) {
  return setup.multilayer.strata.at(static_cast<std::size_t>(index));
}

void SetVisible(const std::vector<QWidget*>& widgets, bool visible) {
  for (QWidget* widget : widgets) widget->setVisible(visible);
}

}  // namespace

StratumRow::StratumRow(int index, PageContext& context, QGridLayout& grid, QWidget* page)
    : QObject(page), index_(index), context_(context) {
  const int line = 1 + index * kLinesOfRow;
  number_ = new QLabel(page);
  number_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(number_, line, LayerRow::kLeadColumn);
  MakeKind(page);
  grid.addWidget(kind_, line, kKindColumn);
  solid_ = new LayerRow({.group = LayerGroup::kStratumSolid,
                         .index = index,
                         .count_box = kSheets,
                         .shift = kShift,
                         .has_menu = false},
                        context, grid, line, page);
  fibre_ =
      new LayerRow({.group = LayerGroup::kStratumFibre, .index = index, .shift = kShift, .has_menu = false},
                   context, grid, line, page);
  thickness_ = MakeText(
      {"TextSpessoreStrato", Field::kStratumThickness, kLayerThicknessRow, &Stratum::thickness_text}, page);
  thickness_->setToolTip(Text(context.Words(), kLayerThicknessTipRow));
  grid.addWidget(thickness_, line, kThicknessColumn);
  MakeMenu(page);
  grid.addWidget(more_, line, kMenuColumn);
  for (LayerRow* row : {solid_, fibre_}) row->LeaveMenuTo(more_);
  MakeDetail(grid, page);
}

void StratumRow::MakeKind(QWidget* page) {
  kind_ = new ChoiceBox(ArrayName("ComboTipoStrato", index_), page);
  kind_->Offer(Items(context_.Words(), kPlateStratumRow, elements::kStratumKindCount));
  context_.Place({.field = Field::kStratumKind, .index = index_}, kind_);
  kind_->setAccessibleDescription(Text(context_.Words(), kStratumKindRow) + ' ' +
                                  QString::number(index_ + 1));
  connect(kind_, &QComboBox::activated, this, [this](int kind) {
    context_.Edit(
        [&](Setup& setup) { calculation::ChooseStratumKind(setup, index_, static_cast<StratumKind>(kind)); });
  });
}

template <typename Change>
void StratumRow::Rearrange(Change&& change) {
  // Each press is a step of its own, however many follow.
  context_.open.EndStep();
  context_.Edit(std::forward<Change>(change));
  context_.open.EndStep();
}

void StratumRow::Move(int places) {
  const int to = index_ + places;
  if (to < 0 || to >= context_.open.Setup().multilayer.Count()) return;
  Rearrange([&](Setup& setup) { calculation::MoveStratum(setup, index_, to); });
  emit Moved(to);
}

void StratumRow::MakeMenu(QWidget* page) {
  const auto& words = context_.Words();
  more_ = new QToolButton(page);
  more_->setObjectName(ArrayName("CommandAzioniStrato", index_));
  more_->setIcon(LineIcon("more"));
  more_->setToolTip(Text(words, kStratumActionsRow));
  more_->setAccessibleName(Text(words, kStratumActionsRow) + ' ' + QString::number(index_ + 1));
  more_->setAutoRaise(true);
  more_->setFocusPolicy(Qt::TabFocus);
  more_->setPopupMode(QToolButton::InstantPopup);
  more_->setStyleSheet("QToolButton::menu-indicator { image: none; }");
  auto* menu = new QMenu(more_);
  more_->setMenu(menu);
  const auto action = [&](const char* name, MessageRow row, auto&& act) {
    QAction* made = menu->addAction(Text(words, row));
    made->setObjectName(ArrayName(name, index_));
    connect(made, &QAction::triggered, this, act);
    return made;
  };
  up_ = action("StratoSu", kMoveStratumUpRow, [this] { Move(-1); });
  down_ = action("StratoGiu", kMoveStratumDownRow, [this] { Move(+1); });
  menu->addSeparator();
  adding_ = {
      action("StratoInserisciSopra", kInsertStratumAboveRow,
             [this] { Rearrange([&](Setup& setup) { calculation::InsertStratum(setup, index_); }); }),
      action("StratoInserisciSotto", kInsertStratumBelowRow,
             [this] { Rearrange([&](Setup& setup) { calculation::InsertStratum(setup, index_ + 1); }); }),
      action("StratoDuplica", kDuplicateStratumRow,
             [this] { Rearrange([&](Setup& setup) { calculation::DuplicateStratum(setup, index_); }); })};
  menu->addSeparator();
  remove_ = action("StratoElimina", kRemoveStratumRow,
                   [this] { Rearrange([&](Setup& setup) { calculation::RemoveStratum(setup, index_); }); });
}

void StratumRow::MakeDetail(QGridLayout& grid, QWidget* page) {
  detail_ = new QWidget(page);
  auto* line = new QHBoxLayout(detail_);
  line->setContentsMargins(0, 0, 0, kPageSpacing);
  line->setSpacing(kPageSpacing);
  MakeConnection(*line, detail_);
  const auto& words = context_.Words();
  const auto add = [&](NumberField* field, MessageRow caption) {
    auto* label = new QLabel(Text(words, caption), detail_);
    label->setBuddy(field);
    line->addWidget(label);
    line->addWidget(field);
    of_profile_.insert(of_profile_.end(), {label, field});
  };
  profile_height_ = MakeText(
      {"TextAltezzaGreca", Field::kProfileHeight, kProfileHeightRow, &Stratum::profile_height_text}, detail_);
  add(profile_height_, kProfileHeightRow);
  profile_pitch_ = MakeText(
      {"TextPassoGreca", Field::kProfilePitch, kProfilePitchRow, &Stratum::profile_pitch_text}, detail_);
  add(profile_pitch_, kProfilePitchRow);
  line->addStretch(1);
  const int below = 2 + index_ * kLinesOfRow;
  grid.addWidget(detail_, below, kKindColumn, 1, kMenuColumn - kKindColumn);
}

void StratumRow::MakeConnection(QBoxLayout& line, QWidget* page) {
  const auto& words = context_.Words();
  connection_ = new ChoiceBox(ArrayName("ComboCollegamento", index_), page);
  connection_->Offer(Items(words, kNoConnectionRow, elements::kCavityConnectionCount));
  context_.Place({.field = Field::kConnection, .index = index_}, connection_);
  connection_->setAccessibleDescription(Text(words, kCavityConnectionRow) + ' ' +
                                        QString::number(index_ + 1));
  connect(connection_, &QComboBox::activated, this, [this](int connection) {
    context_.Edit([&](Setup& setup) {
      StratumOf(setup, index_).connection = static_cast<elements::CavityConnection>(connection);
    });
  });
  auto* caption = new QLabel(Text(words, kCavityConnectionRow), page);
  caption->setBuddy(connection_);
  connection_number_ = MakeText(
      {"TextCollegamento", Field::kConnectionNumber, kConnectionSpacingRow, &Stratum::connection_text}, page);
  connection_caption_ = new QLabel(page);
  connection_caption_->setBuddy(connection_number_);
  of_cavity_ = {caption, connection_};
  of_connected_ = {connection_caption_, connection_number_};
  for (QWidget* widget :
       {static_cast<QWidget*>(caption), static_cast<QWidget*>(connection_),
        static_cast<QWidget*>(connection_caption_), static_cast<QWidget*>(connection_number_)})
    line.addWidget(widget);
}

NumberField* StratumRow::MakeText(const TextPlan& plan, QWidget* page) {
  auto* field = new NumberField(ArrayName(plan.name, index_), NumberKind::kReal, page);
  field->setAccessibleName(Text(context_.Words(), plan.caption) + ' ' + QString::number(index_ + 1));
  context_.Watch(field);
  context_.Place({.field = plan.field, .index = index_}, field);
  connect(field, &NumberField::Edited, this, [this, text = plan.text](const std::string& typed) {
    context_.Edit([&](Setup& setup) { StratumOf(setup, index_).*text = typed; });
  });
  return field;
}

void StratumRow::Show(const Setup& setup, bool visible) {
  const Stratum& stratum = setup.multilayer.strata.at(static_cast<std::size_t>(index_));
  const bool bare = elements::HasThicknessAlone(stratum.kind);
  solid_->Show(setup, visible && elements::TakesSolid(stratum.kind));
  fibre_->Show(setup, visible && stratum.kind == StratumKind::kFibre);
  number_->setVisible(visible && bare);
  kind_->setVisible(visible);
  thickness_->setVisible(visible && bare);
  more_->setVisible(visible);
  if (!visible) {
    detail_->hide();
    return;
  }
  // Air has no number on any paper; an interlayer is a layer like the plates.
  const int number = elements::NumberOf(setup, LayerGroup::kStratumSolid, index_);
  number_->setText(number > 0 ? QString::number(number) : QString());
  kind_->Show(static_cast<int>(stratum.kind));
  thickness_->Show(stratum.thickness_text);
  const int count = setup.multilayer.Count();
  up_->setEnabled(index_ > 0);
  down_->setEnabled(index_ + 1 < count);
  for (QAction* action : adding_) action->setEnabled(count < elements::Multilayer::kCapacity);
  remove_->setEnabled(count > 1);
  ShowDetail(setup);
}

void StratumRow::ShowDetail(const Setup& setup) {
  const Stratum& stratum = setup.multilayer.strata.at(static_cast<std::size_t>(index_));
  const bool cavity = setup.multilayer.BeginsCavity(index_);
  const bool profiled = stratum.kind == StratumKind::kProfiledSheet;
  SetVisible(of_cavity_, cavity);
  SetVisible(of_connected_, cavity && stratum.connection != elements::CavityConnection::kNone);
  SetVisible(of_profile_, profiled);
  detail_->setVisible(cavity || profiled);
  const bool points = stratum.connection == elements::CavityConnection::kPoints;
  connection_->Show(static_cast<int>(stratum.connection));
  connection_caption_->setText(
      Text(context_.Words(), points ? kConnectionsPerSquareMetreRow : kConnectionSpacingRow));
  connection_number_->Show(stratum.connection_text);
  profile_height_->Show(stratum.profile_height_text);
  profile_pitch_->Show(stratum.profile_pitch_text);
}

bool StratumRow::Holds(const QWidget* widget) const {
  if (widget == nullptr) return false;
  const std::array<const QWidget*, 4> own = {kind_, thickness_, more_, detail_};
  const bool is_own = std::ranges::any_of(
      own, [widget](const QWidget* one) { return one == widget || one->isAncestorOf(widget); });
  return is_own || solid_->Holds(widget) || fibre_->Holds(widget);
}

void StratumRow::TakeFocus() { kind_->setFocus(Qt::ShortcutFocusReason); }

}  // namespace velmar::shell
