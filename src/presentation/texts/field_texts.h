#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "elements/catalogue.h"
#include "elements/fields.h"
#include "elements/setup.h"
#include "foundation/catalogue_rows.h"
#include "foundation/message_rows.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// A caption and its value.
struct DataField {
  std::string caption{};
  std::string value{};
  bool as_it_stands = false;  ///< a name that paper must not set anew
};

/// What undo calls a change of `field`: "larghezza".
MessageRow StepRowOf(elements::Field field);

/// `field` of `setup`, whose calculation is that of `row`, as the data of a calculation tell it; nothing for
/// a field of layers, parts and base elements, which stand in tables.
std::optional<DataField> FieldOf(elements::Field field, const elements::Setup& setup,
                                 const elements::CalculationRow& row, const Words& words);

/// An input beside the layers, as paper tells it. A tick has no value: the caption alone says that it is set.
struct InputText {
  elements::Field field{};
  std::string caption{};
  std::string value{};
};

/// What the calculation of `setup` reads of how the element is put together: distance or number of its
/// connections, hanger, decoupling. An input that is added here stands on every page and in every report.
std::vector<InputText> ConnectionTexts(const elements::Setup& setup, const Words& words);

/// The entries of `ComboTipoAppendino`.
inline constexpr std::array kHangerRows = {kHangerFixedDirectlyRow, kHangerSimpleRow, kHangerSpringRow};

/// An entry of `ComboTipoAppendino`, 0 to 2; an empty text for another position.
std::string HangerText(int hanger, const Words& words);

}  // namespace velmar::presentation
