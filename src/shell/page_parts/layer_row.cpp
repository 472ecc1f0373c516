#include "shell/page_parts/layer_row.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolButton>

#include "calculation/edits/layer_edits.h"
#include "calculation/edits/material_choice.h"
#include "calculation/edits/pasted_layers.h"
#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/field_note.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/material_box.h"
#include "shell/fields/number_field.h"
#include "shell/fields/number_steps.h"
#include "shell/fields/pasted_bands.h"
#include "shell/page_parts/layer_tools.h"
#include "shell/page_parts/material_facts.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kGroupsOfTwo = 2;

MessageRow CheckCaption(const LayerRowPlan& plan) {
  if (plan.group == elements::LayerGroup::kSeaCavityDamping) return kDampingRow;
  return plan.index % kGroupsOfTwo == 0 ? kLeftSideRow : kRightSideRow;
}

QLabel* Head(const QString& text, Qt::Alignment alignment, QWidget* page) {
  auto* head = new QLabel(text, page);
  head->setAlignment(alignment | Qt::AlignBottom);
  head->setForegroundRole(QPalette::PlaceholderText);
  return head;
}

}  // namespace

LayerRow::LayerRow(const LayerRowPlan& plan, PageContext& context, QGridLayout& grid, int line, QWidget* page)
    : QObject(page), plan_(plan), context_(context) {
  MakeLead(page);
  MakeFields(page);
  if (number_ != nullptr) {
    tools_ = new LayerTools(plan.group, plan.index, context, number_, page);
    for (QWidget* field : {static_cast<QWidget*>(material_), static_cast<QWidget*>(thickness_),
                           static_cast<QWidget*>(sheets_), static_cast<QWidget*>(chooser_)}) {
      if (field != nullptr) tools_->Serve(field);
    }
    if (plan.has_menu) menu_ = tools_->MakeButton();
  }
  MoveTo(grid, line);
  ForEachWidget([this](QWidget* widget) { widget->installEventFilter(this); });
  connect(&context_, &PageContext::SectionHovered, this,
          [this](const std::optional<presentation::LayerPlace>& place) {
            Light(place == presentation::LayerPlace{plan_.group, plan_.index});
          });
}

void LayerRow::Light(bool lit) {
  QWidget* lead = number_ != nullptr ? static_cast<QWidget*>(number_) : check_;
  lead->setAutoFillBackground(lit);
  lead->setBackgroundRole(lit ? QPalette::Highlight : QPalette::NoRole);
  lead->setForegroundRole(lit ? QPalette::HighlightedText : QPalette::NoRole);
}

void LayerRow::MakeLead(QWidget* page) {
  const auto& words = context_.Words();
  if (plan_.check != nullptr) {
    check_ = new QCheckBox(Text(words, CheckCaption(plan_)), page);
    check_->setObjectName(ArrayName(plan_.check, plan_.index));
    connect(check_, &QCheckBox::clicked, this, [this](bool ticked) {
      context_.Edit(
          [&](elements::Setup& setup) { calculation::TickDamping(setup, plan_.group, plan_.index, ticked); });
    });
    return;
  }
  number_ = new QLabel(plan_.label.isEmpty() ? QString::number(plan_.index + 1) : plan_.label, page);
  number_->setObjectName(ArrayName("Numero" + std::string(RowOf(plan_.group).list), plan_.index));
  number_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  number_->setCursor(Qt::OpenHandCursor);
}

void LayerRow::MakeFields(QWidget* page) {
  const elements::LayerGroupRow& group = RowOf(plan_.group);
  const auto& words = context_.Words();
  const QString row = ' ' + QString::number(plan_.index + 1);

  material_ = new MaterialBox(ArrayName(group.list, plan_.index), group.family,
                              context_.materials.NamesOf(plan_.group), page);
  material_->setAccessibleDescription(Text(words, kMaterialRow) + row);
  connect(material_, &MaterialBox::Chosen, this, &LayerRow::PutMaterial);
  connect(material_, &MaterialBox::AboutToOffer, this, [this] { context_.materials.PutOnTop(plan_.group); });
  material_->Tell([this, family = group.family](const QString& name) {
    const QString facts = MaterialFacts(context_.services.materials, family, ToUtf8(name));
    return context_.materials.Known().IsFavourite(family, name) ? QStringLiteral("★ ") + facts : facts;
  });
  connect(material_, &MaterialBox::TablePasted, this, &LayerRow::PutTable);
  context_.Watch(material_);
  context_.Place({.field = elements::Field::kMaterial, .group = plan_.group, .index = plan_.index},
                 material_);

  thickness_ = new NumberField(ArrayName(group.thickness_box, plan_.index), NumberKind::kReal, page);
  thickness_->setAccessibleName(Text(words, kLayerThicknessRow) + row);
  thickness_->setToolTip(Text(words, kLayerThicknessTipRow));
  StepByArrows(thickness_);
  connect(thickness_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) {
      calculation::EnterLayerThickness(setup, plan_.group, plan_.index, text);
    });
  });
  connect(thickness_, &NumberField::Left, this, &LayerRow::LeaveThickness);
  context_.Watch(thickness_);
  context_.Place({.field = elements::Field::kThickness, .group = plan_.group, .index = plan_.index},
                 thickness_);

  if (plan_.count_box != nullptr) {
    sheets_ = new CountBox(ArrayName(plan_.count_box, plan_.index), 1, calculation::kMostSheets, page);
    sheets_->setAccessibleDescription(Text(words, kSheetsRow) + row);
    sheets_->setToolTip(Text(words, kSheetsTipRow));
    context_.Watch(sheets_);
    connect(sheets_, &CountBox::Edited, this, [this](const std::string& text) {
      context_.Edit([&](elements::Setup& setup) {
        calculation::EnterMultiplicity(setup, plan_.group, plan_.index, text);
      });
    });
  }

  chooser_ = new QToolButton(page);
  chooser_->setObjectName(ArrayName(group.chooser_button, plan_.index));
  chooser_->setIcon(LineIcon("list"));
  chooser_->setAutoRaise(true);
  chooser_->setFocusPolicy(Qt::TabFocus);
  chooser_->setToolTip(Text(words, kChooserTipRow));
  chooser_->setAccessibleName(Text(words, kChooserTipRow) + row);
  connect(chooser_, &QToolButton::clicked, this, [this] {
    const auto& pick = context_.services.pick_material;
    if (pick) pick(chooser_->window(), {plan_.group, plan_.index});
  });
  chooser_->setEnabled(static_cast<bool>(context_.services.pick_material));
}

void LayerRow::MoveTo(QGridLayout& grid, int line) {
  if (check_ != nullptr) grid.addWidget(check_, line, kLeadColumn);
  if (number_ != nullptr) grid.addWidget(number_, line, kLeadColumn);
  grid.addWidget(material_, line, kMaterialColumn + plan_.shift);
  grid.addWidget(thickness_, line, kThicknessColumn + plan_.shift);
  if (sheets_ != nullptr) grid.addWidget(sheets_, line, kSheetsColumn + plan_.shift);
  grid.addWidget(chooser_, line, kChooserColumn + plan_.shift);
  if (menu_ != nullptr) grid.addWidget(menu_, line, kToolsColumn + plan_.shift);
}

void LayerRow::LeaveMenuTo(QToolButton* button) {
  if (tools_ != nullptr) tools_->LeaveMenuTo(button);
}

template <typename Visit>
void LayerRow::ForEachWidget(Visit&& visit) const {
  const std::array<QWidget*, 7> widgets = {check_, number_, material_, thickness_, sheets_, chooser_, menu_};
  for (QWidget* widget : widgets) {
    if (widget != nullptr) visit(widget);
  }
}

bool LayerRow::Holds(const QWidget* widget) const {
  bool holds = false;
  ForEachWidget([&](const QWidget* one) { holds = holds || one == widget || one->isAncestorOf(widget); });
  return holds;
}

void LayerRow::PutMaterial(const std::string& name) {
  const elements::MaterialFamily family = RowOf(plan_.group).family;
  if (!calculation::IsMaterial(context_.services.materials, family, name)) return;
  context_.materials.Known().Use(family, FromUtf8(name));
  context_.Edit([&](elements::Setup& setup) {
    calculation::PutMaterial(setup, plan_.group, plan_.index, name, context_.services.materials);
  });
}

void LayerRow::PutTable(const QString& text) {
  elements::Setup pasted = context_.open.Setup();
  const auto refusal = calculation::PutTable(pasted, plan_.group, plan_.index, CellsOfTable(text),
                                             context_.services.materials);
  if (refusal) {
    FieldNote::Put(material_, Text(context_.Words(), *refusal), NoteLife::kWhileRead);
    return;
  }
  context_.Edit([&](elements::Setup& setup) { setup = std::move(pasted); });
}

void LayerRow::LeaveThickness() {
  elements::Setup left = context_.open.Setup();
  if (!calculation::LeaveLayerThickness(left, plan_.group, plan_.index)) return;
  context_.Edit([&](elements::Setup& setup) { setup = std::move(left); });
  emit thickness_->Corrected(Correction::kNotPositive, 0);
}

void LayerRow::Show(const elements::Setup& setup, bool visible) {
  ForEachWidget([visible](QWidget* widget) { widget->setVisible(visible); });
  if (!visible) return;
  const calculation::LayerText row = calculation::LayerTextOf(setup, plan_.group, plan_.index);
  // The number of the layer in the element, as the section and every paper have it.
  if (number_ != nullptr) {
    const QString number = QString::number(elements::NumberOf(setup, plan_.group, plan_.index));
    number_->setText(plan_.label.isEmpty() ? number : number + ' ' + plan_.label);
  }
  material_->Show(row.listed);
  material_->setPlaceholderText(Text(context_.Words(), kChooseMaterialRow));
  thickness_->Show(row.thickness_text);
  // An emptied box leaves the thickness as it was; the box says in grey what that is.
  const bool known = row.slot_thickness_mm > 0.0;
  thickness_->setPlaceholderText(known ? FromUtf8(FormatShortest(row.slot_thickness_mm)) : QString());
  if (sheets_ != nullptr) sheets_->Show(std::to_string(row.multiplicity));
  if (check_ == nullptr) return;
  const bool ticked = calculation::DampingOf(setup, plan_.group, plan_.index).ticked;
  check_->setChecked(ticked);
  material_->setEnabled(ticked);
  thickness_->setEnabled(ticked);
  chooser_->setEnabled(ticked && context_.services.pick_material);
}

bool LayerRow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) {
    emit context_.RowHovered(presentation::LayerPlace{plan_.group, plan_.index});
  } else if (event->type() == QEvent::Leave) {
    emit context_.RowHovered(std::nullopt);
  } else if (event->type() == QEvent::MouseMove && watched == number_) {
    if (static_cast<QMouseEvent*>(event)->buttons() & Qt::LeftButton) tools_->Drag(material_->currentText());
  }
  return QObject::eventFilter(watched, event);
}

std::vector<QWidget*> AddLayerHeads(QGridLayout& grid, int line, const PageContext& context, bool with_sheets,
                                    QWidget* page, int shift) {
  const auto& words = context.Words();
  QString material = Text(words, kMaterialRow);
  if (material.endsWith(':')) material.chop(1);
  std::vector<QWidget*> heads;
  const auto add = [&](const QString& text, Qt::Alignment alignment, int column) {
    heads.push_back(Head(text, alignment, page));
    grid.addWidget(heads.back(), line, column + shift);
  };
  add(material, Qt::AlignLeft, LayerRow::kMaterialColumn);
  heads.back()->setToolTip(Text(words, kPasteLayersTipRow));
  add(Text(words, kLayerThicknessRow), Qt::AlignRight, LayerRow::kThicknessColumn);
  if (with_sheets) add(Text(words, kSheetsRow), Qt::AlignRight, LayerRow::kSheetsColumn);
  grid.setColumnStretch(LayerRow::kMaterialColumn + shift, 1);
  grid.setHorizontalSpacing(8);
  grid.setVerticalSpacing(6);
  return heads;
}

}  // namespace velmar::shell
