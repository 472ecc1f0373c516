// MULTISTRATO: Text1; Text2; CheckGuide; ComboStrati (integer); for each row: label; its kind; of a solid the
// lines of a leaf's layer, of fibre those of a cavity's layer and its flow resistivity, else the thickness;
// of a profiled sheet its height and pitch; of the first row of a cavity what connects the leaves, and how
// many or how far apart.
#include <array>
#include <string_view>

#include "storage/project/cavity_blocks.h"
#include "storage/project/family_parts.h"
#include "storage/project/structural_blocks.h"

namespace velmar::storage {
namespace {

using elements::CavityConnection;
using elements::Multilayer;
using elements::Stratum;
using elements::StratumKind;

constexpr const char* kTicked = "check";
constexpr const char* kUnticked = "uncheck";
/// In the order of StratumKind.
constexpr std::array<std::string_view, elements::kStratumKindCount> kKinds = {
    "lastra",      "lastra incollata",     "aria",   "fibra",
    "intercalare", "intercalare acustico", "nucleo", "lastra grecata"};
/// In the order of CavityConnection.
constexpr std::array<std::string_view, elements::kCavityConnectionCount> kConnections = {
    "nessuno", "montanti legno", "montanti acciaio", "profili resilienti", "punti"};

void WriteStratum(LineWriter& out, const Stratum& stratum) {
  out.Text(kKinds.at(static_cast<std::size_t>(stratum.kind)));
  if (elements::TakesSolid(stratum.kind)) {
    WriteLeafLayer(out, stratum.solid, LineBreaks::kBlank);
  } else if (stratum.kind == StratumKind::kFibre) {
    WriteCavityLayer(out, stratum.fibre);
    out.Number(stratum.flow_resistivity_pa_s_m2);
  } else {
    out.Text(stratum.thickness_text);
  }
  if (stratum.kind != StratumKind::kProfiledSheet) return;
  out.Text(stratum.profile_height_text);
  out.Text(stratum.profile_pitch_text);
}

void ReadStratum(PartInput& in, Stratum& stratum) {
  stratum.kind = static_cast<StratumKind>(in.lines.Choice(kKinds));
  if (elements::TakesSolid(stratum.kind)) {
    ReadLeafLayer(in, stratum.solid);
  } else if (stratum.kind == StratumKind::kFibre) {
    ReadCavityLayer(in, stratum.fibre);
    stratum.flow_resistivity_pa_s_m2 = in.lines.Number();
  } else {
    stratum.thickness_text = in.lines.Text();
  }
  if (stratum.kind != StratumKind::kProfiledSheet) return;
  stratum.profile_height_text = in.lines.Text();
  stratum.profile_pitch_text = in.lines.Text();
}

}  // namespace

void WriteMultilayerPart(LineWriter& out, const elements::Setup& setup, const PartLayout& /*layout*/) {
  const Multilayer& list = setup.multilayer;
  out.Text(setup.width_text);
  out.Text(setup.height_text);
  out.Text(list.framed ? kTicked : kUnticked);
  out.Integer(list.Count());
  for (int i = 0; i < list.Count(); ++i) {
    const Stratum& stratum = list.strata.at(static_cast<std::size_t>(i));
    WriteMaterialLabel(out, i + 1);
    WriteStratum(out, stratum);
    if (!list.BeginsCavity(i)) continue;
    out.Text(kConnections.at(static_cast<std::size_t>(stratum.connection)));
    out.Text(stratum.connection_text);
  }
}

void ReadMultilayerPart(PartInput& in, elements::Setup& setup) {
  Multilayer& list = setup.multilayer;
  setup.width_text = in.lines.Text();
  setup.height_text = in.lines.Text();
  list.framed = in.lines.Choice({kTicked, kUnticked}) == 0;
  list.count = in.lines.Integer(1, Multilayer::kCapacity);
  for (int i = 0; i < list.count; ++i) {
    Stratum& stratum = list.strata.at(static_cast<std::size_t>(i));
    in.lines.Label(kMaterialLabel);
    ReadStratum(in, stratum);
    if (!list.BeginsCavity(i)) continue;
    stratum.connection = static_cast<CavityConnection>(in.lines.Choice(kConnections));
    stratum.connection_text = in.lines.Text();
  }
}

}  // namespace velmar::storage
