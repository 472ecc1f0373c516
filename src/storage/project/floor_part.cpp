// CALPESTIO and the floor with a floating screed: Text1; Text2; a marker; the layers of the bearing floor; a
// marker; those of the screed; a marker; the resilient layers.
#include "storage/project/family_parts.h"
#include "storage/project/resilient_block.h"
#include "storage/project/structural_blocks.h"

namespace velmar::storage {
namespace {

constexpr const char* kBase = "*************** Solaio base ***************";
constexpr const char* kScreed = "*************** Pavimento galleggiante ***************";
constexpr const char* kResilient = "*************** Materiale resiliente ***************";

}  // namespace

void WriteFloorPart(LineWriter& out, const elements::Setup& setup, const PartLayout& /*layout*/) {
  out.Text(setup.width_text);
  out.Text(setup.height_text);
  out.Text(kBase);
  WriteLeaf(out, setup.leaf1, LineBreaks::kCut);
  out.Text(kScreed);
  WriteLeaf(out, setup.leaf2, LineBreaks::kCut);
  out.Text(kResilient);
  WriteResilientLayers(out, setup.resilient);
}

void ReadFloorPart(PartInput& in, elements::Setup& setup) {
  setup.width_text = in.lines.Text();
  setup.height_text = in.lines.Text();
  in.lines.Label("***");
  ReadLeaf(in, setup.leaf1);
  in.lines.Label("***");
  ReadLeaf(in, setup.leaf2);
  in.lines.Label("***");
  ReadResilientLayers(in, setup.resilient);
}

}  // namespace velmar::storage
