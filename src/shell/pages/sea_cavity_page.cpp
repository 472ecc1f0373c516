#include "shell/pages/sea_cavity_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/layer_edits.h"
#include "foundation/message_rows.h"
#include "shell/fields/corrections.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/number_field.h"
#include "shell/fields/number_steps.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::LayerGroup;
using elements::SeaCavityContent;
using elements::SeaCavityType;

}  // namespace

QStringList SeaCavityTypeNames(const presentation::Words& words, int count) {
  QStringList names = {Text(words, kEmptySeaCavityRow)};
  for (int type = 1; type < count; ++type) {
    QStringList pieces;
    for (const SeaCavityContent content : elements::ContentsOf(static_cast<SeaCavityType>(type)))
      pieces += Text(words, content == SeaCavityContent::kFibre ? kFibreLayerRow : kMassLayerRow);
    names += pieces.join("+ ");
  }
  return names;
}

SeaCavityPage::SeaCavityPage(PageContext& context, QWidget* parent) : Page(parent), context_(context) {
  QVBoxLayout* column = PageLayout(this);
  AddHead(*column);
  grid_ = new QGridLayout;
  AddRows();
  column->addLayout(grid_);
  column->addStretch(1);
}

void SeaCavityPage::AddHead(QVBoxLayout& column) {
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(kPageSpacing);
  fields->setColumnStretch(1, 1);
  column.addLayout(fields);
  type_ = new ChoiceBox("ComboTipoIntercSEA", this);
  type_->setAccessibleDescription(Text(context_.Words(), kSeaCavityLayersRow));
  connect(type_, &QComboBox::activated, this, [this](int index) {
    context_.Edit([index](elements::Setup& setup) {
      calculation::ChooseSeaCavityType(setup, static_cast<SeaCavityType>(index));
    });
  });
  depth_ = new NumberField("TextSpessoreIntercSEA", NumberKind::kReal, this);
  StepByArrows(depth_);
  depth_->setAccessibleName(Text(context_.Words(), kLayerThicknessRow));
  depth_->setToolTip(Text(context_.Words(), kDepthTipRow));
  context_.Watch(depth_);
  context_.Place({.field = elements::Field::kSeaCavityType}, type_);
  context_.Place({.field = elements::Field::kSeaCavityDepth}, depth_);
  connect(depth_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { setup.sea_cavity.depth_text = text; });
  });
  connect(depth_, &NumberField::Left, this, [this] {
    if (!context_.open.IsTouched()) return;
    elements::Setup left = context_.open.Setup();
    calculation::LeaveSeaCavityDepth(left);
    if (left == context_.open.Setup()) return;
    context_.Edit([&](elements::Setup& setup) { setup = std::move(left); });
    NoteCorrection(depth_, Correction::kRaised, 0, context_.Words());
  });
  fields->addWidget(LabelFor(type_, kSeaCavityLayersRow, context_, this), 0, 0);
  fields->addWidget(type_, 0, 1);
  fields->addWidget(LabelFor(depth_, kLayerThicknessRow, context_, this), 1, 0);
  fields->addWidget(depth_, 1, 1, Qt::AlignLeft);
}

void SeaCavityPage::AddRows() {
  heads_ = AddLayerHeads(*grid_, 0, context_, /*with_sheets=*/false, this);
  const auto add = [this](LayerGroup group, std::vector<LayerRow*>& rows, const char* check,
                          const QString& label) {
    for (int i = 0; i < RowOf(group).capacity; ++i) {
      const LayerRowPlan plan{.group = group, .index = i, .check = check, .label = label};
      rows.push_back(new LayerRow(plan, context_, *grid_, 1, this));
    }
  };
  add(LayerGroup::kSeaCavityFibre, fibres_, nullptr, Text(context_.Words(), kFibreLabelRow));
  add(LayerGroup::kSeaCavityMass, masses_, nullptr, Text(context_.Words(), kMassLabelRow));
  add(LayerGroup::kSeaCavityDamping, damping_, "ChecklMatSmorzanteIntercSEA", {});
}

void SeaCavityPage::Arrange(SeaCavityType type) {
  int line = 1;
  std::size_t fibre = 0;
  std::size_t mass = 0;
  for (const SeaCavityContent content : elements::ContentsOf(type)) {
    if (content == SeaCavityContent::kFibre) {
      fibres_.at(fibre++)->MoveTo(*grid_, line++);
    } else {
      masses_.at(mass)->MoveTo(*grid_, line++);
      damping_.at(mass++)->MoveTo(*grid_, line++);
    }
  }
}

void SeaCavityPage::Show(const elements::Setup& setup) {
  if (!setup.calculation) return;
  const elements::SeaCavity& cavity = setup.sea_cavity;
  const int offered = RowOf(*setup.calculation).sea_cavity_types;
  type_->Offer(SeaCavityTypeNames(context_.Words(), std::max(offered, static_cast<int>(cavity.type) + 1)));
  type_->Show(static_cast<int>(cavity.type));
  depth_->Show(cavity.depth_text);
  Arrange(cavity.type);
  for (QWidget* head : heads_) head->setVisible(cavity.type != SeaCavityType::kEmpty);
  const auto show = [&setup](std::vector<LayerRow*>& rows, int count) {
    for (int i = 0; i < static_cast<int>(rows.size()); ++i)
      rows.at(static_cast<std::size_t>(i))->Show(setup, i < count);
  };
  show(fibres_, FibreCount(cavity.type));
  show(masses_, MassCount(cavity.type));
  show(damping_, MassCount(cavity.type));
}

}  // namespace velmar::shell
