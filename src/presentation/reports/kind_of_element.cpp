#include "presentation/reports/kind_of_element.h"

#include <algorithm>
#include <array>

#include "elements/catalogue.h"
#include "foundation/message_rows.h"

namespace velmar::presentation {
namespace {

using elements::Orientation;

struct Kind {
  Orientation orientation{};
  MessageRow row{};
};

constexpr std::array<Kind, 8> kKinds = {{{Orientation::kVerticalSingle, kSingleWallKindRow},
                                         {Orientation::kVerticalDouble, kDoubleWallKindRow},
                                         {Orientation::kHorizontalSingle, kFloorKindRow},
                                         {Orientation::kHorizontalDouble, kScreedFloorKindRow},
                                         {Orientation::kLining, kWallLiningRow},
                                         {Orientation::kCeiling, kCeilingRow},
                                         {Orientation::kComposite, kFacadeKindRow},
                                         {Orientation::kMultilayer, kMultilayerRow}}};

}  // namespace

MessageRow KindOfElementRow(const elements::Setup& setup) {
  if (!setup.calculation) return {};
  if (elements::IsGlazing(*setup.calculation)) return kGlazingRow;
  if (elements::RowOf(*setup.calculation).Reads(elements::Field::kDecoupling) && setup.decoupled)
    return kDecoupledBrickRow;
  const Orientation orientation = elements::RowOf(*setup.calculation).orientation;
  return std::ranges::find(kKinds, orientation, &Kind::orientation)->row;
}

}  // namespace velmar::presentation
