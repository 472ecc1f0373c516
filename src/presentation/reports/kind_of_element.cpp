#include "presentation/reports/kind_of_element.h"

#include <algorithm>
#include <array>

#include "elements/catalogue.h"

namespace velmar::presentation {
namespace {

using elements::Orientation;

struct Kind {
  Orientation orientation{};
  MessageRow row{};
};

constexpr std::array<Kind, 7> kKinds = {{{Orientation::kVerticalSingle, {278}},
                                         {Orientation::kVerticalDouble, {277}},
                                         {Orientation::kHorizontalSingle, {281}},
                                         {Orientation::kHorizontalDouble, {279}},
                                         {Orientation::kLining, {111}},
                                         {Orientation::kCeiling, {115}},
                                         {Orientation::kComposite, {282}}}};
constexpr MessageRow kGlazingRow{273};
constexpr MessageRow kDecoupledBrickRow{280};

}  // namespace

MessageRow KindOfElementRow(const elements::Setup& setup) {
  if (!setup.calculation) return {};
  if (elements::IsGlazing(*setup.calculation)) return kGlazingRow;
  if (setup.calculation == elements::Calculation::kDoubleWallSeaBrick && setup.decoupled)
    return kDecoupledBrickRow;
  const Orientation orientation = elements::RowOf(*setup.calculation).orientation;
  return std::ranges::find(kKinds, orientation, &Kind::orientation)->row;
}

}  // namespace velmar::presentation
