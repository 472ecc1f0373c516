#include "shell/pages/cavity_page.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/count_rules.h"
#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/corrections.h"
#include "shell/fields/filter_box.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/number_field.h"
#include "shell/fields/number_steps.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr std::array kKindRows = {kEmptyCavityChoiceRow, kFibrousCavityChoiceRow, kGenericCavityChoiceRow};

}  // namespace

CavityPage::CavityPage(PageContext& context, QWidget* parent) : Page(parent), context_(context) {
  QVBoxLayout* column = PageLayout(this);
  AddDepth(*column);
  AddKinds(*column);
  AddLayers(*column);
  column->addStretch(1);
}

void CavityPage::AddDepth(QVBoxLayout& column) {
  QHBoxLayout* line = AddLine(column);
  depth_ = new NumberField("Text9", NumberKind::kReal, this);
  StepByArrows(depth_);
  QLabel* label = LabelFor(depth_, kCavityDepthRow, context_, this);
  label->setObjectName("Label25");
  depth_->setAccessibleName(label->text());
  depth_->setToolTip(Text(context_.Words(), kDepthTipRow));
  context_.Watch(depth_);
  context_.Place({.field = elements::Field::kCavityDepth}, depth_);
  connect(depth_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { setup.cavity.depth_text = text; });
  });
  connect(depth_, &NumberField::Left, this, &CavityPage::LeaveDepth);
  line->addWidget(label);
  line->addWidget(depth_);
  line->addStretch(1);
}

void CavityPage::LeaveDepth() {
  if (!context_.open.IsTouched()) return;
  elements::Setup left = context_.open.Setup();
  const std::optional<double> entered = ParseDecimal(left.cavity.depth_text);
  const std::optional<Message> told = calculation::LeaveCavityDepth(left);
  if (left != context_.open.Setup()) context_.Edit([&](elements::Setup& setup) { setup = left; });
  const auto raised_to = ParseDecimal(left.cavity.depth_text);
  if (!told && entered && raised_to > entered)
    NoteCorrection(depth_, Correction::kRaised, 0, context_.Words());
  if (told) context_.speech.boxes.tell(Tone::kCritical, Text(context_.Words(), *told));
}

void CavityPage::AddKinds(QVBoxLayout& column) {
  auto* label = new QLabel(Text(context_.Words(), kCavityKindRow), this);
  label->setObjectName("Label21");
  column.addSpacing(kPageSpacing);
  column.addWidget(label);
  auto* group = new QButtonGroup(this);
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    auto* kind = new QRadioButton(Text(context_.Words(), kKindRows.at(i)), this);
    kind->setObjectName(ArrayName("Option2", static_cast<int>(i)));
    group->addButton(kind);
    connect(kind, &QRadioButton::clicked, this, [this, i] {
      context_.Edit([i](elements::Setup& setup) {
        calculation::ChooseCavityKind(setup, static_cast<elements::CavityKind>(i));
      });
    });
    QHBoxLayout* line = AddLine(column);
    line->addWidget(kind);
    if (i == static_cast<std::size_t>(elements::CavityKind::kFibrous)) {
      fibre_ = new NumberField("Text31", NumberKind::kReal, this);
      fibre_->setAccessibleName(kind->text());
      fibre_->setToolTip(Text(context_.Words(), kFibreTipRow));
      StepByArrows(fibre_);
      line->addWidget(fibre_);
      fibre_number_ = new QLabel(this);
      fibre_number_->setObjectName("NumeroFibra");
      fibre_number_->setForegroundRole(QPalette::PlaceholderText);
      fibre_number_->setToolTip(Text(context_.Words(), kFibreNumberTipRow));
      line->addWidget(fibre_number_);
    }
    line->addStretch(1);
    kinds_.at(i) = kind;
  }
  context_.Watch(fibre_);
  context_.Place({.field = elements::Field::kCavityKind}, kinds_.front());
  context_.Place({.field = elements::Field::kFibreThickness}, fibre_);
  connect(fibre_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { calculation::EnterFibreThickness(setup, text); });
  });
  connect(fibre_, &NumberField::Left, this, [this] {
    if (!context_.open.Setup().cavity.fibre_text.empty()) return;
    context_.Edit([](elements::Setup& setup) { calculation::LeaveFibreThickness(setup); });
  });
}

void CavityPage::AddLayers(QVBoxLayout& column) {
  constexpr int kCapacity = elements::CavityLayers::kCapacity;
  layers_ = new QWidget(this);
  auto* inner = new QVBoxLayout(layers_);
  inner->setContentsMargins(0, kPageSpacing, 0, 0);
  inner->setSpacing(kPageSpacing);
  const TableHead head = AddTableHead({.count_name = "Combo18",
                                       .lowest = 1,
                                       .highest = kCapacity,
                                       .filter_name = "Combo19",
                                       .filter = FilterId::kCavity,
                                       .filter_label = kKeywordFilterRow},
                                      context_, *inner, layers_);
  count_ = head.count;
  filter_ = head.filter;
  head.count_label->setObjectName("Label45");
  head.filter_label->setObjectName("Label46");
  context_.Watch(count_);
  connect(count_, &CountBox::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) {
      calculation::EnterCavityCount(setup, text);
      calculation::RaiseCavityDepthToLayers(setup);
    });
  });
  auto* grid = new QGridLayout;
  AddLayerHeads(*grid, 0, context_, /*with_sheets=*/true, layers_);
  for (int i = 0; i < kCapacity; ++i) {
    const LayerRowPlan plan{.group = elements::LayerGroup::kCavity, .index = i, .count_box = "Combo17"};
    rows_.push_back(new LayerRow(plan, context_, *grid, i + 1, layers_));
  }
  inner->addLayout(grid);
  column.addWidget(layers_);
}

void CavityPage::Show(const elements::Setup& setup) {
  if (!setup.calculation) return;
  const elements::Cavity& cavity = setup.cavity;
  const elements::CalculationRow& row = RowOf(*setup.calculation);
  const bool reads_fibre = row.Reads(elements::Field::kFibreThickness);
  depth_->Show(cavity.depth_text);
  fibre_->Show(cavity.fibre_text);
  fibre_->setVisible(reads_fibre);
  fibre_->setEnabled(calculation::FibreThicknessEnabled(setup));
  kinds_.at(static_cast<std::size_t>(cavity.kind))->setChecked(true);
  kinds_.back()->setVisible(row.generic_cavity);
  const int number = elements::FibreNumberOf(setup);
  fibre_number_->setText(number > 0 ? "n. " + QString::number(number) : QString());
  fibre_number_->setAccessibleName(Text(context_.Words(), kFibreFillRow) + ' ' + fibre_number_->text());
  // Without its field the words end before the thickness they ask for.
  QString words = Text(context_.Words(), kKindRows.at(1));
  if (!reads_fibre) words = words.section(" - ", 0, 0);
  kinds_.at(1)->setText(words);

  const bool generic = cavity.kind == elements::CavityKind::kGenericMaterial;
  layers_->setVisible(generic);
  count_->Show(std::to_string(cavity.layers.count));
  ShowFilter(*filter_, FilterId::kCavity, context_);
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i)
    rows_.at(static_cast<std::size_t>(i))->Show(setup, generic && i < cavity.layers.count);
}

}  // namespace velmar::shell
