// FACCIATA: Check2 (integer); a marker; the opaque part: name, description, rating, area, total thickness,
// surface mass (single), 21 bands, C, Ctr, blank; Combo15 (text, the number of components); for each
// component: a marker, name, description, rating, area, surface mass (single), 21 bands, C, Ctr, Ctr again;
// then for each component its class of air tightness (integer).
#include <algorithm>
#include <optional>
#include <span>
#include <string>

#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "storage/project/base_element_lines.h"
#include "storage/project/family_parts.h"
#include "storage/project/structural_blocks.h"

namespace velmar::storage {
namespace {

using elements::Facade;
using elements::FacadeComponent;

constexpr const char* kOpaquePart = "***********Parte opaca*************";
constexpr int kLastTightnessClass = 4;
/// Nothing adds to the thickness of a composite element (`Text3`).
constexpr const char* kNoThickness = "0";

std::string ComponentMarker(std::size_t number) {
  return "*************" + std::to_string(number) + "° infisso**************";
}

/// `Combo15` as typed, or a count that the list can hold where it names none.
std::string HeldCountText(const Facade& facade) {
  const std::optional<double> value = ParseDecimal(facade.count_text);
  const double whole = value ? RoundToEven(*value) : 0.0;
  const bool held = whole >= 1.0 && whole <= Facade::kCapacity;
  return held ? facade.count_text : std::to_string(facade.Count());
}

void WriteComponent(LineWriter& out, const FacadeComponent& component) {
  out.Text(component.name);
  out.Text(component.description);
  out.Text(component.rating_text);
  out.Text(component.area_text);
  WriteRatedElement(out, component);
  out.Text(component.ctr_text);
}

void ReadComponent(LineCursor& lines, FacadeComponent& component) {
  component.name = lines.Text();
  component.description = lines.Text();
  component.rating_text = lines.Text();
  component.area_text = lines.Text();
  ReadRatedElement(lines, component);
  component.ctr_text = lines.Text();
}

}  // namespace

void WriteFacadePart(LineWriter& out, const elements::Setup& setup, const PartLayout& /*layout*/) {
  out.Integer(setup.facade.simplified ? 1 : 0);
  out.Text(kOpaquePart);
  WriteBaseHead(out, setup.base);
  out.Text(kNoThickness);
  WriteRatedElement(out, setup.base);
  out.Blank();
  out.Text(HeldCountText(setup.facade));
  const std::span components(setup.facade.components.begin(), static_cast<std::size_t>(setup.facade.Count()));
  for (std::size_t i = 0; i < components.size(); ++i) {
    out.Text(ComponentMarker(i + 1));
    WriteComponent(out, components[i]);
  }
  for (const FacadeComponent& component : components) {
    out.Integer(std::clamp(component.tightness_class, 0, kLastTightnessClass));
  }
}

void ReadFacadePart(PartInput& in, elements::Setup& setup) {
  setup.facade.simplified = in.lines.Integer(0, 1) == 1;
  in.lines.Label("***");
  ReadBaseHead(in.lines, setup.base);
  in.lines.Text();  // the thickness is formed anew
  ReadRatedElement(in.lines, setup.base);
  in.lines.Blank();
  const int count = in.lines.Integer(1, Facade::kCapacity, setup.facade.count_text);
  const std::span components(setup.facade.components.begin(), static_cast<std::size_t>(count));
  for (FacadeComponent& component : components) {
    in.lines.Label("***");
    ReadComponent(in.lines, component);
  }
  for (FacadeComponent& component : components) {
    component.tightness_class = in.lines.Integer(0, kLastTightnessClass);
  }
}

}  // namespace velmar::storage
