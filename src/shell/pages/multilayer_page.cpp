#include "shell/pages/multilayer_page.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "calculation/edits/multilayer_edits.h"
#include "foundation/message_rows.h"
#include "shell/fields/list_boxes.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/page_layout.h"
#include "shell/page_parts/stratum_row.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

MultilayerPage::MultilayerPage(PageContext& context, QWidget* parent) : Page(parent), context_(context) {
  constexpr int kCapacity = elements::Multilayer::kCapacity;
  QVBoxLayout* column = PageLayout(this);
  count_ =
      AddTableHead(
          {.count_name = "ComboStrati", .lowest = 1, .highest = kCapacity, .count_label = kStratumCountRow},
          context, *column, this)
          .count;
  context_.Watch(count_);
  connect(count_, &CountBox::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { calculation::EnterStratumCount(setup, text); });
  });
  auto* grid = new QGridLayout;
  AddLayerHeads(*grid, 0, context, /*with_sheets=*/true, this, StratumRow::kShift);
  auto* head = new QLabel(Text(context.Words(), kStratumKindRow), this);
  head->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  head->setForegroundRole(QPalette::PlaceholderText);
  grid->addWidget(head, 0, StratumRow::kKindColumn);
  for (int i = 0; i < kCapacity; ++i) {
    rows_.push_back(new StratumRow(i, context, *grid, this));
    connect(rows_.back(), &StratumRow::Moved, this, [this](int place) {
      const auto at = static_cast<std::size_t>(place);
      if (at < rows_.size() && isAncestorOf(QApplication::focusWidget())) rows_[at]->TakeFocus();
    });
  }
  column->addLayout(grid);
  AddFoot();
  column->addStretch(1);
  AddKeys();
}

void MultilayerPage::AddFoot() {
  QHBoxLayout* line = AddLine(*static_cast<QVBoxLayout*>(layout()));
  add_ = new QPushButton(Text(context_.Words(), kAddStratumRow), this);
  add_->setObjectName("CommandAggiungiStrato");
  add_->setAutoDefault(false);
  connect(add_, &QPushButton::clicked, this, [this] {
    context_.open.EndStep();
    context_.Edit(
        [](elements::Setup& setup) { calculation::InsertStratum(setup, setup.multilayer.Count()); });
    context_.open.EndStep();
  });
  tracks_ = new QCheckBox(Text(context_.Words(), kTracksRow), this);
  tracks_->setObjectName("CheckGuide");
  context_.Place({.field = elements::Field::kTracks}, tracks_);
  tracks_->setToolTip(Text(context_.Words(), kTracksTipRow));
  connect(tracks_, &QCheckBox::clicked, this, [this](bool ticked) {
    context_.Edit([&](elements::Setup& setup) { setup.multilayer.framed = ticked; });
  });
  line->addWidget(add_);
  line->addSpacing(2 * kPageSpacing);
  line->addWidget(tracks_);
  line->addStretch(1);
}

void MultilayerPage::AddKeys() {
  for (const int places : {-1, +1}) {
    const auto arrow = places < 0 ? Qt::Key_Up : Qt::Key_Down;
    auto* key = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | arrow), this);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(key, &QShortcut::activated, this, [this, places] { MoveFocusedRow(places); });
  }
}

void MultilayerPage::MoveFocusedRow(int places) {
  const QWidget* focused = QApplication::focusWidget();
  const auto row =
      std::ranges::find_if(rows_, [focused](const StratumRow* one) { return one->Holds(focused); });
  if (row != rows_.end()) (*row)->Move(places);
}

void MultilayerPage::Show(const elements::Setup& setup) {
  const int count = setup.multilayer.Count();
  count_->Show(std::to_string(count));
  tracks_->setChecked(setup.multilayer.framed);
  add_->setEnabled(count < elements::Multilayer::kCapacity);
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i)
    rows_.at(static_cast<std::size_t>(i))->Show(setup, i < count);
}

}  // namespace velmar::shell
