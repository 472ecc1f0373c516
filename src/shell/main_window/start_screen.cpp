#include "shell/main_window/start_screen.h"

#include <QComboBox>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <optional>
#include <utility>

#include "foundation/message_rows.h"
#include "shell/commands/calculation_menu.h"
#include "shell/commands/command_table.h"
#include "shell/main_window/construction_tiles.h"
#include "shell/main_window/kind_card.h"
#include "shell/main_window/project_list.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::ElementButton;

constexpr int kMargin = 32;
constexpr int kGap = 16;
constexpr QSize kLargest{1160, 920};
constexpr int kRecentStretch = 2;
constexpr int kTilesStretch = 5;
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
                         ProjectGlances::Reader read, QWidget* parent)
    : QWidget(parent), words_(words), glances_(std::move(read)) {
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
  column->addSpacing(kGap);
  AddProjects(*column);
  // Large screens leave room around, small ones give it to the lists.
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(0, 1);
  grid->addWidget(content, 1, 1);
  grid->setRowStretch(1, kContentStretch);
  grid->setRowStretch(2, 2);
  grid->setColumnStretch(1, kContentStretch);
  grid->setColumnStretch(2, 1);
}

void StartScreen::AddProjects(QVBoxLayout& column) {
  auto* lists = new QGridLayout;
  lists->setHorizontalSpacing(2 * kGap);
  lists->setVerticalSpacing(kGap / 2);
  recent_ = new ProjectList(words_, this);
  recent_->setObjectName("Recenti");
  tiles_ = new ConstructionTiles(words_, this);
  tiles_->setObjectName("Costruzioni");
  const auto heading = [&](MessageRow row, QWidget* of) {
    QLabel* label = Heading(Text(words_, row), this);
    label->setBuddy(of);
    of->setAccessibleName(label->text());
    return label;
  };
  auto* over_tiles = new QHBoxLayout;
  over_tiles->addWidget(heading(kConstructionsRow, tiles_), 1);
  over_tiles->addWidget(tiles_->Kinds());
  lists->addWidget(heading(kRecentProjectsRow, recent_), 0, 0);
  lists->addLayout(over_tiles, 0, 1);
  lists->addWidget(recent_, 1, 0);
  lists->addWidget(tiles_, 1, 1);
  lists->setColumnStretch(0, kRecentStretch);
  lists->setColumnStretch(1, kTilesStretch);
  lists->setRowStretch(1, 1);
  column.addLayout(lists, 1);
  connect(recent_, &ProjectList::Opened, this, &StartScreen::ProjectChosen);
  connect(tiles_, &ConstructionTiles::ExampleChosen, this, &StartScreen::ProjectChosen);
  connect(tiles_, &ConstructionTiles::TemplateChosen, this, &StartScreen::TemplateChosen);
  connect(tiles_, &ConstructionTiles::RenamingWanted, this, &StartScreen::TemplateRenamingWanted);
  connect(tiles_, &ConstructionTiles::RemovalWanted, this, &StartScreen::TemplateRemovalWanted);
  connect(&glances_, &ProjectGlances::Seen, recent_, &ProjectList::Tell);
  connect(&glances_, &ProjectGlances::Seen, tiles_, &ConstructionTiles::Tell);
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

void StartScreen::ShowProjects(const StartProjects& projects, const elements::Setup& current) {
  recent_projects_ = projects.recent;
  current_ = current;
  recent_->Show(projects.recent);
  tiles_->Show(projects.templates, projects.examples);
  if (isVisible()) LookAtProjects();
}

// Each time anew: files, materials and what stands in other fields may have changed meanwhile.
void StartScreen::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  LookAtProjects();
}

void StartScreen::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  glances_.Stop();
}

void StartScreen::LookAtProjects() {
  std::vector<std::filesystem::path> projects = recent_projects_;
  const std::vector<std::filesystem::path> constructions = tiles_->Projects();
  projects.insert(projects.end(), constructions.begin(), constructions.end());
  glances_.LookAt(projects, current_);
}

}  // namespace velmar::shell
