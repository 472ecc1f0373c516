#include "shell/pages/input_tabs.h"

#include <QKeySequence>
#include <QScrollArea>
#include <QShortcut>
#include <algorithm>

#include "shell/fields/number_field.h"
#include "shell/fields/reveal.h"
#include "shell/pages/base_element_page.h"
#include "shell/pages/cavity_page.h"
#include "shell/pages/components_page.h"
#include "shell/pages/leaf_page.h"
#include "shell/pages/multilayer_page.h"
#include "shell/pages/resilient_layers_page.h"
#include "shell/pages/sea_cavity_page.h"
#include "shell/pages/sea_leaf_page.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

QScrollArea* InScrollArea(QWidget* page) {
  auto* area = new QScrollArea;
  area->setWidget(page);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  return area;
}

}  // namespace

InputTabs::InputTabs(PageContext& context, QWidget* parent)
    : QTabWidget(parent), context_(context), base_(new BaseElementPage(context)) {
  setObjectName("SSTab1");
  setIconSize({24, 24});
  pages_ = {new LeafPage(LeafPage::Leaf::kFirst, context),
            new LeafPage(LeafPage::Leaf::kSecond, context),
            new CavityPage(context),
            new ResilientLayersPage(context),
            base_,
            new ComponentsPage(context),
            new SeaLeafPage(SeaLeafPage::Side::kFirst, context),
            new SeaLeafPage(SeaLeafPage::Side::kSecond, context),
            new SeaCavityPage(context),
            new MultilayerPage(context)};
  for (Page* page : pages_) addTab(InScrollArea(page), QString());
  connect(this, &QTabWidget::tabBarClicked, this, [this](int index) {
    if (index >= 0) pages_.at(static_cast<std::size_t>(index))->RemoveHighlights();
  });
  AddKeys();
}

void InputTabs::AddKeys() {
  for (int place = 0; place < kTabCount; ++place) {
    auto* key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + place)), this);
    connect(key, &QShortcut::activated, this, [this, place] {
      if (!laid_out_) return;
      const auto shown = TabsOf(*laid_out_);
      if (place < static_cast<int>(shown.size()))
        setCurrentIndex(static_cast<int>(shown.at(static_cast<std::size_t>(place)).tab));
      FocusFirst();
    });
  }
}

void InputTabs::FocusFirst() { FocusFirstField(currentWidget()); }

void InputTabs::GoTo(const presentation::LayerPlace& place) {
  QWidget* field = place.group
                       ? context_.ControlOf(
                             {.field = elements::Field::kMaterial, .group = place.group, .index = place.row})
                       : base_->NameField();
  if (field == nullptr) return;
  BringForward(field);
  if (!field->isVisible()) return FocusFirst();
  field->setFocus(Qt::OtherFocusReason);
}

void InputTabs::ShowFirst() {
  if (laid_out_) setCurrentIndex(static_cast<int>(TabsOf(*laid_out_).front().tab));
}

void InputTabs::LayOut(elements::Calculation calculation) {
  if (laid_out_ == calculation) return;
  laid_out_ = calculation;
  const auto shown = TabsOf(calculation);
  // The first tab is current before others are hidden: a hidden current tab would pass the focus on.
  setTabVisible(static_cast<int>(shown.front().tab), true);
  ShowFirst();
  for (int tab = 0; tab < kTabCount; ++tab) {
    const auto found = std::ranges::find(shown, static_cast<TabId>(tab), &ShownTab::tab);
    setTabVisible(tab, found != shown.end());
    if (found == shown.end()) continue;
    setTabText(tab, Text(context_.Words(), found->caption));
    setTabIcon(tab, LineIcon(found->picture));
  }
}

void InputTabs::Show(const elements::Setup& setup) {
  if (!setup.calculation) return;
  LayOut(*setup.calculation);
  for (const ShownTab& shown : TabsOf(*setup.calculation))
    pages_.at(static_cast<std::size_t>(shown.tab))->Show(setup);
}

}  // namespace velmar::shell
