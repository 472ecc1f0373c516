#include "shell/calculation_menu.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <array>
#include <string>
#include <string_view>

#include "shell/layer_row.h"
#include "shell/phrases.h"

namespace velmar::shell {
namespace {

using elements::Calculation;
using elements::CalculationRow;
using enum elements::Calculation;

constexpr MessageRow kRelationRow{142};

/// What stands behind the words of a menu entry.
enum class Mark { kNone, kRelation, kImpedance, kRow, kCommaAndRow };

struct Entry {
  Calculation calculation{};
  int row = 0;
  Mark mark = Mark::kNone;
  int mark_row = 0;
};

// In the order of the tree.
constexpr std::array<Entry, elements::kCalculationCount> kEntries = {{
    {kSingleWallGeneric, 23},
    {kSingleWallBrick, 25, Mark::kRelation},
    {kSingleWallBrickFerrara, 24, Mark::kRelation},
    {kSingleWallSea, 103},
    {kSingleWallPlasterboard, 26, Mark::kRelation},
    {kSingleWallConcrete, 102},
    {kSingleWallHBlocks, 27, Mark::kRelation},
    {kSingleWallExpandedClayBlocks, 28, Mark::kRelation},
    {kSingleWallConcreteBlocks, 29, Mark::kRelation},
    {kSingleWallGypsumBlocks, 30, Mark::kRelation},
    {kSingleWallAeratedConcrete, 31, Mark::kRelation},
    {kFloorHollowBrickConcrete, 32, Mark::kRelation},
    {kSinglePaneGeneric, 48},
    {kSinglePaneMonolithic, 49, Mark::kRelation},
    {kSinglePaneLaminated, 50, Mark::kRelation},
    {kInsulatingGlassGeneric, 51},
    {kInsulatingGlass, 53, Mark::kRelation},
    {kInsulatingGlassOneLaminated, 118, Mark::kRelation},
    {kInsulatingGlassTwoLaminated, 54, Mark::kRelation},
    {kDoubleWallGeneric, 34, Mark::kImpedance},
    {kDoubleWallBrick, 105, Mark::kRelation},
    {kDoubleWallBrickTorvalle, 104, Mark::kRelation},
    {kDoubleWallSeaBrick, 103},
    {kDoubleWallConcrete, 102},
    {kDoubleWallSeaPlasterboardPoint, 107},
    {kDoubleWallSeaPlasterboardLine, 108},
    {kDoubleWallPlasterboardCommonStuds, 36, Mark::kRelation},
    {kDoubleWallPlasterboardSeparateStuds, 37, Mark::kRelation},
    {kDoubleWallPlasterboardSingleBoardSimpleFrame, 39, Mark::kRelation},
    {kDoubleWallPlasterboardMultipleBoardSimpleFrame, 40, Mark::kRelation},
    {kDoubleWallPlasterboardMultipleBoardDoubleFrame, 41, Mark::kRelation},
    {kLightWallLineLine, 43},
    {kLightWallLinePoint, 44},
    {kLightWallPointPoint, 45},
    {kLightWallIsolated, 46},
    {kFloorWithFloatingScreed, 32, Mark::kCommaAndRow, 188},
    {kCompositeElement, 55},
    {kLiningGeneric, 111, Mark::kRelation},
    {kLiningCalibel, 112},
    {kLiningFrame, 113},
    {kCeilingGeneric, 115, Mark::kRelation},
    {kCeilingSea, 116},
    {kImpactFloatingFloor, 58, Mark::kRow, 144},
    {kImpactReinforcedConcrete, 59, Mark::kRow, 145},
    {kImpactLightweightConcrete, 60, Mark::kRow, 146},
    {kImpactHollowBrickConcrete, 109, Mark::kRow, 147},
    {kImpactHollowBrickConcreteGavelo, 413, Mark::kRow, 143},
}};

/// A line of the tree: a heading (row) or the entries of a menu handler, `depth` steps in.
struct TreeLine {
  int depth = 0;
  const char* control = "";
  int heading_row = 0;  ///< 0: the entries of the handler `control`
};

constexpr std::array<TreeLine, 25> kTree = {{
    {0, "tipo_calcolo_potere_fonoisolante", 21},
    {1, "cal_parete_singola", 22},
    {2, "TIPO_PARETE_SINGOLA", 0},
    {2, "PARETE_SINGOLA_VETRATE", 47},
    {3, "VETRATURE", 0},
    {1, "cal_parete_doppia", 33},
    {2, "TIPO_PARETE_DOPPIA", 0},
    {2, "TIPO_PARETE_DOPPIA2", 0},
    {2, "ParDoppiaSEA", 106},
    {3, "TIPO_PARETE_SEA", 0},
    {2, "TIPO_DOPPIO_CARTONGESSO", 35},
    {3, "TIPO_PARETE_DOPPIA_CARTONGESSO", 0},
    {2, "TIPO_DOPPIO_CARTONGESSO_2", 38},
    {3, "TIPO_DOPPIO_CARTONGESSO_SPERIM", 0},
    {2, "PARETE_DOPPIA_LEGGERA", 42},
    {3, "TIPO_PARETE_DOPPIA_LEGGERA_LLPI", 0},
    {1, "TIPO_SOLAIO_DOPPIO", 0},
    {1, "mnuCalcoloControplaccaggi", 110},
    {2, "mnuCalcoloControplaccaggiScelta", 0},
    {1, "mnuCalcoloControsoffitto", 114},
    {2, "mnuCalcoloControsoffittiScelta", 0},
    {1, "cal_facciata", 0},
    {0, "tipo_calcolo_calpestio", 56},
    {1, "cal_solaio", 0},
    {1, "cal_solaio_new", 0},
}};

const Entry& EntryOf(Calculation calculation) {
  for (const Entry& entry : kEntries) {
    if (entry.calculation == calculation) return entry;
  }
  return kEntries.front();
}

QString ControlName(const CalculationRow& row) {
  int members = 0;
  for (const CalculationRow& other : elements::Catalogue())
    members += other.menu_group == row.menu_group ? 1 : 0;
  const QString group = FromUtf8(std::string(row.menu_group));
  return members == 1 ? group : ArrayName(row.menu_group, row.menu_index);
}

}  // namespace

MessageLine MenuCaption(Calculation calculation) {
  const Entry& entry = EntryOf(calculation);
  MessageLine line = {MessageRow{entry.row}};
  switch (entry.mark) {
    case Mark::kNone:
      break;
    case Mark::kRelation:
      line.insert(line.end(),
                  {std::string(" ["), kRelationRow, ' ' + std::to_string(RowOf(calculation).relation) + ']'});
      break;
    case Mark::kImpedance:
      line.emplace_back(std::string(" [MIA]"));
      break;
    case Mark::kRow:
      line.insert(line.end(), {std::string(" "), MessageRow{entry.mark_row}});
      break;
    case Mark::kCommaAndRow:
      line.insert(line.end(), {std::string(", "), MessageRow{entry.mark_row}});
      break;
  }
  return line;
}

CalculationActions::CalculationActions(const presentation::Words& words, QObject* parent,
                                       const std::function<void(Calculation)>& choose) {
  auto* group = new QActionGroup(parent);
  group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
  for (const CalculationRow& row : elements::Catalogue()) {
    auto* action = new QAction(Text(words, MenuCaption(row.calculation)), parent);
    action->setObjectName(ControlName(row));
    action->setCheckable(true);
    group->addAction(action);
    const Calculation calculation = row.calculation;
    QObject::connect(action, &QAction::triggered, parent, [choose, calculation] { choose(calculation); });
    actions_.emplace(calculation, action);
  }
}

void CalculationActions::FillTree(QMenu& menu, const presentation::Words& words) const {
  std::array<QMenu*, 4> path = {&menu, nullptr, nullptr, nullptr};
  for (const TreeLine& line : kTree) {
    QMenu* parent = path.at(static_cast<std::size_t>(line.depth));
    if (line.heading_row != 0) {
      QMenu* heading = parent->addMenu(Text(words, MessageRow{line.heading_row}));
      heading->setObjectName(line.control);
      path.at(static_cast<std::size_t>(line.depth) + 1) = heading;
      continue;
    }
    int last_index = -1;
    for (const Entry& entry : kEntries) {
      const CalculationRow& row = RowOf(entry.calculation);
      if (row.menu_group != line.control) continue;
      // An index that no entry has is a separator.
      if (row.menu_index > last_index + 1) parent->addSeparator();
      parent->addAction(Of(entry.calculation));
      last_index = row.menu_index;
    }
  }
}

void CalculationActions::FillKind(QMenu& menu, elements::ElementButton button) const {
  std::string_view group;
  for (const Entry& entry : kEntries) {
    const CalculationRow& row = RowOf(entry.calculation);
    if (row.button != button) continue;
    if (!group.empty() && row.menu_group != group) menu.addSeparator();
    group = row.menu_group;
    menu.addAction(Of(entry.calculation));
  }
}

void CalculationActions::Mark(Calculation calculation) { Of(calculation)->setChecked(true); }

elements::Calculation FirstOf(elements::ElementButton button) {
  for (const Entry& entry : kEntries) {
    if (RowOf(entry.calculation).button == button) return entry.calculation;
  }
  return kSingleWallGeneric;
}

}  // namespace velmar::shell
