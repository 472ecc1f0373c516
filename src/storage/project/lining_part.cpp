// CONTROPLACCAGGIO and CONTROSOFFITTO: Text8 or ComboTipoAppendino (integer) for the variant that has it;
// "PARTE_OPACA"; the base element: name, description, rating, area, thickness (double), surface mass
// (single), 21 bands, C, Ctr; the contents of the cavity; the layers of the lining; the depth of the cavity.
#include <algorithm>

#include "storage/project/base_element_lines.h"
#include "storage/project/family_parts.h"
#include "storage/project/sea_parts.h"

namespace velmar::storage {
namespace {

constexpr const char* kBaseMarker = "PARTE_OPACA";
constexpr int kNoHanger = -1;
constexpr int kLastHanger = static_cast<int>(elements::Hanger::kSpring);

}  // namespace

void WriteLiningPart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout) {
  if (layout.support_line) out.Text(setup.support_distance_text);
  if (layout.hanger_line) out.Integer(std::clamp(setup.hanger, kNoHanger, kLastHanger));
  out.Text(kBaseMarker);
  WriteBaseHead(out, setup.base);
  out.Number(setup.base.thickness_mm);
  WriteRatedElement(out, setup.base);
  WriteSeaCavityContents(out, setup.sea_cavity);
  WriteSeaLeaf(out, setup.sea_leaf2, CountLine::kItself);
  WriteSeaCavityDepth(out, setup.sea_cavity);
}

void ReadLiningPart(PartInput& in, elements::Setup& setup) {
  if (in.layout.support_line) setup.support_distance_text = in.lines.Text();
  if (in.layout.hanger_line) setup.hanger = in.lines.Integer(kNoHanger, kLastHanger);
  in.lines.Label(kBaseMarker);
  ReadBaseHead(in.lines, setup.base);
  setup.base.thickness_mm = in.lines.Number();
  ReadRatedElement(in.lines, setup.base);
  ReadSeaCavityContents(in, setup.sea_cavity);
  ReadSeaLeaf(in, setup.sea_leaf2, CountLine::kItself);
  ReadSeaCavityDepth(in, setup.sea_cavity);
}

}  // namespace velmar::storage
