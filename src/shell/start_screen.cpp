#include "shell/start_screen.h"

#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "shell/calculation_menu.h"
#include "shell/icons.h"
#include "shell/phrases.h"

namespace velmar::shell {
namespace {

using elements::ElementButton;

constexpr MessageRow kChooseRow{1300};
constexpr MessageRow kRecentRow{1301};
constexpr MessageRow kExamplesRow{1302};
constexpr MessageRow kNoRecentRow{1303};
constexpr MessageRow kNoExamplesRow{1305};
constexpr int kMostShown = 6;
constexpr int kCardIcon = 48;
constexpr QSize kCard{176, 112};
constexpr int kKindsALine = 3;
constexpr double kHeadingScale = 1.4;

struct Kind {
  ElementButton button{};
  int row = 0;
  const char* icon = "";
};
constexpr std::array kKinds = {
    Kind{ElementButton::kSingleWall, 314, "wall"}, Kind{ElementButton::kDoubleWall, 315, "double-wall"},
    Kind{ElementButton::kFloor, 316, "floor"},     Kind{ElementButton::kFacade, 317, "facade"},
    Kind{ElementButton::kLining, 318, "lining"},   Kind{ElementButton::kCeiling, 319, "ceiling"},
};

QLabel* Heading(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont large = label->font();
  large.setPointSizeF(large.pointSizeF() * kHeadingScale);
  label->setFont(large);
  return label;
}

QVBoxLayout* AddList(QHBoxLayout& lists, const QString& heading, QWidget* parent) {
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  column->addWidget(Heading(heading, parent));
  auto* list = new QVBoxLayout;
  list->setSpacing(0);
  column->addLayout(list);
  column->addStretch(1);
  lists.addLayout(column, 1);
  return list;
}

}  // namespace

StartScreen::StartScreen(const presentation::Words& words, const CalculationActions& calculations,
                         Doors doors, QWidget* parent)
    : QWidget(parent), words_(words), doors_(std::move(doors)) {
  setObjectName("Inizio");
  auto* centre = new QHBoxLayout(this);
  centre->addStretch(1);
  auto* column = new QVBoxLayout;
  column->setSpacing(16);
  centre->addLayout(column);
  centre->addStretch(1);
  column->addStretch(1);
  column->addWidget(Heading(Text(words_, kChooseRow), this));
  AddKinds(*column, calculations);
  column->addSpacing(16);
  auto* lists = new QHBoxLayout;
  lists->setSpacing(32);
  recent_ = AddList(*lists, Text(words_, kRecentRow), this);
  examples_ = AddList(*lists, Text(words_, kExamplesRow), this);
  column->addLayout(lists);
  column->addStretch(2);
}

void StartScreen::AddKinds(QVBoxLayout& column, const CalculationActions& calculations) {
  auto* grid = new QGridLayout;
  grid->setSpacing(8);
  int place = 0;
  for (const Kind& kind : kKinds) {
    auto* card = new QToolButton(this);
    card->setObjectName("Inizio_" + QString::number(static_cast<int>(kind.button)));
    card->setText(Text(words_, MessageRow{kind.row}));
    card->setAccessibleName(card->text());
    card->setIcon(LineIcon(kind.icon));
    card->setIconSize({kCardIcon, kCardIcon});
    card->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    card->setFixedSize(kCard);
    card->setFocusPolicy(Qt::StrongFocus);
    auto* menu = new QMenu(card);
    calculations.FillKind(*menu, kind.button);
    card->setMenu(menu);
    card->setPopupMode(QToolButton::MenuButtonPopup);
    const ElementButton button = kind.button;
    connect(card, &QToolButton::clicked, this, [this, button] { doors_.begin(button); });
    grid->addWidget(card, place / kKindsALine, place % kKindsALine);
    ++place;
  }
  column.addLayout(grid);
}

void StartScreen::ShowProjects(const std::vector<std::filesystem::path>& recent,
                               const std::vector<std::filesystem::path>& examples) {
  Fill(*recent_, recent, kNoRecentRow);
  Fill(*examples_, examples, kNoExamplesRow);
}

void StartScreen::Fill(QVBoxLayout& list, const std::vector<std::filesystem::path>& projects,
                       MessageRow none) {
  while (QLayoutItem* item = list.takeAt(0)) {
    delete item->widget();
    delete item;
  }
  if (projects.empty()) {
    auto* label = new QLabel(Text(words_, none), this);
    label->setForegroundRole(QPalette::PlaceholderText);
    list.addWidget(label);
    return;
  }
  int shown = 0;
  for (const std::filesystem::path& project : projects) {
    if (++shown > kMostShown) break;
    const QString path = QString::fromStdString(project.string());
    auto* button = new QPushButton(QString::fromStdString(project.stem().string()), this);
    button->setFlat(true);
    button->setToolTip(path);
    button->setAccessibleName(path);
    button->setStyleSheet("QPushButton { text-align: left; padding: 4px; }");
    connect(button, &QPushButton::clicked, this, [this, project] { doors_.open(project); });
    list.addWidget(button);
  }
}

}  // namespace velmar::shell
