#include "shell/main_window/start_screen.h"

#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <optional>

#include "foundation/message_rows.h"
#include "shell/commands/calculation_menu.h"
#include "shell/commands/command_table.h"
#include "shell/main_window/kind_card.h"
#include "shell/main_window/project_list.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::ElementButton;

constexpr int kMargin = 32;
constexpr int kGap = 16;
constexpr QSize kLargest{1040, 860};
constexpr int kContentStretch = 100;
constexpr double kHeadingScale = 1.25;

QLabel* Heading(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont large = label->font();
  large.setPointSizeF(large.pointSizeF() * kHeadingScale);
  label->setFont(large);
  return label;
}

}  // namespace

StartScreen::StartScreen(const presentation::Words& words, const CalculationActions& calculations,
                         QWidget* parent)
    : QWidget(parent), words_(words) {
  setObjectName("Inizio");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  auto* content = new QWidget(this);
  content->setMaximumSize(kLargest);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  column->addWidget(Heading(Text(words_, kChooseKindRow), this));
  AddKinds(*column, calculations);
  column->addSpacing(2 * kGap);
  auto* lists = new QGridLayout;
  lists->setHorizontalSpacing(2 * kGap);
  lists->setVerticalSpacing(kGap / 2);
  recent_ = AddList(*lists, 0, kRecentProjectsRow);
  recent_->setObjectName("Recenti");
  examples_ = AddList(*lists, 1, kExamplesRow);
  examples_->setObjectName("Esempi");
  column->addLayout(lists, 1);
  // Large screens leave room around, small ones give it to the lists.
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(0, 1);
  grid->addWidget(content, 1, 1);
  grid->setRowStretch(1, kContentStretch);
  grid->setRowStretch(2, 2);
  grid->setColumnStretch(1, kContentStretch);
  grid->setColumnStretch(2, 1);
}

ProjectList* StartScreen::AddList(QGridLayout& lists, int place, MessageRow heading) {
  auto* list = new ProjectList(this);
  connect(list, &ProjectList::Opened, this, &StartScreen::ProjectChosen);
  QLabel* label = Heading(Text(words_, heading), this);
  label->setBuddy(list);
  list->setAccessibleName(label->text());
  lists.addWidget(label, 0, place);
  lists.addWidget(list, 1, place);
  lists.setRowStretch(1, 1);
  return list;
}

void StartScreen::AddKinds(QVBoxLayout& column, const CalculationActions& calculations) {
  auto* line = new QHBoxLayout;
  line->setSpacing(kGap);
  for (const Command& command : Commands()) {
    const std::optional<ElementButton> kind = command.Kind();
    if (!kind) continue;
    auto* card = new KindCard(Text(words_, command.Caption()), command.icon,
                              Text(words_, kChooseCalculationRow), this);
    card->setObjectName("Inizio_" + QString::number(command.button));
    calculations.FillKind(*card->Calculations(), *kind, words_);
    connect(card, &KindCard::clicked, this, [this, kind] { emit KindChosen(*kind); });
    line->addWidget(card);
  }
  column.addLayout(line);
}

void StartScreen::ShowProjects(const std::vector<std::filesystem::path>& recent,
                               const std::vector<std::filesystem::path>& examples) {
  recent_->Show(recent, Text(words_, kNoRecentRow), /*with_folders=*/true);
  examples_->Show(examples, Text(words_, kNoExamplesRow), /*with_folders=*/false);
}

}  // namespace velmar::shell
