// SINGOLA: Text1; Text2; the layers of "Parete 1".
#include "storage/project/family_parts.h"
#include "storage/project/structural_blocks.h"

namespace velmar::storage {

void WriteSinglePart(LineWriter& out, const elements::Setup& setup, const PartLayout& /*layout*/) {
  out.Text(setup.width_text);
  out.Text(setup.height_text);
  WriteLeaf(out, setup.leaf1, LineBreaks::kBlank);
}

void ReadSinglePart(PartInput& in, elements::Setup& setup) {
  setup.width_text = in.lines.Text();
  setup.height_text = in.lines.Text();
  ReadLeaf(in, setup.leaf1);
}

}  // namespace velmar::storage
