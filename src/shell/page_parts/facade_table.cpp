#include "shell/page_parts/facade_table.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <utility>

#include "calculation/edits/element_numbers.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/number_field.h"
#include "shell/page_parts/element_name.h"
#include "shell/page_parts/element_parts.h"
#include "shell/page_parts/page_layout.h"
#include "shell/page_parts/share_bar.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using calculation::StepKind;
using elements::Setup;

constexpr int kHighestClass = 4;
constexpr int kTerms = 3;
constexpr int kAreaDecimals = 2;

enum Column { kNumber, kName, kArea, kRating, kC, kCtr, kTightness, kShare, kTools };

/// The box of a rating (0), of C (1) or of Ctr (2).
template <typename Element>
auto& TermOf(Element& element, int term) {
  if (term == 0) return element.rating_text;
  return term == 1 ? element.c_text : element.ctr_text;
}

QString Told(const std::optional<double>& value, int decimals) {
  return value ? FromUtf8(FormatFixed(*value, decimals)).replace('-', QChar(0x2212)) : QString();
}

}  // namespace

FacadeTable::FacadeTable(PageContext& context, QWidget* parent)
    : QWidget(parent), context_(context), grid_(new QGridLayout(this)) {
  setObjectName("TabellaFacciata");
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(4);
  grid_->setVerticalSpacing(4);
  grid_->setColumnStretch(kName, 3);
  grid_->setColumnStretch(kShare, 2);
  AddHeads();
  for (int element = 0; element <= elements::Facade::kCapacity; ++element) rows_.push_back(AddRow(element));
  AddButtons();
}

void FacadeTable::AddButtons() {
  const auto make = [this](MessageRow words, const char* name) {
    auto* button = new QPushButton("+ " + Text(context_.Words(), words), this);
    button->setObjectName(name);
    button->setFlat(true);
    return button;
  };
  add_ = make(kAddComponentRow, "AggiungiComponente");
  connect(add_, &QPushButton::clicked, this, [this] {
    const int number = context_.open.Setup().facade.Count() + 1;
    if (!calculation::CanAddComponent(context_.open.Setup())) return;
    Do(StepKind::kComponentAdded, number, calculation::AddComponent);
    rows_.at(static_cast<std::size_t>(number)).name->setFocus(Qt::OtherFocusReason);
  });
  add_measured_ = make(kAddMeasuredComponentRow, "AggiungiMisurato");
  add_measured_->setToolTip(Text(context_.Words(), kAddMeasuredTipRow));
  connect(add_measured_, &QPushButton::clicked, this, [this] {
    emit context_.SettleAsked();
    if (const auto number = calculation::FreeComponent(context_.open.Setup())) PickMeasured(*number);
  });
  auto* line = new QHBoxLayout;
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(add_);
  line->addWidget(add_measured_);
  line->addStretch(1);
  grid_->addLayout(line, elements::Facade::kCapacity + 2, kName, 1, kTools - kName + 1);
}

void FacadeTable::AddHeads() {
  const auto add = [this](const QString& text, Column column, Qt::Alignment alignment) {
    auto* head = new QLabel(text, this);
    head->setForegroundRole(QPalette::PlaceholderText);
    grid_->addWidget(head, 0, column, alignment | Qt::AlignBottom);
    return head;
  };
  const auto& words = context_.Words();
  add(Text(words, kPartOfFacadeRow), kName, Qt::AlignLeft);
  add("m²", kArea, Qt::AlignRight);
  add("Rw", kRating, Qt::AlignRight)->setToolTip(Text(words, kFacadeRatingTipRow));
  add("C", kC, Qt::AlignRight);
  add("Ctr", kCtr, Qt::AlignRight);
  add(Text(words, kAirTightnessClassRow), kTightness, Qt::AlignLeft);
  add(Text(words, kEnergyShareRow), kShare, Qt::AlignLeft)->setToolTip(Text(words, kEnergyShareTipRow));
}

FacadeTable::Row FacadeTable::AddRow(int element) {
  Row row;
  const int line = element + 1;
  row.number = new QLabel(element == 0 ? QString() : QString::number(element) + QStringLiteral("°"), this);
  row.number->setObjectName(ArrayName("TuttiNumero", element));
  row.number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  if (element > 0) {
    row.number->setCursor(Qt::PointingHandCursor);
    row.number->setToolTip(Text(context_.Words(), kOpenComponentRow));
    row.number->installEventFilter(this);
  }
  row.name = new ElementName(element, {.name = ArrayName("TuttiNome", element)}, context_, this);
  grid_->addWidget(row.number, line, kNumber);
  grid_->addWidget(row.name, line, kName);
  AddNumbers(row, element);
  if (element > 0) {
    AddTightness(row, element);
    row.tools = MakeTools(element);
    grid_->addWidget(row.tools, line, kTools);
  }
  row.share = new ShareBar(this);
  row.share->setObjectName(ArrayName("TuttiQuota", element));
  row.share->setAccessibleName(Text(context_.Words(), kEnergyShareRow));
  grid_->addWidget(row.share, line, kShare);
  return row;
}

void FacadeTable::AddNumbers(Row& row, int element) {
  const int line = element + 1;
  const QString of = element == 0 ? Text(context_.Words(), kOpaquePartRow) : QString::number(element);
  const auto narrow = [](QWidget* field, int letters) {
    field->setFixedWidth(field->fontMetrics().horizontalAdvance('0') * letters + 10);
  };
  if (element == 0) {
    row.opaque_area = new QLabel(this);
    row.opaque_area->setObjectName(ArrayName("TuttiArea", 0));
    row.opaque_area->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.opaque_area->setToolTip(Text(context_.Words(), kOpaqueAreaTipRow));
    grid_->addWidget(row.opaque_area, line, kArea);
  } else {
    row.area = new NumberField(ArrayName("TuttiArea", element), NumberKind::kArea, this);
    row.area->setAccessibleName(Text(context_.Words(), kPartAreaRow) + ' ' + of);
    row.area->setToolTip(Text(context_.Words(), kAreaTipRow));
    narrow(row.area, 5);
    context_.Watch(row.area);
    connect(row.area, &NumberField::Edited, this, [this, element](const std::string& text) {
      context_.Edit([&](Setup& setup) {
        Visited(setup, element, [&](auto& part) { calculation::EnterComponentArea(part.area_text, text); });
      });
    });
    grid_->addWidget(row.area, line, kArea, Qt::AlignRight);
  }
  constexpr std::array kNames = {"TuttiRw", "TuttiC", "TuttiCtr"};
  constexpr std::array kCaptions = {"Rw", "C", "Ctr"};
  for (int term = 0; term < kTerms; ++term) {
    const auto i = static_cast<std::size_t>(term);
    auto* box = new NumberField(ArrayName(kNames.at(i), element),
                                term == 0 ? NumberKind::kReal : NumberKind::kTerm, this);
    box->setAccessibleName(QString(kCaptions.at(i)) + ' ' + of);
    narrow(box, term == 0 ? 4 : 3);
    context_.Watch(box);
    connect(box, &NumberField::Edited, this, [this, element, term](const std::string& text) {
      context_.Edit([&](Setup& setup) {
        Visited(setup, element,
                [&](auto& part) { calculation::EnterElementNumber(TermOf(part, term), text); });
      });
    });
    auto* told = new QLabel(this);
    told->setObjectName(ArrayName(std::string(kNames.at(i)) + "Calcolato", element));
    told->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid_->addWidget(box, line, kRating + term, Qt::AlignRight);
    grid_->addWidget(told, line, kRating + term);
    row.boxes.push_back(box);
    row.ratings.push_back(told);
  }
}

void FacadeTable::AddTightness(Row& row, int element) {
  row.tightness = new ChoiceBox(ArrayName("TuttiClasse", element), this);
  QStringList classes;
  for (int i = 0; i <= kHighestClass; ++i) classes += QString::number(i);
  row.tightness->Offer(classes);
  row.tightness->setToolTip(Text(context_.Words(), kAirTightnessRow));
  row.tightness->setAccessibleName(Text(context_.Words(), kAirTightnessClassRow) + ' ' +
                                   QString::number(element));
  connect(row.tightness, &QComboBox::activated, this, [this, element](int chosen) {
    context_.Edit([=](Setup& setup) {
      setup.facade.components.at(static_cast<std::size_t>(element - 1)).tightness_class = chosen;
    });
  });
  grid_->addWidget(row.tightness, element + 1, kTightness, Qt::AlignLeft);
}

QToolButton* FacadeTable::MakeTools(int element) {
  auto* tools = new QToolButton(this);
  const QString caption = Text(context_.Words(), kComponentActionsRow) + ' ' + QString::number(element);
  tools->setObjectName(ArrayName("AzioniComponente", element));
  tools->setText(QStringLiteral("⋮"));
  tools->setAutoRaise(true);
  tools->setFocusPolicy(Qt::TabFocus);
  tools->setToolTip(caption);
  tools->setAccessibleName(caption);
  connect(tools, &QToolButton::clicked, this, [this, element] { OpenMenu(element); });
  return tools;
}

void FacadeTable::OpenMenu(int number) {
  const Setup& setup = context_.open.Setup();
  QToolButton* tools = rows_.at(static_cast<std::size_t>(number)).tools;
  auto* menu = new QMenu(tools);
  menu->setObjectName("MenuComponente");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](MessageRow row, const char* name, bool enabled, auto act) {
    QAction* action = menu->addAction(Text(context_.Words(), row), this, act);
    action->setObjectName(name);
    action->setEnabled(enabled);
  };
  add(kOpenComponentRow, "apri_componente", true, [this, number] { emit ComponentWanted(number); });
  add(kDuplicateComponentRow, "duplica_componente", calculation::CanAddComponent(setup), [this, number] {
    Do(StepKind::kComponentDuplicated, number,
       [number](Setup& changed) { calculation::DuplicateComponent(changed, number); });
  });
  add(kMoveLayerUpRow, "componente_su", number > 1, [this, number] {
    Do(StepKind::kComponentMoved, number - 1,
       [number](Setup& changed) { calculation::MoveComponent(changed, number, number - 1); });
  });
  add(kMoveLayerDownRow, "componente_giu", number < setup.facade.Count(), [this, number] {
    Do(StepKind::kComponentMoved, number + 1,
       [number](Setup& changed) { calculation::MoveComponent(changed, number, number + 1); });
  });
  add(kRemoveComponentRow, "elimina_componente", calculation::CanRemoveComponent(setup), [this, number] {
    Do(StepKind::kComponentRemoved, number,
       [number](Setup& changed) { calculation::RemoveComponent(changed, number); });
  });
  const auto& services = context_.services;
  if (services.pick_saved_result || services.pick_measured) menu->addSeparator();
  const ElementPick pick{number, Text(context_.Words(), kResultsDatabaseRow)};
  if (services.pick_saved_result)
    add(kResultsDatabaseRow, "risultati_componente", true,
        [this, pick] { context_.services.pick_saved_result(window(), pick); });
  if (services.pick_measured)
    add(kMeasuredDataRow, "dati_componente", true, [this, number] { PickMeasured(number); });
  menu->popup(tools->mapToGlobal(QPoint(0, tools->height())));
}

void FacadeTable::PickMeasured(int number) {
  const QString caption =
      Text(context_.Words(), kComponentOfCaptionRow) + ' ' + QString::number(number) + ':';
  context_.services.pick_measured(window(), {number, caption});
}

template <typename Change>
void FacadeTable::Do(StepKind kind, int number, Change&& change) {
  // A text that is being typed belongs to the part where it was typed.
  emit context_.SettleAsked();
  context_.Edit(std::forward<Change>(change),
                calculation::Step{kind, {.field = elements::Field::kArea, .index = number}});
}

bool FacadeTable::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    for (std::size_t i = 1; i < rows_.size(); ++i) {
      if (rows_[i].number == watched) emit ComponentWanted(static_cast<int>(i));
    }
  }
  return QWidget::eventFilter(watched, event);
}

void FacadeTable::Show(const Setup& setup) {
  const std::vector<calculation::FacadeRow> numbers = calculation::FacadeOverview(setup);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    Row& row = rows_[i];
    const bool used = i < numbers.size();
    for (QWidget* widget :
         {static_cast<QWidget*>(row.number), static_cast<QWidget*>(row.name), static_cast<QWidget*>(row.area),
          static_cast<QWidget*>(row.opaque_area), static_cast<QWidget*>(row.tightness),
          static_cast<QWidget*>(row.share), static_cast<QWidget*>(row.tools)}) {
      if (widget != nullptr) widget->setVisible(used);
    }
    for (NumberField* box : row.boxes) box->setVisible(used && setup.facade.simplified);
    for (QLabel* told : row.ratings) told->setVisible(used && !setup.facade.simplified);
    if (used) ShowRow(row, static_cast<int>(i), setup, numbers[i]);
  }
  add_->setVisible(calculation::CanAddComponent(setup));
  add_measured_->setVisible(context_.services.pick_measured && calculation::FreeComponent(setup));
}

void FacadeTable::ShowRow(Row& row, int element, const Setup& setup, const calculation::FacadeRow& numbers) {
  row.name->Show(setup);
  if (row.opaque_area != nullptr) row.opaque_area->setText(Told(numbers.area_m2, kAreaDecimals));
  Visited(setup, element, [&](const auto& part) {
    if (row.area != nullptr) row.area->Show(part.area_text);
    for (int term = 0; term < kTerms; ++term)
      row.boxes.at(static_cast<std::size_t>(term))->Show(TermOf(part, term));
  });
  row.ratings[0]->setText(Told(numbers.rating_db, 0));
  row.ratings[1]->setText(Told(numbers.c_db, 0));
  row.ratings[2]->setText(Told(numbers.ctr_db, 0));
  if (row.tightness != nullptr)
    row.tightness->Show(setup.facade.components.at(static_cast<std::size_t>(element - 1)).tightness_class);
  row.share->Show(numbers.share_percent);
}

}  // namespace velmar::shell
