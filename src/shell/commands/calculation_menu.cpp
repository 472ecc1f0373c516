#include "shell/commands/calculation_menu.h"

#include <QAction>
#include <QActionGroup>
#include <QFont>
#include <QMenu>
#include <QPalette>
#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/message_rows.h"
#include "shell/commands/calculation_captions.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::Calculation;
using elements::CalculationRow;

/// A line of the tree: a heading (row) or the entries of a menu handler, `depth` steps in.
struct TreeLine {
  int depth = 0;
  const char* control = "";
  MessageRow heading{};  ///< none: the entries of the handler `control`
};

constexpr std::array<TreeLine, 27> kTree = {{
    {0, "tipo_calcolo_potere_fonoisolante", kSoundReductionIndexRow},
    {1, "cal_parete_singola", kSingleWallMenuRow},
    {2, "TIPO_PARETE_SINGOLA", {}},
    {2, "PARETE_SINGOLA_VETRATE", kGlazingMenuRow},
    {3, "VETRATURE", {}},
    {1, "cal_parete_doppia", kDoubleWallMenuRow},
    {2, "TIPO_PARETE_DOPPIA", {}},
    {2, "TIPO_PARETE_DOPPIA2", {}},
    {2, "ParDoppiaSEA", kPlasterboardSeaMenuRow},
    {3, "TIPO_PARETE_SEA", {}},
    {2, "TIPO_DOPPIO_CARTONGESSO", kPlasterboardByStudsMenuRow},
    {3, "TIPO_PARETE_DOPPIA_CARTONGESSO", {}},
    {2, "TIPO_DOPPIO_CARTONGESSO_2", kPlasterboardByFrameMenuRow},
    {3, "TIPO_DOPPIO_CARTONGESSO_SPERIM", {}},
    {2, "PARETE_DOPPIA_LEGGERA", kLightWallMenuRow},
    {3, "TIPO_PARETE_DOPPIA_LEGGERA_LLPI", {}},
    {1, "TIPO_SOLAIO_DOPPIO", {}},
    {1, "mnuCalcoloControplaccaggi", kLiningsMenuRow},
    {2, "mnuCalcoloControplaccaggiScelta", {}},
    {1, "mnuCalcoloControsoffitto", kCeilingsMenuRow},
    {2, "mnuCalcoloControsoffittiScelta", {}},
    {1, "cal_facciata", {}},
    {0, "tipo_calcolo_calpestio", kImpactSoundPressureLevelRow},
    {1, "cal_solaio", {}},
    {1, "cal_solaio_new", {}},
    {0, "ALTRI_MODELLI", kOtherModelsMenuRow},
    {1, "MULTISTRATO", {}},
}};

QString ControlName(const CalculationRow& row) {
  int members = 0;
  for (const CalculationRow& other : elements::Catalogue())
    members += other.menu_group == row.menu_group ? 1 : 0;
  const QString group = FromUtf8(std::string(row.menu_group));
  return members == 1 ? group : ArrayName(row.menu_group, row.menu_index);
}

/// The heading that `calculation` stands under in the tree.
MessageRow HeadingOf(Calculation calculation) {
  std::array<MessageRow, 4> path{};
  for (const TreeLine& line : kTree) {
    const auto depth = static_cast<std::size_t>(line.depth);
    if (line.heading != MessageRow{}) path.at(depth) = line.heading;
    if (line.heading == MessageRow{} && RowOf(calculation).menu_group == line.control)
      return path.at(depth - 1);
  }
  return {};
}

/// Of the letters of a heading: quieter than an entry, and legible all the same.
constexpr float kHeadingStrength = 0.75F;

/// A line that names what follows it; not to be chosen.
void AddHeading(QMenu& menu, const QString& text) {
  QPalette colours = menu.palette();
  QColor quiet = colours.color(QPalette::Active, QPalette::Text);
  quiet.setAlphaF(kHeadingStrength);
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    colours.setColor(QPalette::Disabled, role, quiet);
  menu.setPalette(colours);
  if (!menu.isEmpty()) menu.addSeparator();
  QAction* heading = menu.addAction(text);
  heading->setEnabled(false);
  QFont letters = menu.font();
  letters.setBold(true);
  heading->setFont(letters);
}

}  // namespace

CalculationActions::CalculationActions(const presentation::Words& words, QObject* parent) : QObject(parent) {
  auto* group = new QActionGroup(parent);
  group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
  for (const CalculationRow& row : elements::Catalogue()) {
    auto* action = new QAction(Text(words, MenuCaption(row.calculation)), parent);
    action->setObjectName(ControlName(row));
    action->setCheckable(true);
    group->addAction(action);
    const Calculation calculation = row.calculation;
    connect(action, &QAction::triggered, this, [this, calculation] { emit Chosen(calculation); });
    actions_.emplace(calculation, action);
  }
}

void CalculationActions::FillTree(QMenu& menu, const presentation::Words& words) const {
  std::array<QMenu*, 4> path = {&menu, nullptr, nullptr, nullptr};
  for (const TreeLine& line : kTree) {
    QMenu* parent = path.at(static_cast<std::size_t>(line.depth));
    if (line.heading != MessageRow{}) {
      QMenu* heading = parent->addMenu(Text(words, line.heading));
      heading->setObjectName(line.control);
      path.at(static_cast<std::size_t>(line.depth) + 1) = heading;
      continue;
    }
    int last_index = -1;
    for (const Calculation calculation : InMenuOrder()) {
      const CalculationRow& row = RowOf(calculation);
      if (row.menu_group != line.control) continue;
      // An index that no entry has is a separator.
      if (row.menu_index > last_index + 1) parent->addSeparator();
      parent->addAction(Of(calculation));
      last_index = row.menu_index;
    }
  }
}

void CalculationActions::FillKind(QMenu& menu, elements::ElementButton button,
                                  const presentation::Words& words) const {
  std::vector<Calculation> of_button;
  const MessageRow first = HeadingOf(FirstOf(button));
  std::ranges::copy_if(InMenuOrder(), std::back_inserter(of_button),
                       [button](Calculation one) { return RowOf(one).button == button; });
  // What the button itself begins stands in the first section.
  std::ranges::stable_partition(of_button, [first](Calculation one) { return HeadingOf(one) == first; });
  const bool sections = HeadingOf(of_button.front()) != HeadingOf(of_button.back());
  MessageRow heading{};
  for (const Calculation calculation : of_button) {
    if (sections && HeadingOf(calculation) != heading) {
      heading = HeadingOf(calculation);
      AddHeading(menu, Text(words, heading));
    }
    menu.addAction(Of(calculation));
  }
}

void CalculationActions::Mark(Calculation calculation) { Of(calculation)->setChecked(true); }

elements::Calculation FirstOf(elements::ElementButton button) {
  switch (button) {
    case elements::ElementButton::kSingleWall:
      return Calculation::kSingleWallGeneric;
    case elements::ElementButton::kDoubleWall:
      return Calculation::kDoubleWallGeneric;
    case elements::ElementButton::kFloor:
      return Calculation::kFloorWithFloatingScreed;
    case elements::ElementButton::kFacade:
      return Calculation::kCompositeElement;
    case elements::ElementButton::kLining:
      return Calculation::kLiningGeneric;
    case elements::ElementButton::kCeiling:
      return Calculation::kCeilingGeneric;
  }
  return Calculation::kSingleWallGeneric;
}

}  // namespace velmar::shell
