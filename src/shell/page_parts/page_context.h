#pragma once

#include <QObject>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "calculation/edits/material_choice.h"
#include "calculation/open/open_calculation.h"
#include "elements/fields.h"
#include "presentation/drawing/section.h"
#include "shell/fields/corrections.h"
#include "shell/page_parts/material_lists.h"
#include "shell/page_parts/page_services.h"
#include "shell/windows/boxes.h"

namespace velmar::shell {

/// What an input page is given. A page shows the set-up and reports edits to the open calculation; it knows
/// neither its window nor the other pages.
class PageContext : public QObject {
  Q_OBJECT

 public:
  PageContext(calculation::OpenCalculation& open_calculation, const Speech& how_to_speak,
              const PageServices& page_services, MaterialLists& lists);

  calculation::OpenCalculation& open;
  const Speech& speech;
  const PageServices& services;
  MaterialLists& materials;

  const presentation::Words& Words() const { return speech.words; }

  /// The way of a page to change the set-up. Layer rows that come into use by it read their material.
  /// @param change is handed the set-up and, where it asks for them, the materials: as one operation with
  /// what
  ///               the rows read, so that a database that fails is told once
  /// @param named what is done, where that is more than the difference tells
  template <typename Change>
  void Edit(Change&& change, const std::optional<calculation::Step>& named = std::nullopt) {
    open.Edit(
        [&](elements::Setup& setup) {
          const elements::MaterialLookup tables = elements::ForOneOperation(services.materials);
          if constexpr (std::is_invocable_v<Change, elements::Setup&, const elements::MaterialLookup&>) {
            std::forward<Change>(change)(setup, tables);
          } else {
            std::forward<Change>(change)(setup);
          }
          calculation::LoadRowsInUse(setup, tables);
        },
        named);
  }

  /// From now on `control` is where `field` is entered: a refusal and the drawing lead there.
  void Place(const elements::FieldId& field, QWidget* control) { places_.emplace_back(field, control); }
  /// Where `field` is entered, for the values of a layer's material the list of its materials; null where no
  /// page asks for it.
  QWidget* ControlOf(const elements::FieldId& field) const;

  /// What `field` corrects stands beside it from now on, and the field settles when the window asks for it.
  /// @param Field has the signal Corrected; where it has a slot Settle, that is used too
  template <typename Field>
  void Watch(Field* field) {
    if constexpr (requires { &Field::Corrected; }) {
      connect(field, &Field::Corrected, this, [this, field](Correction correction, int limit) {
        NoteCorrection(field, correction, limit, Words());
      });
    }
    if constexpr (requires { &Field::Settle; })
      connect(this, &PageContext::SettleAsked, field, &Field::Settle);
  }

 signals:
  /// The mouse is over a layer row, or over none.
  void RowHovered(const std::optional<velmar::presentation::LayerPlace>& place);
  /// The mouse is over a layer of the section drawing, or over none.
  void SectionHovered(const std::optional<velmar::presentation::LayerPlace>& place);
  /// Whatever was typed and is not yet taken is to be taken now: before a run, or before the project is
  /// saved.
  void SettleAsked();
  /// The keys go to the field `place` of row `row`, counted as the row's fields follow each other.
  void RowFocusAsked(velmar::elements::LayerGroup group, int row, int place);

 private:
  std::vector<std::pair<elements::FieldId, QWidget*>> places_;
};

}  // namespace velmar::shell
