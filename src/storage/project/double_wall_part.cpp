// DOPPIA and SHARP: Text1; Text2; a marker; the layers of "Parete 1"; a marker; those of "Parete 2"; a
// marker; the kind of cavity; for "materiale generico" the layers of the cavity; Text9; the closing lines.
#include <array>
#include <string>
#include <string_view>

#include "storage/project/cavity_blocks.h"
#include "storage/project/family_parts.h"
#include "storage/project/structural_blocks.h"

namespace velmar::storage {
namespace {

using elements::CavityKind;
using elements::Setup;

constexpr const char* kLeaf1 = "*************** PARETE 1 ***************";
constexpr const char* kLeaf2 = "*************** PARETE 2 ***************";
constexpr const char* kCavity = "*************** INTERCAPEDINE ***************";
/// In the order of CavityKind.
constexpr std::array<std::string_view, 3> kKinds = {"vuoto", "materiale fonoassorbente",
                                                    "materiale generico"};

// A blank closing line stands for these.
constexpr std::string_view kDefaultFibre = "0";
constexpr std::string_view kDefaultSupportDistance = "60";
/// What a run takes for an empty `Text8`.
constexpr std::string_view kEmptySupportDistance = "10";

/// Writes `text`, or a blank line for the default.
void WriteUnless(LineWriter& out, std::string_view text, std::string_view value_of_blank) {
  if (text == value_of_blank) {
    out.Blank();
  } else {
    out.Text(text);
  }
}

bool IsBlank(std::string_view text) { return text.find_first_not_of(" \r\n") == std::string_view::npos; }

void WriteClosing(LineWriter& out, const Setup& setup, ClosingLines closing) {
  const std::string& fibre = setup.cavity.fibre_text;
  const std::string& support = setup.support_distance_text;
  switch (closing) {
    case ClosingLines::kFibre:
      out.Text(fibre);
      return;
    case ClosingLines::kFibreIfTyped:
      WriteUnless(out, IsBlank(fibre) ? kDefaultFibre : std::string_view(fibre), kDefaultFibre);
      out.Blank();
      return;
    case ClosingLines::kSupportIfTyped:
      out.Blank();
      WriteUnless(out, IsBlank(support) ? kEmptySupportDistance : std::string_view(support),
                  kDefaultSupportDistance);
      return;
    case ClosingLines::kBlank:
      out.Blank();
      out.Blank();
      return;
  }
}

void ReadClosing(LineCursor& lines, Setup& setup, ClosingLines closing) {
  if (closing == ClosingLines::kFibre) {
    setup.cavity.fibre_text = lines.Text();
    return;
  }
  // Choosing the kind of cavity empties the fibre, so a file that says nothing has none.
  setup.cavity.fibre_text = kDefaultFibre;
  const std::string first = lines.Text();
  const std::string second = lines.Text();
  if (closing == ClosingLines::kFibreIfTyped && !IsBlank(first)) setup.cavity.fibre_text = first;
  if (closing == ClosingLines::kSupportIfTyped) {
    setup.support_distance_text = IsBlank(second) ? kDefaultSupportDistance : std::string_view(second);
  }
}

}  // namespace

void WriteDoubleWallPart(LineWriter& out, const Setup& setup, const PartLayout& layout) {
  out.Text(setup.width_text);
  out.Text(setup.height_text);
  out.Text(kLeaf1);
  WriteLeaf(out, setup.leaf1, LineBreaks::kBlank);
  out.Text(kLeaf2);
  WriteLeaf(out, setup.leaf2, LineBreaks::kBlank);
  out.Text(kCavity);
  out.Text(kKinds.at(static_cast<std::size_t>(setup.cavity.kind)));
  if (setup.cavity.kind == CavityKind::kGenericMaterial) WriteCavityLayers(out, setup.cavity.layers);
  out.Text(setup.cavity.depth_text);
  WriteClosing(out, setup, layout.closing);
}

void ReadDoubleWallPart(PartInput& in, Setup& setup) {
  setup.width_text = in.lines.Text();
  setup.height_text = in.lines.Text();
  in.lines.Label("***");
  ReadLeaf(in, setup.leaf1);
  in.lines.Label("***");
  ReadLeaf(in, setup.leaf2);
  in.lines.Label("***");
  setup.cavity.kind = static_cast<CavityKind>(in.lines.Choice({kKinds[0], kKinds[1], kKinds[2]}));
  if (setup.cavity.kind == CavityKind::kGenericMaterial) ReadCavityLayers(in, setup.cavity.layers);
  setup.cavity.depth_text = in.lines.Text();
  ReadClosing(in.lines, setup, in.layout.closing);
}

}  // namespace velmar::storage
