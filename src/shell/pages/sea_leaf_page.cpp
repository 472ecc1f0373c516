#include "shell/pages/sea_leaf_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "calculation/edits/count_rules.h"
#include "calculation/edits/material_choice.h"
#include "foundation/message_rows.h"
#include "shell/fields/list_boxes.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/layer_tools.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::LayerGroup;

struct SideControls {
  LayerGroup layers{};
  LayerGroup damping{};
  const char* count = "";
  const char* check = "";
};

SideControls ControlsOf(SeaLeafPage::Side side) {
  if (side == SeaLeafPage::Side::kFirst)
    return {LayerGroup::kSeaLeaf1, LayerGroup::kSeaDamping1, "ComboMatSEA1", "ChecklMatSmorzanteSEA1"};
  return {LayerGroup::kSeaLeaf2, LayerGroup::kSeaDamping2, "ComboMatSEA2", "ChecklMatSmorzanteSEA2"};
}

elements::SeaLeaf& LeafOf(elements::Setup& setup, SeaLeafPage::Side side) {
  return side == SeaLeafPage::Side::kFirst ? setup.sea_leaf1 : setup.sea_leaf2;
}

}  // namespace

SeaLeafPage::SeaLeafPage(Side side, PageContext& context, QWidget* parent)
    : Page(parent), context_(context), side_(side) {
  const SideControls controls = ControlsOf(side);
  constexpr int kCapacity = elements::SeaLeaf::kCapacity;
  QVBoxLayout* column = PageLayout(this);
  const TableHead table_head =
      AddTableHead({.count_name = controls.count, .lowest = 1, .highest = kCapacity}, context, *column, this);
  count_ = table_head.count;
  turning_ = new TurningButtons(*table_head.line, context, controls.count, this);
  context_.Watch(count_);
  connect(count_, &CountBox::Edited, this, [this, controls](const std::string& text) {
    context_.Edit([&](elements::Setup& setup, const elements::MaterialLookup& tables) {
      calculation::EnterSeaCount(LeafOf(setup, side_), text);
      calculation::ReloadLayers(setup, controls.layers, tables);
    });
  });

  auto* grid = new QGridLayout;
  AddLayerHeads(*grid, 0, context, /*with_sheets=*/false, this);
  QString damping = Text(context.Words(), kDampingRow);
  if (damping.endsWith(':')) damping.chop(1);
  auto* head = new QLabel(damping, this);
  head->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  head->setForegroundRole(QPalette::PlaceholderText);
  grid->addWidget(head, 0, LayerRow::kLeadColumn);
  int line = 1;
  for (int i = 0; i < kCapacity; ++i) {
    // In the order in which the strips stand in the section: left, layer, right.
    const auto add_damping = [&](int j) {
      const LayerRowPlan plan{.group = controls.damping, .index = j, .check = controls.check};
      damping_.push_back(new LayerRow(plan, context, *grid, line++, this));
    };
    add_damping(2 * i);
    rows_.push_back(new LayerRow({.group = controls.layers, .index = i}, context, *grid, line++, this));
    add_damping(2 * i + 1);
  }
  column->addLayout(grid);
  column->addStretch(1);
}

void SeaLeafPage::Show(const elements::Setup& setup) {
  const int count = side_ == Side::kFirst ? setup.sea_leaf1.count : setup.sea_leaf2.count;
  count_->Show(std::to_string(count));
  turning_->Show(setup);
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i)
    rows_.at(static_cast<std::size_t>(i))->Show(setup, i < count);
  for (int j = 0; j < static_cast<int>(damping_.size()); ++j)
    damping_.at(static_cast<std::size_t>(j))->Show(setup, j / 2 < count);
}

}  // namespace velmar::shell
