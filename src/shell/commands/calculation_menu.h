#pragma once

#include <QObject>
#include <map>

#include "elements/catalogue.h"
#include "foundation/message.h"
#include "presentation/texts/words.h"

class QAction;
class QMenu;

namespace velmar::shell {

/// The actions of all calculations, one each, shared by the calculation tree, the menus of the element
/// buttons and the start screen. Each is called after its menu handler, with its index where that has
/// several.
class CalculationActions : public QObject {
  Q_OBJECT
 public:
  CalculationActions(const presentation::Words& words, QObject* parent);

  QAction* Of(elements::Calculation calculation) const { return actions_.at(calculation); }
  /// Fills `menu` with the calculation tree.
  void FillTree(QMenu& menu, const presentation::Words& words) const;
  /// Fills `menu` with the calculations of an element button in the order of the tree, under the headings
  /// that they have there; what the button itself begins stands in the first section.
  void FillKind(QMenu& menu, elements::ElementButton button, const presentation::Words& words) const;
  /// Marks `calculation` as the one that is open.
  void Mark(elements::Calculation calculation);

 signals:
  void Chosen(velmar::elements::Calculation calculation);

 private:
  std::map<elements::Calculation, QAction*> actions_;
};

/// The calculation that an element button begins with: the generic one of its kind.
elements::Calculation FirstOf(elements::ElementButton button);

}  // namespace velmar::shell
