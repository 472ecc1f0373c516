// SEA SINGOLO: Text1; Text2; the layers of the one side, counted less one.
//
// SEA: Text1; Text2; Text8 for the plasterboard variants, else "check" or "uncheck" for the decoupled wall
// (from code 5 on); the layers of side 1; the contents of the cavity; the layers of side 2; the depth of the
// cavity.
#include "storage/project/family_parts.h"
#include "storage/project/sea_parts.h"
#include "storage/project/version_code.h"

namespace velmar::storage {
namespace {

constexpr const char* kTicked = "check";
constexpr const char* kUnticked = "uncheck";

bool ReadDecoupled(PartInput& in) {
  // Programs before this line knew no decoupled wall.
  const bool line_due = in.version_code >= kCurrentLayout || in.lines.NextIsOneOf({kTicked, kUnticked});
  return line_due && in.lines.Choice({kTicked, kUnticked}) == 0;
}

}  // namespace

void WriteSeaSinglePart(LineWriter& out, const elements::Setup& setup, const PartLayout& /*layout*/) {
  out.Text(setup.width_text);
  out.Text(setup.height_text);
  WriteSeaLeaf(out, setup.sea_leaf1, CountLine::kLessOne);
}

void ReadSeaSinglePart(PartInput& in, elements::Setup& setup) {
  setup.width_text = in.lines.Text();
  setup.height_text = in.lines.Text();
  ReadSeaLeaf(in, setup.sea_leaf1, CountLine::kLessOne);
}

void WriteSeaDoublePart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout) {
  out.Text(setup.width_text);
  out.Text(setup.height_text);
  if (layout.support_line) out.Text(setup.support_distance_text);
  if (layout.decoupling_line) out.Text(setup.decoupled ? kTicked : kUnticked);
  WriteSeaLeaf(out, setup.sea_leaf1, CountLine::kItself);
  WriteSeaCavityContents(out, setup.sea_cavity);
  WriteSeaLeaf(out, setup.sea_leaf2, CountLine::kItself);
  WriteSeaCavityDepth(out, setup.sea_cavity);
}

void ReadSeaDoublePart(PartInput& in, elements::Setup& setup) {
  setup.width_text = in.lines.Text();
  setup.height_text = in.lines.Text();
  if (in.layout.support_line) setup.support_distance_text = in.lines.Text();
  if (in.layout.decoupling_line) setup.decoupled = ReadDecoupled(in);
  ReadSeaLeaf(in, setup.sea_leaf1, CountLine::kItself);
  ReadSeaCavityContents(in, setup.sea_cavity);
  ReadSeaLeaf(in, setup.sea_leaf2, CountLine::kItself);
  ReadSeaCavityDepth(in, setup.sea_cavity);
}

}  // namespace velmar::storage
