#include "shell/pages/components_page.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include "calculation/edits/count_rules.h"
#include "calculation/edits/element_numbers.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/list_boxes.h"
#include "shell/page_parts/element_form.h"
#include "shell/page_parts/facade_table.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kHighestClass = 4;

/// The boxes of the band values are arrays of their own, one a component.
QString BandsName(int index) { return index == 0 ? QString("Text12") : "Text" + QString::number(13 + index); }

ElementNames NamesOf(int i) {
  return {.name = ArrayName("Combo16", i),
          .chooser = ArrayName("Command10", i),
          .description = ArrayName("Text22", i),
          .area = ArrayName("Text23", i),
          .rating = ArrayName("Text24", i),
          .rating_label = ArrayName("Label39", i),
          .measured = ArrayName("Command12", i + 1),
          .terms_frame = ArrayName("Frame11", i),
          .c = ArrayName("Text29", i),
          .ctr = ArrayName("Text30", i),
          .bands_frame = ArrayName("Frame5", i),
          .bands = BandsName(i)};
}

}  // namespace

ComponentsPage::ComponentsPage(PageContext& context, QWidget* parent) : Page(parent), context_(context) {
  QVBoxLayout* column = PageLayout(this);
  AddHead(*column);
  table_ = new FacadeTable(context, this);
  column->addWidget(table_);
  column->addSpacing(kPageSpacing);
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("SSTab2");
  for (int i = 0; i < elements::Facade::kCapacity; ++i) components_.push_back(AddComponent(i));
  column->addWidget(tabs_, 1);
  connect(tabs_, &QTabWidget::currentChanged, this, &ComponentsPage::FitHeight);
  FitHeight();
  connect(table_, &FacadeTable::ComponentWanted, this, [this](int number) {
    tabs_->setCurrentIndex(number - 1);
    components_.at(static_cast<std::size_t>(number - 1)).form->setFocus(Qt::OtherFocusReason);
  });
}

void ComponentsPage::AddHead(QVBoxLayout& column) {
  QHBoxLayout* line = AddLine(column);
  count_ = new CountBox("Combo15", 1, elements::Facade::kCapacity, this);
  count_->setAccessibleDescription(Text(context_.Words(), kComponentCountRow));
  context_.Watch(count_);
  connect(count_, &CountBox::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { calculation::EnterComponentCount(setup, text); });
  });
  simplified_ = new QCheckBox(Text(context_.Words(), kSimplifiedRow), this);
  simplified_->setObjectName("Check1");
  connect(simplified_, &QCheckBox::clicked, this, [this](bool ticked) {
    context_.Edit([ticked](elements::Setup& setup) { setup.facade.simplified = ticked; });
  });
  line->addWidget(LabelFor(count_, kComponentCountRow, context_, this));
  line->addWidget(count_);
  line->addSpacing(2 * kPageSpacing);
  line->addWidget(simplified_);
  line->addStretch(1);
}

ComponentsPage::Component ComponentsPage::AddComponent(int index) {
  const auto& words = context_.Words();
  auto* page = new QWidget(tabs_);
  auto* column = new QVBoxLayout(page);
  Component component;
  component.form = new ElementForm(index + 1, NamesOf(index), context_, page);
  component.form->SetNameLabel(Text(words, kComponentRow));

  auto* frame = new QWidget(page);
  frame->setObjectName(ArrayName("Picture9", index));
  auto* lines = new QVBoxLayout(frame);
  lines->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(Text(words, kAirTightnessRow), frame);
  component.tightness = new ChoiceBox(ArrayName("ComboTenutaAria", index), frame);
  QStringList classes = {Text(words, kClassZeroRow)};
  for (int i = 1; i <= kHighestClass; ++i)
    classes += Text(words, kAirTightnessClassRow) + ' ' + QString::number(i);
  context_.Place({.field = elements::Field::kTightness, .index = index + 1}, component.tightness);
  component.tightness->Offer(classes);
  component.tightness->setAccessibleDescription(label->text());
  connect(component.tightness, &QComboBox::activated, this, [this, index](int chosen) {
    context_.Edit([=](elements::Setup& setup) {
      setup.facade.components.at(static_cast<std::size_t>(index)).tightness_class = chosen;
    });
  });
  label->setBuddy(component.tightness);
  lines->addWidget(label);
  lines->addWidget(component.tightness, 0, Qt::AlignLeft);
  component.share = new QLabel(page);
  component.share->setObjectName(ArrayName("Label19", index));
  component.share->setToolTip(Text(words, kShareTipRow));
  component.share->setForegroundRole(QPalette::PlaceholderText);
  component.form->AddBehindArea(component.share);

  column->addWidget(component.form);
  column->addWidget(frame);
  column->addStretch(1);
  tabs_->addTab(page, QString::number(index + 1) + QStringLiteral("°"));
  return component;
}

// The page is as high as the tab that is seen: what another one holds needs no scrolling here.
void ComponentsPage::FitHeight() {
  for (int i = 0; i < tabs_->count(); ++i) {
    const bool seen = i == tabs_->currentIndex();
    tabs_->widget(i)->setSizePolicy(QSizePolicy::Preferred,
                                    seen ? QSizePolicy::Preferred : QSizePolicy::Ignored);
  }
}

void ComponentsPage::Show(const elements::Setup& setup) {
  count_->Show(setup.facade.count_text);
  simplified_->setChecked(setup.facade.simplified);
  table_->Show(setup);
  const int count = setup.facade.Count();
  for (int i = 0; i < static_cast<int>(components_.size()); ++i) {
    const Component& component = components_.at(static_cast<std::size_t>(i));
    tabs_->setTabVisible(i, i < count);
    if (i >= count) continue;
    component.form->Show(setup);
    component.tightness->Show(setup.facade.components.at(static_cast<std::size_t>(i)).tightness_class);
    const auto share = calculation::AreaShare(setup, i);
    component.share->setText(share ? FromUtf8(FormatFixed(*share, 1)) + '%' : QString());
  }
}

}  // namespace velmar::shell
